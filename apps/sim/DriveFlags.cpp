#include "apps/sim/DriveFlags.h"

#include <algorithm>
#include <cmath>

#include "apps/sim/Mixer.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"

namespace corvex {

DriveFlags::DriveFlags(const ADXDefinition& definition, std::uint32_t command, const std::vector<bool>& taken) {
    for (const auto& object : definition.Objects()) {
        const auto* bitmask = As<ADXBitmask>(object.get());
        if (bitmask == nullptr || !bitmask->BelongsTo(command)) continue;
        const auto bytes = FlagBytes::Of(*bitmask, taken.size());
        if (!bytes || bytes->Touches(taken)) continue;
        flags_.push_back({*bytes, ConditionOf(bitmask->Title(), bitmask->TrueString())});
    }
    // The known ones last, so that they hold where an unknown one shares their bits.
    std::stable_partition(flags_.begin(), flags_.end(), [](const Flag& flag) { return !flag.shown; });
    FormSelectors();
}

void DriveFlags::FormSelectors() {
    for (Flag& flag : flags_) {
        if (flag.shown) continue;
        const auto same = std::ranges::find_if(
            flags_, [&](const Flag& other) { return &other == &flag || other.bytes.Share(flag.bytes); });
        if (&*same == &flag) {
            flag.selector = static_cast<std::uint32_t>(settings_.size());
            settings_.push_back(0);
        } else {
            flag.selector = same->selector;
        }
        flag.setting = settings_[flag.selector]++;
    }
}

void DriveFlags::Write(std::span<std::uint8_t> packet, const EngineState& state, std::uint64_t seed,
                       double seconds) const {
    for (const Flag& flag : flags_) {
        if (flag.shown) {
            flag.bytes.Put(packet, state.Is(flag.shown->condition) == flag.shown->setWhenItHolds);
            continue;
        }
        const double period = 20 + 30 * FractionOf(seed, flag.selector);
        const std::uint32_t turns = std::max(settings_[flag.selector], 2U);
        const double turn = std::fmod(std::floor(seconds / period), static_cast<double>(turns));
        const bool isSet = static_cast<std::uint32_t>(turn) == flag.setting;
        if (isSet || settings_[flag.selector] == 1) flag.bytes.Put(packet, isSet);
    }
}

}  // namespace corvex
