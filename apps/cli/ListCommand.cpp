#include <nlohmann/json.hpp>
#include <ostream>

#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/DefinitionJson.h"
#include "apps/cli/DefinitionText.h"
#include "definition/ADXDefinition.h"

namespace corvex {

ExitCode RunList(const ListOptions& options, std::ostream& out, std::ostream& err) {
    ADXDefinition definition;
    if (!LoadDefinition(definition, options.file, err)) return kExitFailure;
    if (options.json)
        out << DefinitionJson(definition).dump(2) << '\n';
    else
        out << DefinitionText(definition);
    return kExitSuccess;
}

}  // namespace corvex
