// A definition as JSON.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "definition/ADXDefinition.h"

namespace corvex {

// Keys are the names of the file format where it has one. Texts are UTF-8. A link that does not resolve shows as null.
nlohmann::ordered_json HeaderJson(const ADXDefinition& definition);
nlohmann::ordered_json DefinitionJson(const ADXDefinition& definition);

}  // namespace corvex
