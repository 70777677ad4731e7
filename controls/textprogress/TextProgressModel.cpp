#include "controls/textprogress/TextProgressModel.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace corvex {

namespace {

std::int32_t Clamped(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

}  // namespace

// Odd and wanted: the minimum is part of the range alone, it is not taken off the position.
int TextProgressModel::Length(int size) const {
    const std::int64_t range = std::int64_t{maximum} - minimum;
    return range == 0 ? 0 : Clamped(std::int64_t{size} * position / range);
}

BarPart TextProgressModel::Bar(int width, int height) const {
    if (vertical) return {0, height - std::clamp(Length(height), 0, height), width, height};
    return {0, 0, std::clamp(Length(width), 0, width), height};
}

BarPart TextProgressModel::Rest(int width, int height) const {
    const BarPart bar = Bar(width, height);
    if (vertical) return {0, 0, width, bar.top};
    return {bar.right, 0, width, height};
}

std::int32_t TextProgressModel::StepIt() {
    const std::int64_t next = std::int64_t{position} + step;
    return std::exchange(position, next > maximum ? minimum : Clamped(next));
}

}  // namespace corvex
