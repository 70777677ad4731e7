#include "apps/sim/CommandMatcher.h"

#include <algorithm>
#include <utility>

namespace corvex {

CommandMatcher::CommandMatcher(std::vector<std::vector<std::uint8_t>> patterns) : patterns_(std::move(patterns)) {}

std::optional<std::size_t> CommandMatcher::Take(bool paused) {
    while (!pending_.empty()) {
        std::optional<std::size_t> found;
        bool mayGrow = false;
        for (std::size_t i = 0; i < patterns_.size(); ++i) {
            const auto& pattern = patterns_[i];
            const std::size_t common = std::min(pattern.size(), pending_.size());
            if (common == 0 ||
                !std::equal(pattern.begin(), pattern.begin() + static_cast<std::ptrdiff_t>(common), pending_.begin())) {
                continue;
            }
            if (pattern.size() > pending_.size()) {
                mayGrow = true;
            } else if (!found || pattern.size() > patterns_[*found].size()) {
                found = i;
            }
        }
        if (mayGrow && !paused) return std::nullopt;
        const std::size_t used = found ? patterns_[*found].size() : 1;
        pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(used));
        if (found) return found;
    }
    return std::nullopt;
}

}  // namespace corvex
