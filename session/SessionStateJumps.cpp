#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kJump = 10;  // samples

}  // namespace

// Not by ten from here, but to the tenth: past it, one record on. The keys are known for it.
void SessionState::JumpForward() {
    Jump(kJump, 0);
}

// Among the first ten this wraps, and the log runs to its end.
void SessionState::JumpBackward() {
    Jump(log.sampleIndex.load(std::memory_order_relaxed) - kJump, kSeekFromStart);
}

void SessionState::MoveLogSlider(std::uint32_t position) {
    Jump(position, kSeekFromStart);
}

void SessionState::Jump(std::uint32_t target, std::uint32_t flags) {
    if (IsRefused("Jump")) return;
    if (log.Seek(target, flags) != kLogWrongState) return;
    const char* const line = "No log is open to jump in";
    if (refusals_.IsNew(line)) DebugOutput::Print(&debug, "%s", line);
}

}  // namespace corvex
