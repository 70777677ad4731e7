#include "apps/sim/BitToggles.h"

#include <algorithm>
#include <cmath>

#include "apps/sim/EngineModel.h"
#include "apps/sim/FieldWriter.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"

namespace corvex {

namespace {

constexpr std::uint32_t LowestBit(std::uint32_t word) {
    return word & (0U - word);
}

}  // namespace

BitToggles::BitToggles(const ADXDefinition& definition, std::uint32_t command, const std::vector<bool>& taken) {
    for (const auto& object : definition.Objects()) {
        const auto* bitmask = As<ADXBitmask>(object.get());
        if (bitmask == nullptr || !bitmask->BelongsTo(command)) continue;
        Toggle toggle{};
        if (!Prepare(*bitmask, toggle)) continue;
        if (std::uint64_t{toggle.offset} + toggle.count > taken.size()) continue;
        for (std::uint32_t i = 0; i < toggle.count; ++i) {
            if (toggle.mask[i] != 0 && taken[toggle.offset + i]) toggle.overValue = true;
        }
        toggles_.push_back(toggle);
    }
    FormGroups();
}

// False for a mask that is always set, or never, or has no bytes.
bool BitToggles::Prepare(const ADXBitmask& bitmask, Toggle& toggle) {
    toggle.count = FieldBytes(bitmask.sizeinbits);
    if (toggle.count < 1 || toggle.count > 4) return false;
    toggle.offset = bitmask.packetoffset;
    toggle.key = bitmask.GetIdHash();
    const std::uint32_t all = toggle.count == 4 ? 0xFFFFFFFFU : (1U << (8 * toggle.count)) - 1;
    std::uint32_t mask = 0, set = 0, clear = 0;
    if (bitmask.bitop == ADXBitmask::kAnd) {
        mask = bitmask.operand & all;
        set = bitmask.result;
        if (mask == 0 || (bitmask.result & ~mask) != 0) return false;
        clear = set ^ LowestBit(mask);
    } else if (bitmask.bitop == ADXBitmask::kXor) {
        mask = all;
        set = bitmask.operand ^ bitmask.result;
        if ((set & ~all) != 0) return false;
        clear = set ^ LowestBit((bitmask.operand & all) != 0 ? bitmask.operand & all : 1U);
    } else {
        return false;
    }
    const bool lowByteFirst = bitmask.IsLowByteFirst();
    WriteField(toggle.mask.data(), mask, bitmask.sizeinbits, lowByteFirst);
    WriteField(toggle.set.data(), set, bitmask.sizeinbits, lowByteFirst);
    WriteField(toggle.clear.data(), clear, bitmask.sizeinbits, lowByteFirst);
    return true;
}

bool BitToggles::Share(const Toggle& a, const Toggle& b) {
    const std::uint32_t first = std::max(a.offset, b.offset);
    const std::uint32_t past = std::min(a.offset + a.count, b.offset + b.count);
    for (std::uint32_t i = first; i < past; ++i) {
        if ((a.mask[i - a.offset] & b.mask[i - b.offset]) != 0) return true;
    }
    return false;
}

void BitToggles::FormGroups() {
    for (std::size_t i = 0; i < toggles_.size(); ++i)
        toggles_[i].group = static_cast<std::uint32_t>(i);
    for (std::size_t i = 0; i < toggles_.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (toggles_[i].group == toggles_[j].group || !Share(toggles_[i], toggles_[j])) continue;
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

void BitToggles::Write(std::span<std::uint8_t> packet, const EngineModel& model, double seconds) const {
    for (const Toggle& toggle : toggles_) {
        const Group& group = groups_[toggle.group];
        // Each mask is set for one step and cleared for the next; steps are long enough for a slow poll to see.
        const double phase = model.Fraction(group.key);
        const double step = std::floor(seconds / (1.5 + 3.0 * phase) + 7.0 * phase);
        const std::uint32_t steps = group.turns * 2;
        const auto place = static_cast<std::uint32_t>(std::fmod(step, steps * (group.overValue ? 4.0 : 1.0)));
        if (place / 2 != toggle.turn) continue;
        const auto& word = place % 2 == 0 ? toggle.set : toggle.clear;
        for (std::uint32_t i = 0; i < toggle.count; ++i) {
            std::uint8_t& byte = packet[toggle.offset + i];
            byte = static_cast<std::uint8_t>((byte & ~toggle.mask[i]) | (word[i] & toggle.mask[i]));
        }
    }
}

}  // namespace corvex
