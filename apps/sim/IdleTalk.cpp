#include "apps/sim/IdleTalk.h"

#include <algorithm>

#include "apps/sim/Mixer.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXDefinition.h"

namespace corvex {

namespace {

constexpr double kLongestGap = 2.0;
constexpr std::uint32_t kFollowers = 8;  // one reply in so many has a frame behind it

}  // namespace

IdleTalk::IdleTalk(const ADXDefinition& definition, const SimOptions& options)
    : frames_(options.chatter), drawn_(Mix(options.seed, 0xC4A77E2)) {
    for (const auto& object : definition.Objects()) {
        if (const auto* silence = As<ADXCListenSilence>(object.get()))
            quiet_ = std::max(quiet_, std::min(2.0 * silence->silencelen / 1000.0, kLongestGap));
        const auto* listen = options.silent ? nullptr : As<ADXCListenChatter>(object.get());
        if (listen == nullptr || listen->size() == 0) continue;
        patterns_.emplace_back(listen->bytestring(), listen->bytestring() + listen->size());
        period_ = std::min(period_, listen->listentimeout / 4000.0);
    }
    period_ = std::max(period_, 0.02);
}

double IdleTalk::NextGap(bool afterReply) {
    if (!frames_) return std::max(quiet_, period_);
    if (afterReply && Below(kFollowers) == 0) {
        frameNext_ = true;
        return 0.0;
    }
    return quiet_ + 0.01 + 0.001 * Below(50);
}

std::vector<std::uint8_t> IdleTalk::NextTalk() {
    const bool frame = frames_ && (patterns_.empty() || frameNext_);
    frameNext_ = frames_ && !frame;
    if (!frame) return patterns_[next_++ % patterns_.size()];
    // A frame as modules of the time send it: who, how long, what, and a sum of 0.
    std::vector<std::uint8_t> bytes(5 + Below(6));
    bytes[0] = static_cast<std::uint8_t>(0x40 + Below(4));
    bytes[1] = static_cast<std::uint8_t>(0x52 + bytes.size());
    std::uint32_t sum = bytes[0] + std::uint32_t{bytes[1]};
    for (std::size_t i = 2; i + 1 < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(Below(256));
        sum += bytes[i];
    }
    bytes.back() = static_cast<std::uint8_t>(0U - sum);
    return bytes;
}

}  // namespace corvex
