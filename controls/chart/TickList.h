// The ticks of one axis of a chart: values with their labels, set one by one or spread evenly over a range.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "controls/chart/ChartTerms.h"

namespace corvex {

struct TickEntry {
    float value = 0.0F;
    std::string label;  // at most TickList::kLabelLength bytes
};

// One for each axis, on the thread of the chart's window.
class TickList {
public:
    static constexpr std::size_t kLabelLength = 40;
    static constexpr std::size_t kMaxTicks = 65536;
    // The label of a value; nothing where the chart is to write the number itself.
    using Labeller = std::function<bool(float value, std::string& label)>;

    std::size_t Count() const { return ticks_.size(); }
    const std::vector<TickEntry>& All() const { return ticks_; }
    // Null out of range.
    const TickEntry* At(std::size_t index) const { return index < ticks_.size() ? &ticks_[index] : nullptr; }

    // Those that are new hold 0 and no text. Nothing changes beyond kMaxTicks and for want of memory.
    void SetCount(std::size_t count);
    // Out of range it is ignored.
    void Set(std::size_t index, float value, std::string_view label);
    void Clear() { ticks_.clear(); }
    // `count` ticks from one end of the range to the other; one of a count of 1 stands at the minimum. None of a count
    // below 1, or beyond kMaxTicks.
    void Spread(int count, ChartRange range, const Labeller& labeller);

private:
    std::vector<TickEntry> ticks_;
};

// How many ticks an axis of that many pixels has room for; 0 for no spacing.
int TicksOf(float pixels, int spacing);

}  // namespace corvex
