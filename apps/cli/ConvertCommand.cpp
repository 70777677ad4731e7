#include "apps/cli/ConvertCommand.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "apps/cli/DefinitionChecker.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LegacyFile.h"
#include "apps/cli/TextFormat.h"
#include "definition/ADXDefinition.h"

namespace corvex {

ExitCode RunConvert(const ConvertOptions& options, std::ostream&, std::ostream& err) {
    ADXDefinition definition;
    const bool legacy = IsLegacyFile(options.input);
    if (legacy ? !ImportDefinition(definition, options.input, err) : !LoadDefinition(definition, options.input, err))
        return kExitFailure;
    const auto findings = CheckDefinition(definition, nullptr);
    if (definition.Save(options.output.c_str()) == 0) {
        err << "corvex-cli: " << options.output << ": cannot be written\n";
        return kExitFailure;
    }
    const auto lost = std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.lostonsave; });
    if (lost != 0) {
        err << "corvex-cli: " << options.output << ": " << Counted(static_cast<std::size_t>(lost), "thing")
            << " did not survive the save";
        if (!legacy) err << "; corvex-cli check " << options.input << " names them";
        err << '\n';
    }
    return kExitSuccess;
}

}  // namespace corvex
