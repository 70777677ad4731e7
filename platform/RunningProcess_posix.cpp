#include <signal.h>

#include <cerrno>
#include <limits>

#include "platform/RunningProcess.h"

namespace corvex {

bool ProcessRuns(std::uint32_t id) {
    // 0 and what would be negative are no processes, but groups of them.
    if (id == 0 || id > static_cast<std::uint32_t>(std::numeric_limits<pid_t>::max())) return true;
    return kill(static_cast<pid_t>(id), 0) == 0 || errno != ESRCH;
}

}  // namespace corvex
