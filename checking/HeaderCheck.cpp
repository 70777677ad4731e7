#include <string>

#include "checking/CheckContext.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

void CheckHeaderCommand(CheckContext& context, const char* name, const ADXObject* command, const std::string& id) {
    if (command == nullptr && !id.empty()) {
        context.Error(
            nullptr, "unresolved-link",
            Printf("%s \"%s\": %s; it is not run", name, DisplayText(id).c_str(), WhyIdNotFound(context, id).c_str()));
    } else if (command != nullptr && (command->GetType() & kCommandTypes) == 0) {
        context.Error(nullptr, "wrong-link",
                      Printf("%s names the %s, which is no command", name, NameOf(*command).c_str()));
    }
}

void CheckFileHeader(CheckContext& context, const FileFacts& facts) {
    if (facts.objectcount && *facts.objectcount != facts.objects.size()) {
        context.Note(nullptr, "object-count",
                     Printf("objectcount says %u, the file holds %s", *facts.objectcount,
                            Counted(facts.objects.size(), "object").c_str()));
    }
    for (const std::string& name : facts.unknown)
        context.Note(nullptr, "unknown-name",
                     Printf("%s means nothing here and is ignored", DisplayText(name).c_str()));
    for (const std::string& name : facts.toolong)
        context.Warn(nullptr, "cut-text",
                     Printf("the text of %s is too long and is cut on reading", DisplayText(name).c_str()));
}

}  // namespace

void CheckHeader(CheckContext& context) {
    const ADXDefinition& definition = context.Definition();
    const FileFacts none;
    const FileFacts& facts = context.Facts() != nullptr ? *context.Facts() : none;
    CheckHeaderCommand(context, "connectcmd", definition.connectcmd, facts.connectcmd);
    CheckHeaderCommand(context, "monitorcmd", definition.monitorcmd, facts.monitorcmd);
    CheckHeaderCommand(context, "disconnectcmd", definition.disconnectcmd, facts.disconnectcmd);
    if (definition.monitorcmd == nullptr)
        context.Warn(nullptr, "no-monitor", "there is no monitor command: a scan ends right after connecting");
    if (definition.baud == 0) context.Error(nullptr, "baud", "baud is 0: no port opens at that rate");
    if (context.Facts() != nullptr) CheckFileHeader(context, facts);
}

}  // namespace corvex
