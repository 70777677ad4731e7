// Finds what somebody may have meant by the name of a command that there is not.
#pragma once

#include <string>
#include <vector>

namespace corvex {

// Those of `names` that a slip or two of the hand, or an end left out, makes of `typed`: the nearest, all that are
// equally near.
std::vector<std::string> NearNames(const std::string& typed, const std::vector<std::string>& names);

}  // namespace corvex
