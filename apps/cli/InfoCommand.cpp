#include <nlohmann/json.hpp>
#include <ostream>

#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/LogSummaryText.h"
#include "definition/ADXDefinition.h"
#include "export/LogSummary.h"

namespace corvex {

ExitCode RunInfo(const InfoOptions& options, std::ostream& out, std::ostream& err) {
    ADXDefinition definition;
    const bool named = !options.definition.empty();
    if (named && !LoadDefinition(definition, options.definition, err)) return kExitFailure;
    DataLogEngine log;
    if (!OpenLog(log, options.log, err)) return kExitFailure;
    const LogSummary summary = SummarizeLog(log);
    if (options.human)
        out << LogSummaryText(summary, named ? &definition : nullptr);
    else
        out << LogSummaryJson(summary).dump(2) << '\n';
    // People have read it among the rest.
    const std::string loss = LossText(summary);
    if (!options.human && !loss.empty()) err << "corvex-cli: " << options.log << ": " << loss << '\n';
    return kExitSuccess;
}

}  // namespace corvex
