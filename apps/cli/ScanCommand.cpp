#include "apps/cli/Commands.h"
#include "apps/cli/ScanRun.h"

namespace corvex {

ExitCode RunScan(const ScanOptions& options, std::ostream& out, std::ostream& err) {
    return ScanRun(options, out, err).Run();
}

}  // namespace corvex
