// How the session stands with the line.
#pragma once

#include <cstdint>

namespace corvex {

// The numbers are fixed: status texts and buttons test them.
enum ConnectionState : std::uint32_t {
    kConnected = 0,     // at least one good reply on this scan
    kConnecting = 1,    // the port is open, no good reply yet; or its device has vanished and is waited for
    kNotConnected = 2,  // nothing runs
    kLogPaused = 3,     // playback paused
};

}  // namespace corvex
