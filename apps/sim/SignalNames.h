// Guesses from a value's name and unit which signal of the engine it shows.
#pragma once

#include <string_view>

#include "apps/sim/EngineModel.h"

namespace corvex {

// Kinds that nothing in the words tells are kOwn.
Signal SignalOf(std::string_view title, std::string_view units);

}  // namespace corvex
