#include "apps/cli/PlayCommand.h"

#include <ostream>

namespace corvex {

ExitCode RunPlay(const PlayOptions&, std::ostream&, std::ostream& err) {
    err << "corvex-cli: play is not built yet\n";
    return kExitFailure;
}

}  // namespace corvex
