// The blocks of memory in which a chart and its page hand each other ticks and the ends of ranges.
#pragma once

#include "controls/chart/TickList.h"

namespace corvex {

// One tick of an axis.
struct TickBlock {
    std::uint32_t index;
    float value;
    char* text;  // null for none
    std::uint32_t
        length;  // of the text, which ends earlier at a 0; where the chart fills it, the bytes it has room for
};

// 1; 0 for an index out of range and for null, and then nothing changes.
int StoreTick(TickList& ticks, const TickBlock* tick);
// The same for a tick to be filled, but for its index.
int FillTick(const TickList& ticks, std::size_t index, TickBlock* tick);

template <class Value>
void WriteTo(Value* target, Value value) {
    if (target != nullptr) *target = value;
}
// Where null is given, that end stays.
inline void SetEnds(ChartRange& range, const float* minimum, const float* maximum) {
    if (minimum != nullptr) range.minimum = *minimum;
    if (maximum != nullptr) range.maximum = *maximum;
}
inline void GetEnds(ChartRange range, float* minimum, float* maximum) {
    WriteTo(minimum, range.minimum);
    WriteTo(maximum, range.maximum);
}

}  // namespace corvex
