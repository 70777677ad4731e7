#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kJump = 10;  // samples

}  // namespace

// Not by ten from here, but to the tenth: past it, one record on. The keys are known for it.
void SessionState::JumpForward() {
    static_cast<void>(log.Seek(kJump, 0));
}

// Among the first ten this wraps, and the log runs to its end.
void SessionState::JumpBackward() {
    static_cast<void>(log.Seek(log.sampleIndex.load(std::memory_order_relaxed) - kJump, kSeekFromStart));
}

void SessionState::MoveLogSlider(std::uint32_t position) {
    static_cast<void>(log.Seek(position, kSeekFromStart));
}

}  // namespace corvex
