// Chooses items of a definition by a pattern.
#pragma once

#include <string>
#include <string_view>

namespace corvex {

class ADXObject;

// True when the whole text matches: '*' stands for any characters, '?' for one (of UTF-8); letters a to z match in
// either case. Takes time in proportion to the lengths' product at most.
bool MatchesPattern(std::string_view pattern, std::string_view text);

// True when the item's title or its id matches. An empty pattern matches every item.
bool ItemMatches(const std::string& pattern, const ADXObject& item);

}  // namespace corvex
