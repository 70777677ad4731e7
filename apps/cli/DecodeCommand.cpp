#include "apps/cli/Commands.h"
#include "apps/cli/DecodeRun.h"

namespace corvex {

ExitCode RunDecode(const DecodeOptions& options, std::ostream& out, std::ostream& err) {
    return DecodeRun(options, out, err).Run();
}

}  // namespace corvex
