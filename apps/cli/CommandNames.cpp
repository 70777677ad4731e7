#include "apps/cli/CommandNames.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace corvex {

namespace {

constexpr std::size_t kSlips = 2;

// Letters to put in, take out or replace, two neighbours that changed places counting as one slip.
std::size_t Slips(const std::string& from, const std::string& to) {
    std::vector<std::size_t> before, above(to.size() + 1), row(to.size() + 1);
    std::iota(above.begin(), above.end(), 0);
    for (std::size_t i = 1; i <= from.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before = std::exchange(above, row);
    }
    return above.back();
}

}  // namespace

std::vector<std::string> NearNames(const std::string& typed, const std::vector<std::string>& names) {
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& name : names) {
        const std::size_t slips = typed.size() > 1 && name.starts_with(typed) ? 1 : Slips(typed, name);
        // Of a short name two slips leave nothing.
        if (slips <= kSlips && slips * 2 <= name.size() && slips < typed.size()) near.emplace_back(slips, name);
    }
    std::ranges::stable_sort(near, {}, [](const auto& entry) { return entry.first; });
    std::vector<std::string> found;
    for (auto& [slips, name] : near) {
        if (slips == near.front().first) found.push_back(std::move(name));
    }
    return found;
}

}  // namespace corvex
