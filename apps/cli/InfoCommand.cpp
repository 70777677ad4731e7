#include <nlohmann/json.hpp>
#include <ostream>

#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/LogSummaryText.h"
#include "definition/ADXDefinition.h"
#include "export/LogSummary.h"
#include "export/text/TextFormat.h"
#include "platform/Terminal.h"

namespace corvex {

namespace {

bool TellLog(const InfoOptions& options, const std::string& path, const ADXDefinition* names, bool human,
             std::ostream& out, std::ostream& err) {
    DataLogEngine log;
    if (!OpenLog(log, path, err)) return false;
    const LogSummary summary = SummarizeLog(log);
    const bool several = options.logs.size() > 1;
    if (human) {
        if (several) out << Utf8Text(path) << '\n';
        out << LogSummaryText(summary, names);
    } else {
        nlohmann::ordered_json json = LogSummaryJson(summary, names);
        if (several) json["file"] = Utf8Text(path);
        out << json.dump(several ? -1 : 2) << '\n';
    }
    // People have read it among the rest.
    const std::string loss = LossText(summary);
    if (!human && !loss.empty()) err << "corvex-cli: " << path << ": " << loss << '\n';
    return true;
}

}  // namespace

ExitCode RunInfo(const InfoOptions& options, std::ostream& out, std::ostream& err) {
    ADXDefinition definition;
    const bool named = !options.definition.empty();
    if (named && !LoadDefinition(definition, options.definition, err)) return kExitFailure;
    const bool human = options.human || (!options.json && OutputIsTerminal());
    bool all = true;
    for (const std::string& path : options.logs) {
        if (human && path != options.logs.front()) out << '\n';
        all = TellLog(options, path, named ? &definition : nullptr, human, out, err) && all;
    }
    return all ? kExitSuccess : kExitFailure;
}

}  // namespace corvex
