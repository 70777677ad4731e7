// The states that the program can be in, and the way into each.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/driver/Operator.h"

namespace corvex::test {

struct ProgramState {
    const char* name;
    // From a program that has just begun with the 8192-baud example and with a log to be played.
    std::function<void(Operator&)> enter;
    bool isShown = false;  // one that pictures are taken of
};

// Those that are shown come first, in the order of a session.
const std::vector<ProgramState>& AllProgramStates();

}  // namespace corvex::test
