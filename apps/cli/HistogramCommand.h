// corvex-cli histogram: a definition's histograms, filled from a log.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

ExitCode RunHistogram(const HistogramOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
