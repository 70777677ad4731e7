#include <nlohmann/json.hpp>
#include <ostream>

#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/LogSummaryText.h"
#include "definition/ADXDefinition.h"
#include "export/LogSummary.h"
#include "platform/Terminal.h"

namespace corvex {

ExitCode RunInfo(const InfoOptions& options, std::ostream& out, std::ostream& err) {
    ADXDefinition definition;
    const bool named = !options.definition.empty();
    if (named && !LoadDefinition(definition, options.definition, err)) return kExitFailure;
    DataLogEngine log;
    if (!OpenLog(log, options.log, err)) return kExitFailure;
    const LogSummary summary = SummarizeLog(log);
    const ADXDefinition* const names = named ? &definition : nullptr;
    const bool human = options.human || (!options.json && OutputIsTerminal());
    if (human)
        out << LogSummaryText(summary, names);
    else
        out << LogSummaryJson(summary, names).dump(2) << '\n';
    // People have read it among the rest.
    const std::string loss = LossText(summary);
    if (!human && !loss.empty()) err << "corvex-cli: " << options.log << ": " << loss << '\n';
    return kExitSuccess;
}

}  // namespace corvex
