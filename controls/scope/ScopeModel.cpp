#include "controls/scope/ScopeModel.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "controls/chart/ChartTerms.h"

namespace corvex {

namespace {

constexpr int kLeft = 50, kTop = 10, kRight = 10, kBottom = 25;  // margins
constexpr int kDigitWidth = 6, kLabelGap = 4, kTextHeight = 14;

// Of the whole part, less one; of a number without one, of the zeros before its first digit.
int DigitsOf(double limit) {
    const double power = std::log10(std::fabs(limit));
    return std::isfinite(power) ? std::abs(static_cast<int>(power)) : 0;
}

// Of a double's largest number and kMaxDecimals there are fewer characters.
std::string LimitText(double limit, int decimals) {
    char text[400];
    const int length = std::snprintf(text, sizeof text, "%.*f", decimals, limit);
    return {text, static_cast<std::size_t>(std::max(length, 0))};
}

template <class Number>
double ReadAs(const std::uint8_t* bytes) {
    Number number{};
    std::memcpy(&number, bytes, sizeof number);
    return static_cast<double>(number);
}

}  // namespace

void ScopeModel::SetClient(int width, int height) {
    client_ = {0, 0, width, height};
    plot_ = {kLeft, kTop, width - kRight, height - kBottom};
}

void ScopeModel::SetYRange(double maximum, double minimum) {
    yMaximum_ = maximum;
    yMinimum_ = minimum;
}

void ScopeModel::SetDecimals(std::int32_t decimals) {
    decimals_ = std::clamp(decimals, 0, kMaxDecimals);
}

std::uint32_t ScopeModel::VisibleSamples() const {
    return static_cast<std::uint32_t>(std::max(plot_.Width(), 0)) / step_;
}

ScopeFrame ScopeModel::LayOut() {
    const int digits = std::max(DigitsOf(yMaximum_), DigitsOf(yMinimum_));
    plot_.left = client_.left + (digits + 4 + decimals_) * kDigitWidth;
    ScopeFrame frame{client_, plot_, {}, {}};
    for (const int quarter : {1, 2, 3}) {
        if (hasMidlines) frame.midlines.push_back(plot_.top + plot_.Height() * quarter / 4);
    }
    AddLabels(frame);
    history_.SetCapacity(plot_.Height() > 0 ? VisibleSamples() : 0);
    return frame;
}

void ScopeModel::AddLabels(ScopeFrame& frame) const {
    const int middle = (plot_.left + plot_.right) / 2, below = plot_.bottom + kLabelGap;
    const std::int64_t last = std::int64_t{VisibleSamples()} + start;
    frame.labels = {
        {LimitText(yMaximum_, decimals_), {plot_.left - kLabelGap, plot_.top}, ScopeTextAlign::kBelowRight},
        {LimitText(yMinimum_, decimals_), {plot_.left - kLabelGap, plot_.bottom}, ScopeTextAlign::kBaselineRight},
        {NumberText(start), {plot_.left, below}, ScopeTextAlign::kBelowLeft},
        {NumberText(last), {plot_.right, below}, ScopeTextAlign::kBelowRight},
        {xLabel, {middle, below}, ScopeTextAlign::kBelowCentred},
        {yLabel,
         {(client_.left + plot_.left - kTextHeight) / 2, (plot_.top + plot_.bottom) / 2},
         ScopeTextAlign::kTurned},
    };
}

// As 32 bits, which a number beyond them wraps to.
std::string ScopeModel::NumberText(std::int64_t number) const {
    char text[16];
    const auto bits = static_cast<std::uint32_t>(number);
    const int length = isHexadecimal ? std::snprintf(text, sizeof text, "%X", bits)
                                     : std::snprintf(text, sizeof text, "%d", static_cast<std::int32_t>(bits));
    return {text, static_cast<std::size_t>(std::max(length, 0))};
}

// A value or a range that is no number, or a huge one, is beyond an edge.
int ScopeModel::HeightOf(double value) const {
    const double span = yMaximum_ - yMinimum_;
    if (span == 0.0) return plot_.bottom - plot_.Height() / 2;
    const double pixelsPerUnit = plot_.Height() / span;
    return plot_.bottom - SaturatedPixel((value - yMinimum_) * pixelsPerUnit);
}

std::optional<ScopeStroke> ScopeModel::AddSample(double sample) {
    history_.Add(sample);
    const ScopeStroke stroke = StrokeTo(sample);
    if (!isLive || history_.Capacity() == 0) return std::nullopt;
    return stroke;
}

ScopeStroke ScopeModel::StrokeTo(double sample) {
    if (!hasPrevious_) previous_ = sample;
    hasPrevious_ = true;
    const double step = step_;
    const int half = SaturatedPixel(step_ / 2), oneAndAHalf = SaturatedPixel(step + step_ / 2);
    ScopeStroke stroke;
    stroke.shift = SaturatedPixel(step);
    stroke.stripLeft = plot_.right - oneAndAHalf;
    stroke.from = {stroke.stripLeft, HeightOf(previous_)};
    stroke.to = {plot_.right - half, HeightOf(sample)};
    previous_ = sample;
    return stroke;
}

std::vector<ScopeStroke> ScopeModel::Replay() {
    std::vector<ScopeStroke> strokes;
    if (!isLive) return strokes;
    hasPrevious_ = false;
    for (std::size_t i = 0; i < history_.Count(); ++i)
        strokes.push_back(StrokeTo(history_.At(i)));
    return strokes;
}

std::vector<ScopePoint> ScopeModel::StaticTrace() const {
    std::vector<ScopePoint> points;
    if (history_.Capacity() == 0) return points;
    const std::uint32_t last = VisibleSamples();
    for (std::uint32_t i = 0; i <= last; ++i) {
        points.push_back({plot_.left + static_cast<int>(step_ * i), HeightOf(StaticValue(i))});
    }
    return points;
}

double ScopeModel::StaticValue(std::size_t index) const {
    const std::int64_t offset = static_cast<std::int64_t>(index) * sampleWidth + start;
    // Before the data is beyond them too.
    const bool isWithin = data != nullptr && static_cast<std::uint64_t>(offset) < dataSize &&
                          dataSize - static_cast<std::uint64_t>(offset) >= sampleWidth;
    if (!isWithin) return 0.0;
    const std::uint8_t* const bytes = data + offset;
    switch (sampleWidth) {
        case 1:
            return *bytes;
        case 2:
            return ReadAs<std::uint16_t>(bytes);
        case 4:
            return ReadAs<float>(bytes);
        default:
            return 0.0;
    }
}

}  // namespace corvex
