#include "session/LogMatch.h"

#include "definition/ADXDefinition.h"
#include "logging/DataLogEngine.h"

namespace corvex {

std::string WhyLogIsNotShown(const DataLogEngine& log, const ADXDefinition& definition) {
    const std::uint32_t count = log.ItemCount();
    std::uint32_t unknown = 0;
    for (std::uint32_t i = 0; i < count; ++i)
        if (definition.FindByHash(log.GetItem(i)->commandId) == nullptr) ++unknown;
    if (unknown == 0) return {};
    if (definition.GetCount() == 0)
        return "No definition is loaded, so nothing of this log is shown: load the one that it was recorded with";
    if (unknown == count)
        return "Nothing of this log is shown, as its commands are not in the definition: load the one that it was "
               "recorded with";
    return std::to_string(unknown) + " of " + std::to_string(count) +
           " commands of this log are not in the definition, and their records are not shown";
}

}  // namespace corvex
