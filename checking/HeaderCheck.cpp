#include <algorithm>
#include <string>

#include "checking/CheckContext.h"
#include "definition/ADXCSendCommand.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

void CheckHeaderCommand(CheckContext& context, const char* name, const ADXObject* command, const std::string& id) {
    if (command == nullptr && !id.empty()) {
        context.Error(
            nullptr, "unresolved-link",
            Printf("%s \"%s\": %s; it is not run", name, DisplayText(id).c_str(), WhyIdNotFound(context, id).c_str()));
    } else if (command != nullptr && !command->IsOneOf(kCommandTypes)) {
        context.Error(nullptr, "wrong-link",
                      Printf("%s names the %s, which is no command", name, NameOf(*command).c_str()));
    }
}

std::string TextOf(const SourcePart& header, const char* name) {
    const SourceElement* element = header.Last(name);
    return element == nullptr ? std::string() : element->text;
}

void CheckObjectCount(CheckContext& context, const SourceRecord& source) {
    bool given = false;
    std::uint32_t count = 0;
    for (const SourceElement& child : source.Header().children) {
        if (child.ignored || !(child.Is("objectcount") || child.Is("commandcount"))) continue;
        given = true;
        count += DecimalWord(child.text);
    }
    if (given && count != source.ObjectCount()) {
        context.Note(
            nullptr, "object-count",
            Printf("objectcount says %u, the file holds %s", count, Counted(source.ObjectCount(), "object").c_str()));
    }
}

void CheckCommandCount(CheckContext& context) {
    constexpr std::size_t kRoom = 256;
    const auto count =
        static_cast<std::size_t>(std::ranges::count_if(context.PacketCommands(), [](const ADXObject* command) {
            const auto* send = As<ADXCSendCommand>(command);
            return send == nullptr || send->ExpectsReply();
        }));
    if (count > kRoom)
        context.Warn(
            nullptr, "command-count",
            Printf("%u commands bring replies, and a log has room for %u: samples of the others are not recorded",
                   static_cast<unsigned>(count), static_cast<unsigned>(kRoom)));
}

}  // namespace

void CheckHeader(CheckContext& context) {
    const ADXDefinition& definition = context.Definition();
    const SourcePart none;
    const SourcePart& header = context.Source() != nullptr ? context.Source()->Header() : none;
    CheckHeaderCommand(context, "connectcmd", definition.connectcmd, TextOf(header, "connectcmd"));
    CheckHeaderCommand(context, "monitorcmd", definition.monitorcmd, TextOf(header, "monitorcmd"));
    CheckHeaderCommand(context, "disconnectcmd", definition.disconnectcmd, TextOf(header, "disconnectcmd"));
    if (definition.monitorcmd == nullptr)
        context.Warn(nullptr, "no-monitor", "there is no monitor command: a scan ends right after connecting");
    if (definition.baud == 0) context.Error(nullptr, "baud", "baud is 0: no port opens at that rate");
    CheckCommandCount(context);
    if (context.Source() == nullptr) return;
    CheckObjectCount(context, *context.Source());
    CheckSourceText(context, nullptr, header);
}

}  // namespace corvex
