// What may be pressed on the log's toolbar, as a function of how things stand.
#pragma once

#include <cstdint>

namespace corvex {

struct LogButtons {
    bool slider = false, play = false, record = false, stop = false, pause = false, load = false;
    bool operator==(const LogButtons&) const = default;
};

// `log` is a LogState, `connection` a ConnectionState.
LogButtons ButtonsFor(std::uint32_t log, std::uint32_t connection);

}  // namespace corvex
