// Which command does what.
#pragma once

#include "session/window/DefinitionCommands.h"

namespace corvex {

class Desktop;

// Menu, accelerators and toolbars all send the same numbers here. Main thread.
class CommandRouter {
public:
    explicit CommandRouter(Desktop& desktop) : desktop_(desktop), definitions_(desktop) {}

    // False for a number that stands for nothing.
    bool Run(unsigned command);

    DefinitionCommands& Definitions() { return definitions_; }

private:
    bool RunFileCommand(unsigned command);
    bool RunLogCommand(unsigned command);

    Desktop& desktop_;
    DefinitionCommands definitions_;
};

}  // namespace corvex
