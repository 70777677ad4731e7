#include "apps/sim/BitToggles.h"

#include <cmath>

#include "apps/sim/Mixer.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"

namespace corvex {

BitToggles::BitToggles(const ADXDefinition& definition, std::uint32_t command, const std::vector<bool>& taken) {
    for (const auto& object : definition.Objects()) {
        const auto* bitmask = As<ADXBitmask>(object.get());
        if (bitmask == nullptr || !bitmask->BelongsTo(command)) continue;
        if (const auto bytes = FlagBytes::Of(*bitmask, taken.size()))
            toggles_.push_back({*bytes, bitmask->GetIdHash(), 0, 0, bytes->Touches(taken)});
    }
    FormGroups();
}

void BitToggles::FormGroups() {
    for (std::size_t i = 0; i < toggles_.size(); ++i)
        toggles_[i].group = static_cast<std::uint32_t>(i);
    for (std::size_t i = 0; i < toggles_.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (toggles_[i].group == toggles_[j].group || !toggles_[i].bytes.Share(toggles_[j].bytes)) continue;
            const std::uint32_t from = toggles_[i].group, to = toggles_[j].group;
            for (Toggle& toggle : toggles_) {
                if (toggle.group == from) toggle.group = to;
            }
        }
    }
    groups_.resize(toggles_.size());
    for (Toggle& toggle : toggles_) {
        Group& group = groups_[toggle.group];
        group.key ^= toggle.key;
        group.overValue = group.overValue || toggle.overValue;
        toggle.turn = group.turns++;
    }
}

void BitToggles::Write(std::span<std::uint8_t> packet, std::uint64_t seed, double seconds) const {
    for (const Toggle& toggle : toggles_) {
        const Group& group = groups_[toggle.group];
        // Each mask is set for one step and cleared for the next; steps are long enough for a slow poll to see.
        const double phase = FractionOf(seed, group.key);
        const double step = std::floor(seconds / (1.5 + 3.0 * phase) + 7.0 * phase);
        const std::uint32_t steps = group.turns * 2;
        const auto place = static_cast<std::uint32_t>(std::fmod(step, steps * (group.overValue ? 4.0 : 1.0)));
        if (place / 2 != toggle.turn) continue;
        toggle.bytes.Put(packet, place % 2 == 0);
    }
}

}  // namespace corvex
