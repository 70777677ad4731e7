#include "apps/editor/DocumentModel.h"

#include <cstring>
#include <string_view>
#include <vector>

#include "files/adx/ADXParser.h"
#include "files/adx/DefinitionSave.h"
#include "files/xml/XMLWriter.h"
#include "platform/Clock.h"

namespace corvex {
namespace {

constexpr std::size_t kFirstGuess = std::size_t{1} << 16;
constexpr std::size_t kLargestFile = std::size_t{1} << 30;

std::string_view ViewOf(const OwnedText& text) {
    return text.IsSet() ? std::string_view(text.CStr(), text.Length()) : std::string_view();
}

bool NamesSame(const ADXObject* command, const HeaderWords::CommandId& id) {
    return std::strcmp(command != nullptr ? command->Id() : "", id.text) == 0;
}

bool SameHeader(const ADXDefinition& saved, const ADXDefinition& read, const HeaderWords& header) {
    return saved.flags == read.flags && saved.baud == read.baud && ViewOf(saved.Author()) == ViewOf(read.Author()) &&
           ViewOf(saved.UserVersion()) == ViewOf(read.UserVersion()) && ViewOf(saved.Desc()) == ViewOf(read.Desc()) &&
           NamesSame(saved.connectcmd, header.connectcmd) && NamesSame(saved.monitorcmd, header.monitorcmd) &&
           NamesSame(saved.disconnectcmd, header.disconnectcmd);
}

// Empty when there is no memory of that size to write to.
std::vector<char> SavedBytes(const ADXDefinition& definition) {
    for (std::size_t size = kFirstGuess; size <= kLargestFile; size *= 2) {
        std::vector<char> bytes(size);
        XMLWriter writer;
        if (writer.OpenMemory(bytes.data(), bytes.size()) == 0) break;
        WriteDefinition(definition, writer, CurrentLocalTime());
        writer.Close();
        if (writer.Failed()) continue;
        bytes.resize(writer.MemoryLength());
        return bytes;
    }
    return {};
}

}  // namespace

bool DocumentModel::Load(const std::string& path, std::string& error) {
    definition_.Clear();
    ADXParser parser;
    if (parser.Parse(path.c_str(), definition_) == 0) {
        error = *parser.GetError() != '\0' ? parser.GetError() : "This is not a definition file.";
        return false;
    }
    const HeaderWords& header = parser.Header();
    if (definition_.connectcmd == nullptr) definition_.connectcmd = Missing(0, header.connectcmd.text);
    if (definition_.monitorcmd == nullptr) definition_.monitorcmd = Missing(1, header.monitorcmd.text);
    if (definition_.disconnectcmd == nullptr) definition_.disconnectcmd = Missing(2, header.disconnectcmd.text);
    return true;
}

ADXObject* DocumentModel::Missing(std::size_t place, const char* id) {
    missing_[place].reset();
    if (*id == '\0') return nullptr;
    missing_[place] = std::make_unique<ADXObject>();
    missing_[place]->SetId(id);
    return missing_[place].get();
}

bool DocumentModel::Save(const std::string& path, std::string& error) const {
    if (!ReadsBack(error)) return false;
    if (definition_.Save(path.c_str()) != 0) return true;
    error = "The file could not be written.";
    return false;
}

// Objects come from files, where an entity may have put into a text what the writer does not escape.
bool DocumentModel::ReadsBack(std::string& error) const {
    const std::vector<char> bytes = SavedBytes(definition_);
    ADXDefinition read;
    ADXParser parser;
    if (parser.ParseMemory(bytes.data(), bytes.size(), read) != 0 && read.GetCount() == definition_.GetCount() &&
        SameHeader(definition_, read, parser.Header())) {
        return true;
    }
    error =
        "The saved file could not be read again, because a text in the definition holds a character that the "
        "format cannot keep.";
    if (*parser.GetError() != '\0') error.append(" ").append(parser.GetError());
    return false;
}

}  // namespace corvex
