#include "controls/datachart/DataChartAxis.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "controls/datachart/DataChartModel.h"

namespace corvex {

namespace {

constexpr int kWidthOfInterval = 35, kHeightOfInterval = 20;  // pixels between ticks, at least
constexpr float kFarthestPixel = 67108864.0F;                 // 2^26
constexpr int kMostDigits = 39;                               // of a float before its point

// 10 to the power e, by repeated squaring.
float PowerOfTen(int e) {
    float result = 1.0F, square = 10.0F;
    for (int left = std::abs(e); left != 0; left >>= 1) {
        if ((left & 1) != 0) result = result * square;
        square = square * square;
    }
    return e < 0 ? 1.0F / result : result;
}

// Before the point, the sign included.
int DigitsOf(float value) {
    const float whole = std::floor(std::fabs(value));
    const int digits = whole >= 1.0F && std::isfinite(whole)
                           ? std::abs(static_cast<int>(std::log10(static_cast<double>(whole)))) + 1
                       : std::isinf(whole) ? kMostDigits
                                           : 1;
    return digits + (value < 0.0F ? 1 : 0);
}

std::string Printed(float value, int decimals) {
    char text[128];
    const int length = std::snprintf(text, sizeof text, "%.*f", decimals, static_cast<double>(value));
    return {text, static_cast<std::size_t>(length)};
}

int Truncated(float pixels) {
    return static_cast<int>(std::clamp(pixels, -kFarthestPixel, kFarthestPixel));
}

// The lowest multiple of the step that is not below the minimum. Also ends where a step is too small to be seen.
float FirstTick(float min, float step) {
    if (step == 0.0F) return min;
    float tick = std::trunc(min / step) * step;
    if (min > 0.0F) {
        while (tick < min && tick + step != tick)
            tick = tick + step;
        return tick;
    }
    while (tick > min && tick - step != tick)
        tick = tick - step;
    return tick != min ? tick + step : tick;
}

}  // namespace

void DataChartAxis::setTitle(const char* text, std::uint32_t length) {
    if (text == nullptr) return title_.clear();
    title_.assign(text, length);
}

std::uint32_t DataChartAxis::getTitle(char* buffer, std::uint32_t capacity) const {
    return CopyChartText(title_, buffer, capacity);
}

void DataChartAxis::setRange(float min, float max) {
    min_ = min;
    max_ = max;
}

void DataChartAxis::setLimits(float low, float high) {
    lowLimit_ = low;
    highLimit_ = high;
}

void DataChartAxis::Follow(float value) {
    if (!Has(kAxisAutoScroll)) return;
    const float margin = (max_ - min_) * (static_cast<float>(scrollPercent) / 100.0F);
    if (value > max_) {
        const float shift = value - max_ + margin;
        owner_.MarkLayoutDue();
        setRange(min_ + shift, max_ + shift);
        setLimits(lowLimit_, max_);
    } else if (value < min_) {
        const float shift = min_ - value + margin;
        owner_.MarkLayoutDue();
        setRange(min_ - shift, max_ - shift);
        setLimits(min_, highLimit_);
    }
}

int DataChartAxis::PixelOf(float value) const {
    const bool horizontal = IsHorizontal(position_);
    const int low = horizontal ? plot.left : plot.bottom;
    const int extent = horizontal ? plot.right - plot.left : plot.top - plot.bottom;
    if (max_ == min_) return low;
    const float pixels = (value - min_) / (max_ - min_) * static_cast<float>(extent);
    return std::isnan(pixels) ? low : low + Truncated(pixels);
}

int DataChartAxis::Span() const {
    return std::abs(IsHorizontal(position_) ? plot.right - plot.left : plot.bottom - plot.top);
}

void DataChartAxis::CalculateTicks() {
    const int intervals = std::max(1, Span() / (IsHorizontal(position_) ? kWidthOfInterval : kHeightOfInterval));
    const float raw = (max_ - min_) / static_cast<float>(intervals);
    if (raw > 0.0F && std::isfinite(raw)) {
        const int exponent = static_cast<int>(std::floor(std::log10(static_cast<double>(raw))));
        const float base = PowerOfTen(exponent);
        const int decimals = exponent < 0 ? -exponent : 0;
        const auto take = [&](float factor, int places) {
            if (!(raw <= factor * base)) return false;
            step_ = factor * base;
            decimals_ = static_cast<std::uint8_t>(places);
            return true;
        };
        take(1.0F, decimals) || take(2.0F, decimals) || take(5.0F, decimals) || take(10.0F, std::max(0, decimals - 1));
    }
    firstTick_ = FirstTick(min_, step_);
}

// Sums up, as the step is added. A step that was kept from another range may be far too small for this one.
std::vector<float> DataChartAxis::Ticks() const {
    std::vector<float> ticks;
    const auto most = static_cast<std::size_t>(Span()) + 1;
    float tick = firstTick_;
    while (tick < max_ && ticks.size() < most) {
        ticks.push_back(tick);
        if (tick + step_ == tick) break;
        tick = tick + step_;
    }
    return ticks;
}

std::string DataChartAxis::LabelOf(float value, void* chart) const {
    if (!Has(kAxisFormatter) || formatter == nullptr) return Printed(value, decimals_).substr(0, kLabelCapacity);
    char text[kLabelCapacity] = {};
    std::uint32_t length = sizeof text;
    formatter(chart, *this, value, text, &length);
    return {text, std::min(length, kLabelCapacity)};
}

std::string DataChartAxis::LongestLimit() const {
    return Printed(DigitsOf(max_) > DigitsOf(min_) ? max_ : min_, decimals_);
}

}  // namespace corvex
