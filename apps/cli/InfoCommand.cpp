#include "apps/cli/InfoCommand.h"

#include <ostream>

namespace corvex {

ExitCode RunInfo(const InfoOptions&, std::ostream&, std::ostream& err) {
    err << "corvex-cli: info is not built yet\n";
    return kExitFailure;
}

}  // namespace corvex
