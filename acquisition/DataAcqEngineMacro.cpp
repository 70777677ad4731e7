// The macros of the engine.
#include "acquisition/DataAcqEngine.h"
#include "acquisition/IDataAcqCallback.h"
#include "definition/ADXMacro.h"

namespace corvex {

namespace {

// A macro may repeat billions of times over nodes that lead nowhere.
bool HasAnythingToRun(const ADXMacro& macro) {
    for (const ADXMacroNode& node : macro.Nodes()) {
        if (node.command != nullptr && node.repeatcount != 0) return true;
    }
    return false;
}

}  // namespace

std::int32_t DataAcqEngine::RunMacro(const ADXMacro* macro) {
    if (nesting_ == kNestingLimit) {
        tooDeep_ = true;
        return kResultFail;
    }
    ++nesting_;
    status.code = kCodeSuccess;
    status.command = macro;
    if (macro != nullptr && macro->GetNodeCount() != 0 && callback->OnMacroBegin(&status) >= 0) RunNodes(*macro);
    // Takes the place of every result before it, that of a bad argument too.
    const std::int32_t result = callback->OnMacroEnd(&status);
    const bool abandoned = tooDeep_;
    if (--nesting_ == 0) tooDeep_ = false;
    return abandoned ? kResultFail : result;
}

void DataAcqEngine::RunNodes(const ADXMacro& macro) {
    if (!HasAnythingToRun(macro)) return;
    for (std::uint32_t pass = 0; pass < macro.repeatcount; ++pass) {
        for (const ADXMacroNode& node : macro.Nodes()) {
            if (node.command == nullptr) continue;
            for (std::uint32_t run = 0; run < node.repeatcount; ++run) {
                if (!RunNode(node)) return;
            }
        }
    }
}

// False ends the macro. The status is shared with the command that ran: unless a rule sets the code here, the macro's
// end sees what that command left.
bool DataAcqEngine::RunNode(const ADXMacroNode& node) {
    if (StopRequested()) {
        status.code = kCodeStopped;
        return false;
    }
    const bool hadVanished = portRef->Vanished();
    const std::int32_t result = RunCommand(node.command);
    // The rest of the macro could only fail, command by command. Of one that is begun afterwards each has its wait.
    if (!hadVanished && portRef->Vanished()) return false;
    if (tooDeep_ || (node.EndsIfFailed() && result < 0)) {
        status.code = kCodeNodeFailed;
        return false;
    }
    if (node.EndsIfSucceeded() && result >= 0) {
        status.code = kCodeNodeSucceeded;
        return false;
    }
    return true;
}

}  // namespace corvex
