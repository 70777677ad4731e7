#include "controls/chart/ChartBlocks.h"

#include <algorithm>

#include "controls/chart/BoundedText.h"

namespace corvex {

int StoreTick(TickList& ticks, const TickBlock* tick) {
    if (tick == nullptr || ticks.At(tick->index) == nullptr) return 0;
    const auto length = std::min(std::size_t{tick->length}, TickList::kLabelLength);
    ticks.Set(tick->index, tick->value, BoundedText(tick->text, length));
    return 1;
}

int FillTick(const TickList& ticks, std::size_t index, TickBlock* tick) {
    const TickEntry* const entry = ticks.At(index);
    if (tick == nullptr || entry == nullptr) return 0;
    tick->value = entry->value;
    CopyText(entry->label, tick->text, tick->length);
    return 1;
}

}  // namespace corvex
