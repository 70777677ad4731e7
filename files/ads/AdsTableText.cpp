#include "files/ads/AdsTableText.h"

#include "files/ads/AdsNumber.h"
#include "files/adx/TextForms.h"

namespace corvex {
namespace {

struct Line {
    std::uint32_t index = 0;
    float number = 0.0F;
};

void FillBetween(AdsSlots& slots, const Line& from, const Line& to) {
    const Line& low = from.index < to.index ? from : to;
    const Line& high = from.index < to.index ? to : from;
    if (high.index - low.index < 2) return;
    const float step = (high.number - low.number) / static_cast<float>(high.index - low.index);
    for (std::uint32_t i = low.index + 1; i < high.index; ++i) {
        slots.Set(i, low.number + step * static_cast<float>(i - low.index));
    }
}

}  // namespace

float AdsSlots::At(std::int64_t index) const {
    return index >= 0 && index < static_cast<std::int64_t>(numbers.size()) ? numbers[static_cast<std::size_t>(index)]
                                                                           : 0.0F;
}

void AdsSlots::Set(std::uint32_t index, float number) {
    if (index >= count) return;
    if (index >= numbers.size()) numbers.resize(std::size_t{index} + 1);
    numbers[index] = number;
}

void ReadTableText(std::string_view text, bool whole, AdsSlots& slots) {
    Line previous;
    for (;;) {
        const std::size_t comma = text.find(',');
        const std::size_t end = comma != text.npos ? text.find('\n', comma) : text.npos;
        if (end == text.npos) return;
        const std::string_view number = text.substr(comma + 1, end - comma - 1);
        // A negative index is a large word, which is no slot.
        Line line{DecimalWord(text.substr(0, comma)), 0.0F};
        line.number =
            whole ? static_cast<float>(static_cast<std::int32_t>(DecimalWord(number))) : PlainDecimalFloat(number);
        text.remove_prefix(end + 1);
        if (line.index >= slots.count) {
            ++slots.droppedLines;
            continue;
        }
        slots.Set(line.index, line.number);
        if (line.index < AdsSlots::kMaskBits) slots.given.set(line.index);
        if (line.index != 0) FillBetween(slots, previous, line);
        previous = line;
    }
}

}  // namespace corvex
