// Other processes, by the number that the system gives them.
#pragma once

#include <cstdint>

namespace corvex {

// Does a process of this number run? True too where the system won't say. Any thread.
bool ProcessRuns(std::uint32_t id);

}  // namespace corvex
