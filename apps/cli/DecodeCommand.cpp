#include "apps/cli/DecodeCommand.h"

#include <ostream>

namespace corvex {

ExitCode RunDecode(const DecodeOptions&, std::ostream&, std::ostream& err) {
    err << "corvex-cli: decode is not built yet\n";
    return kExitFailure;
}

}  // namespace corvex
