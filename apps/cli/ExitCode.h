// How the tool ends.
#pragma once

namespace corvex {

enum ExitCode : int {
    kExitSuccess = 0,
    kExitFailure = 1,  // with one line on standard error
    kExitUsage = 2,
};

}  // namespace corvex
