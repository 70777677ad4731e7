// The words that the charts with points to pick and drag share: ranges, and places in their space.
#pragma once

#include <cstdint>
#include <string_view>

namespace corvex {

struct ChartRange {
    float minimum = 0.0F, maximum = 255.0F;

    friend bool operator==(const ChartRange&, const ChartRange&) = default;
};

// In the flags of a point.
inline constexpr std::uint32_t kPointSelected = 1;
// In the style of a chart: painted through a bitmap.
inline constexpr std::uint32_t kChartOffscreen = 1;

// A place in logical units of one pixel each, which are counted upward from the lower edge of the client.
struct YUpPoint {
    int x = 0, y = 0;

    friend bool operator==(const YUpPoint&, const YUpPoint&) = default;
};

// Two opposite corners of an upright rectangle, in any order.
struct YUpBox {
    YUpPoint corner, opposite;
};

struct YUpSize {
    int width = 0, height = 0;
};

// Where a text stands by its place: from it to the right, up to it, or to both sides of it.
enum class TextSide { kRight, kLeft, kCentred };

// What a label is asked for, as the label callback is told.
enum ChartLabelKind : int {
    kPointLabel = 0,
    kXTickLabel = 1,
    kDepthTickLabel = 2,  // of the second axis where there are two
    kVerticalTickLabel = 4,
    kSelectionLabel = 8,
};

// Truncated toward zero, and kept to 2^26 on either side, where sums of two such still are numbers. NaN is the low
// edge.
inline int SaturatedPixel(double position) {
    constexpr double kEdge = 67108864.0;
    if (!(position > -kEdge)) return static_cast<int>(-kEdge);
    return static_cast<int>(position < kEdge ? position : kEdge);
}

// Tells how large a text is as one line in a font of the chart's.
class ITickTextMeasure {
public:
    virtual ~ITickTextMeasure() = default;
    virtual YUpSize Measure(std::string_view text) const = 0;
};

}  // namespace corvex
