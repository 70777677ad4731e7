#include "apps/editor/HeaderModel.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace corvex {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

constexpr std::array kCommands = {HeaderCommand::kConnect, HeaderCommand::kMonitor, HeaderCommand::kDisconnect};

struct CommandField {
    HeaderField field;
    const char* name;
};
constexpr std::array<CommandField, kHeaderCommandCount> kCommandFields = {{
    {HeaderField::kConnect, "Connect command"},
    {HeaderField::kMonitor, "Monitor command"},
    {HeaderField::kDisconnect, "Disconnect command"},
}};

std::string TextOf(const OwnedText& text) {
    return text.IsSet() ? std::string(text.CStr(), text.Length()) : std::string();
}

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(kBlanks) == std::string_view::npos;
}

// Files may end their lines in any way; an edit control knows one.
std::string WithLineEnds(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            result += text[i];
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        result += "\r\n";
    }
    return result;
}

// Both begin markup, and the format escapes nothing in the header.
const char* Unsavable(std::string_view text) {
    const std::size_t found = text.find_first_of("<&");
    if (found == std::string_view::npos) return nullptr;
    return text[found] == '<' ? "<" : "&";
}

std::string Message(const char* field, const std::string& what) {
    return std::string(field).append(": ").append(what);
}

std::optional<HeaderProblem> TextTrouble(HeaderField field, const char* name, const std::string& text,
                                         std::size_t limit) {
    if (const char* character = Unsavable(text)) {
        return HeaderProblem{
            field, Message(name, std::string("the file cannot hold the character ").append(character).append("."))};
    }
    if (text.size() <= limit) return std::nullopt;
    std::string what = std::to_string(text.size());
    what.append(" characters are too many; at most ").append(std::to_string(limit)).append(" are kept.");
    return HeaderProblem{field, Message(name, what)};
}

// Blanks around the number are forgiven, anything else is not.
std::optional<std::uint32_t> BaudOf(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return std::nullopt;
    text = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
    std::uint32_t baud = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), baud);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    if (baud < HeaderModel::kLowestBaud || baud > HeaderModel::kHighestBaud) return std::nullopt;
    return baud;
}

std::string LabelOf(const ADXObject& object) {
    std::string id(object.Id());
    if (object.GetType() == kTypeObject) return id.append(" (not in this definition)");
    if (!object.IsOneOf(kHeaderCommandTypes)) return id.append(" (not a command)");
    if (*object.Title() == '\0') return id.empty() ? "(no title)" : id;
    std::string label(object.Title());
    return id.empty() ? label : label.append(" (").append(id).append(")");
}

}  // namespace

HeaderModel::HeaderModel(ADXDefinition& definition) : definition_(definition) {
    fields_.author = TextOf(definition.Author());
    fields_.version = TextOf(definition.UserVersion());
    description_ = TextOf(definition.Desc());
    fields_.description = WithLineEnds(description_);
    fields_.baud = std::to_string(definition.baud);
    fields_.echo = definition.HasEcho();
    for (const HeaderCommand command : kCommands) {
        List(command);
        fields_.command[Place(command)] = ChoiceOf(command, Slot(command));
    }
}

ADXObject*& HeaderModel::Slot(HeaderCommand command) {
    if (command == HeaderCommand::kConnect) return definition_.connectcmd;
    return command == HeaderCommand::kMonitor ? definition_.monitorcmd : definition_.disconnectcmd;
}

void HeaderModel::List(HeaderCommand command) {
    std::vector<CommandChoice>& choices = choices_[Place(command)];
    choices.push_back({"(none)", nullptr});
    ADXObject* const now = Slot(command);
    if (now != nullptr && !now->IsOneOf(kHeaderCommandTypes)) choices.push_back({LabelOf(*now), now});
    for (const auto& object : definition_.Objects()) {
        if (object != nullptr && object->IsOneOf(kHeaderCommandTypes))
            choices.push_back({LabelOf(*object), object.get()});
    }
}

std::size_t HeaderModel::ChoiceOf(HeaderCommand command, const ADXObject* object) const {
    const std::vector<CommandChoice>& choices = Choices(command);
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [=](const CommandChoice& choice) { return choice.object == object; });
    return found == choices.end() ? 0 : static_cast<std::size_t>(found - choices.begin());
}

HeaderFields HeaderModel::Typed(const HeaderFields& shown, HeaderFields now) const {
    for (std::string HeaderFields::*const text :
         {&HeaderFields::author, &HeaderFields::version, &HeaderFields::description}) {
        if (now.*text == shown.*text) now.*text = fields_.*text;
    }
    return now;
}

std::string HeaderModel::Description(const HeaderFields& fields) const {
    return fields.description == fields_.description ? description_ : fields.description;
}

// A command stands in the header by its id, so it must be the one that the id finds.
std::optional<std::string> HeaderModel::CommandTrouble(const ADXObject* object) const {
    if (object == nullptr) return std::nullopt;
    const std::string id(object->Id());
    if (IsBlank(id)) return "this command has no id, by which the header could name it.";
    if (const char* character = Unsavable(id))
        return std::string("the file cannot hold the character ").append(character).append(" of its id.");
    if (object->GetType() == kTypeObject || definition_.FindById(id.c_str()) == object) return std::nullopt;
    if (id.size() >= ADXObject::kIdLength) return "its id has 15 characters, and only 14 are ever looked for.";
    return "another object has the same id and would be taken for it.";
}

std::optional<HeaderProblem> HeaderModel::Validate(const HeaderFields& fields) const {
    if (auto problem = TextTrouble(HeaderField::kAuthor, "Author", fields.author, kAuthorLength)) return problem;
    if (auto problem = TextTrouble(HeaderField::kVersion, "Version", fields.version, kVersionLength)) return problem;
    if (auto problem = TextTrouble(HeaderField::kDescription, "Description", Description(fields), kDescriptionLength)) {
        return problem;
    }
    if (!BaudOf(fields.baud))
        return HeaderProblem{HeaderField::kBaud, "Baud rate: enter a whole number from 1 to 1000000."};
    for (const HeaderCommand command : kCommands) {
        const std::size_t place = Place(command);
        const CommandField& about = kCommandFields[place];
        if (fields.command[place] >= choices_[place].size())
            return HeaderProblem{about.field, Message(about.name, "choose one of the list.")};
        if (const auto trouble = CommandTrouble(choices_[place][fields.command[place]].object))
            return HeaderProblem{about.field, Message(about.name, *trouble)};
    }
    return std::nullopt;
}

void HeaderModel::Apply(const HeaderFields& fields) {
    const auto length = [](const std::string& text) {
        return IsBlank(text) ? 0 : static_cast<std::uint32_t>(text.size());
    };
    const std::string description = Description(fields);
    definition_.SetAuthor(fields.author.c_str(), length(fields.author));
    definition_.SetUserVersion(fields.version.c_str(), length(fields.version));
    definition_.SetDesc(description.c_str(), length(description));
    definition_.baud = BaudOf(fields.baud).value_or(definition_.baud);
    definition_.SetEcho(fields.echo);
    for (const HeaderCommand command : kCommands) {
        const std::size_t place = Place(command);
        Slot(command) = choices_[place].at(fields.command[place]).object;
    }
}

}  // namespace corvex
