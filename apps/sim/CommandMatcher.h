// Finds the definition's requests in what comes off the line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace corvex {

// Bytes that can't begin a request are noise and skipped; the search always takes the leftmost place and there the
// longest request. A request that is also the beginning of a longer one is held back until the next byte, or a pause,
// tells which it was. Of two requests with the same bytes the first counts.
//
// One thread.
class CommandMatcher {
public:
    // Empty patterns are never found.
    explicit CommandMatcher(std::vector<std::vector<std::uint8_t>> patterns);

    // Takes a byte. The index of the request that is now complete, if one is: ask Next until there is none, since a
    // byte that disproves a longer request may leave another complete one behind it.
    void Feed(std::uint8_t byte) { pending_.push_back(byte); }
    std::optional<std::size_t> Next() { return Take(false); }

    // The line has paused: what is held back is decided now, and a begun request is forgotten. Ask until there is none.
    std::optional<std::size_t> NextAfterPause() { return Take(true); }
    // Bytes are held back.
    bool IsWaiting() const { return !pending_.empty(); }

private:
    std::optional<std::size_t> Take(bool paused);

    std::vector<std::vector<std::uint8_t>> patterns_;
    std::vector<std::uint8_t> pending_;  // never much longer than the longest pattern
};

}  // namespace corvex
