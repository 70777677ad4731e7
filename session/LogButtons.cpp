#include "session/LogButtons.h"

#include "logging/DataLogEngine.h"
#include "session/ConnectionState.h"

namespace corvex {

namespace {

constexpr LogButtons kPlaying{.slider = true, .stop = true, .pause = true};
constexpr LogButtons kPaused{.slider = true, .play = true, .stop = true};
constexpr LogButtons kRecording{.stop = true};

// Nothing runs; a recording needs a line that answers.
constexpr LogButtons Idle(bool connected) {
    return {.play = true, .record = connected, .load = true};
}

}  // namespace

LogButtons ButtonsFor(std::uint32_t log, std::uint32_t connection) {
    switch (log) {
        case kLogPlaying:
            return kPlaying;
        case kLogRecording:
            return kRecording;
        case kLogReady:
            return connection == kLogPaused ? kPaused : Idle(connection == kConnected);
        case kLogClosed:
            return Idle(connection == kConnected);
        case kLogStopRequested:
            return Idle(false);
        default:
            return {};
    }
}

}  // namespace corvex
