// The command line of corvex-sim.
#pragma once

#include <string>

#include "apps/sim/SimOptions.h"

namespace corvex {

struct SimArguments {
    std::string definition, port, link, replay;
    SimOptions options;
    bool stats = false, json = false;
};

// True: run with `arguments`. False: the program ends with `exitCode`, and what there was to say has been printed (help
// and version with 0 on stdout, wrong usage with 2 on stderr).
bool ParseArguments(int argc, const char* const* argv, SimArguments& arguments, int& exitCode);

}  // namespace corvex
