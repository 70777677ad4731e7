// One linear axis of a strip chart: what it shows, how it scrolls, where its ticks lie.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvex {

class DataChartModel;
class DataChartAxis;

// In pixels of the chart's client area. The right and the lower edge are the first pixels beyond.
struct ChartArea {
    int left = 0, top = 0, right = 0, bottom = 0;
};

enum DataChartAxisFlag : std::uint32_t {
    kAxisAutoScroll = 0x10,  // a sample beyond the visible range moves the range
    kAxisFormatter = 0x20,   // labels come from the formatter, if there is one
    kAxisMarker = 0x40,      // a line is drawn at the marker value
};

enum class AxisPosition : std::uint32_t { kLeft = 0, kRight = 1, kTop = 2, kBottom = 3 };

constexpr bool IsHorizontal(AxisPosition position) {
    return position == AxisPosition::kTop || position == AxisPosition::kBottom;
}

// Writes a label for the value to the buffer. `length` is the buffer's capacity before and the text's length after.
// `chart` is the chart's window handle.
using AxisFormatter = void (*)(void* chart, const DataChartAxis& axis, float value, char* buffer,
                               std::uint32_t* length);

// Belongs to its chart, on whose thread alone it is used. Who changes a public field has the chart laid out or painted.
class DataChartAxis {
public:
    static constexpr std::uint32_t kLabelCapacity = 30;

    explicit DataChartAxis(DataChartModel& owner) : owner_(owner) {}

    // Exactly `length` bytes; null for none.
    void setTitle(const char* text, std::uint32_t length);
    // As much as fits beside the terminator; its length.
    std::uint32_t getTitle(char* buffer, std::uint32_t capacity) const;
    const std::string& Title() const { return title_; }
    void setRange(float min, float max);
    void setLimits(float low, float high);
    void setPosition(AxisPosition position) { position_ = position; }
    AxisPosition Position() const { return position_; }
    bool Has(DataChartAxisFlag flag) const { return (flags & flag) != 0; }

    float Minimum() const { return min_; }
    float Maximum() const { return max_; }
    // The whole extent that was visited. No drawing uses it.
    float LowLimit() const { return lowLimit_; }
    float HighLimit() const { return highLimit_; }

    // A sample came: a range that scrolls follows it by the overshoot and the margin, and the chart's layout is due.
    void Follow(float value);

    // A value on the plot that the axis was laid out for; far values stop at 2^26 pixels, NaN lies on the low edge.
    int PixelOf(float value) const;
    // Step, first tick and decimals for the visible range on that plot.
    void CalculateTicks();
    // From the first one up, below the maximum. At most one for each pixel.
    std::vector<float> Ticks() const;
    std::string LabelOf(float value, void* chart) const;
    // The visible limit that prints longer, in the decimals of the last calculation.
    std::string LongestLimit() const;

    std::uint32_t flags = 0;
    std::uint32_t textColour = 0x000000, lineColour = 0x000000;  // 0x00BBGGRR
    float marker = 0.0F;
    std::uint8_t scrollPercent = 15;
    AxisFormatter formatter = nullptr;

    // Of the last layout.
    ChartArea plot;
    int offset = 0;              // pixels of the axes between this one and the plot
    std::uint8_t thickness = 0;  // a wider band wraps; saved charts look as they do by it

private:
    int Span() const;

    DataChartModel& owner_;
    std::string title_;
    AxisPosition position_ = AxisPosition::kLeft;
    float min_ = 0.0F, max_ = 255.0F, lowLimit_ = 0.0F, highLimit_ = 255.0F;
    float step_ = 0.0F, firstTick_ = 0.0F;
    std::uint8_t decimals_ = 2;
};

}  // namespace corvex
