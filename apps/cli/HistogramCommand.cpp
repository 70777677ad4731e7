#include "apps/cli/HistogramCommand.h"

#include <ostream>

namespace corvex {

ExitCode RunHistogram(const HistogramOptions&, std::ostream&, std::ostream& err) {
    err << "corvex-cli: histogram is not built yet\n";
    return kExitFailure;
}

}  // namespace corvex
