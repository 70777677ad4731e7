// What the user asked for while a log was still coming to rest.
#pragma once

#include <utility>
#include <vector>

namespace corvex {

enum class LogWish { kPlay, kRecord };

// In the order of the asking. Asked twice in a row is asked once: a key that is held down asks for no more than that.
// Main thread.
class LogWishes {
public:
    void Add(LogWish wish) {
        if (waiting_.empty() || waiting_.back() != wish) waiting_.push_back(wish);
    }
    // Takes the last wish back when it is this one; false when it is not.
    bool TakeBack(LogWish wish) {
        if (waiting_.empty() || waiting_.back() != wish) return false;
        waiting_.pop_back();
        return true;
    }
    void Clear() { waiting_.clear(); }
    std::vector<LogWish> TakeAll() { return std::exchange(waiting_, {}); }

private:
    std::vector<LogWish> waiting_;
};

}  // namespace corvex
