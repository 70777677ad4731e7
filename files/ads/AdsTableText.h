// The slots of a legacy lookup table and the text that fills them.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace corvex {

// One number for each raw word from 0 on. Memory grows with the highest slot that was filled, not with `count`.
struct AdsSlots {
    static constexpr std::uint32_t kMaskBits = 256;

    // The number of a slot; 0 for one that was never filled and for one past the end.
    float At(std::int64_t index) const;
    // Stores the number when the slot is there.
    void Set(std::uint32_t index, float number);
    // True for a slot that a line of the text names. Past the mask, where nobody can tell any more, every slot counts.
    bool IsGiven(std::uint32_t index) const { return index >= kMaskBits || given[index]; }
    std::uint32_t GivenCount() const {
        return static_cast<std::uint32_t>(given.count()) + (count > kMaskBits ? count - kMaskBits : 0);
    }

    std::uint32_t count = 0;
    std::vector<float> numbers;  // the first of them
    std::bitset<kMaskBits> given;
    std::uint32_t droppedLines = 0;  // whose index is no slot
};

// Fills the slots from lines of index, comma, number, each ended by a line feed; what stands behind the last line feed
// is dropped, and so is a line whose index is no slot. Slots between an index and that of the line before it are
// filled in a straight line between the two, in 32-bit floats even for whole numbers, over whatever was there; they do
// not count as given. `whole`: numbers end at their decimal point.
void ReadTableText(std::string_view text, bool whole, AdsSlots& slots);

}  // namespace corvex
