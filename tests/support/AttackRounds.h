// How often a storm test repeats itself.
#pragma once

#include <algorithm>
#include <cstdlib>

namespace corvex::test {

// The usual number, or so many times as many as the environment variable CORVEX_ATTACK says.
inline unsigned AttackRounds(unsigned usual) {
    const char* times = std::getenv("CORVEX_ATTACK");
    return usual * static_cast<unsigned>(std::max(1, times != nullptr ? std::atoi(times) : 1));
}

}  // namespace corvex::test
