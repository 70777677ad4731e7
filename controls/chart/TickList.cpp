#include "controls/chart/TickList.h"

#include <algorithm>
#include <cstdio>
#include <new>

namespace corvex {

namespace {

std::string NumberLabel(float value) {
    char text[TickList::kLabelLength + 1];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(value));
    return text;
}

}  // namespace

void TickList::SetCount(std::size_t count) {
    if (count > kMaxTicks) return;
    try {
        ticks_.resize(count);
    } catch (const std::bad_alloc&) {
        return;
    }
}

void TickList::Set(std::size_t index, float value, std::string_view label) {
    if (index < ticks_.size()) ticks_[index] = {value, std::string(label.substr(0, kLabelLength))};
}

void TickList::Spread(int count, ChartRange range, const Labeller& labeller) {
    ticks_.clear();
    SetCount(static_cast<std::size_t>(std::max(count, 0)));
    // In doubles the span of no two floats overflows, nor does its multiple.
    const double minimum = static_cast<double>(range.minimum), span = static_cast<double>(range.maximum) - minimum;
    for (std::size_t i = 0; i < ticks_.size(); ++i) {
        const double part = i == 0 ? 0.0 : span * static_cast<double>(i) / static_cast<double>(count - 1);
        const float value = static_cast<float>(minimum + part);
        std::string label;
        if (!labeller || !labeller(value, label)) label = NumberLabel(value);
        Set(i, value, label);
    }
}

int TicksOf(float pixels, int spacing) {
    if (spacing <= 0 || !(pixels >= 0.0F)) return 0;
    const float count = pixels / static_cast<float>(spacing) + 1.0F;
    return static_cast<int>(std::min(count, static_cast<float>(TickList::kMaxTicks)));
}

}  // namespace corvex
