#include "session/diagnosis/PolledCommands.h"

#include <unordered_set>

#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXMacro.h"
#include "export/text/ObjectNames.h"

namespace corvex {

namespace {

bool BringsPackets(const ADXObject& command) {
    if (command.GetType() == kType160BaudListen) return true;
    const auto* send = As<ADXCSendCommand>(&command);
    return send != nullptr && send->ExpectsReply();
}

}  // namespace

std::vector<const ADXObject*> PolledCommands(const ADXDefinition& definition) {
    const ADXObject* const root = definition.monitorcmd != nullptr ? definition.monitorcmd : definition.connectcmd;
    std::vector<const ADXObject*> polled;
    std::unordered_set<const ADXObject*> met;
    // A stack, since a definition decides how deep its macros go; the last pushed is met first.
    std::vector<const ADXObject*> ahead{root};
    while (!ahead.empty()) {
        const ADXObject* const command = ahead.back();
        ahead.pop_back();
        if (command == nullptr || !met.insert(command).second) continue;
        if (BringsPackets(*command)) polled.push_back(command);
        const auto* macro = As<ADXMacro>(command);
        if (macro == nullptr) continue;
        for (auto node = macro->Nodes().rbegin(); node != macro->Nodes().rend(); ++node)
            ahead.push_back(node->command);
    }
    return polled;
}

}  // namespace corvex
