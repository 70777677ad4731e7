#include "apps/cli/RepairCommand.h"

#include <ostream>

namespace corvex {

ExitCode RunRepair(const RepairOptions&, std::ostream&, std::ostream& err) {
    err << "corvex-cli: repair is not built yet\n";
    return kExitFailure;
}

}  // namespace corvex
