// Chooses items of a definition by a pattern.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace corvex {

class ADXDefinition;
class ADXObject;

// True when the whole text matches: '*' stands for any characters, '?' for one (of UTF-8); letters a to z match in
// either case. Takes time in proportion to the lengths' product at most.
bool MatchesPattern(std::string_view pattern, std::string_view text);

// True when the item's title or its id matches one of the patterns: a line each, or between commas. A line that matches
// with its commas counts too. No patterns match every item.
bool ItemMatches(const std::string& patterns, const ADXObject& item);

// The values and bitmasks of a definition that match, found once.
class ItemChoice {
public:
    ItemChoice(const ADXDefinition& definition, const std::string& patterns);
    bool Has(const ADXObject& item) const { return items_.contains(&item); }
    std::size_t Count() const { return items_.size(); }

private:
    std::unordered_set<const ADXObject*> items_;
};

}  // namespace corvex
