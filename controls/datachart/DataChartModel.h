// What a strip chart shows: its axes and series, its title and colours, and where everything lies.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/datachart/DataChartAxis.h"
#include "controls/datachart/DataChartSeries.h"

namespace corvex {

struct ChartPoint {
    int x = 0, y = 0;
};

struct ChartLine {
    ChartPoint from, to;
};

struct ChartTextSize {
    int width = 0, height = 0;
};

enum class ChartFont {
    kOfContext,  // whatever a fresh context has
    kTitle,
    kAxisTitleTurned,
    kAxisTitle,
    kLabel,
};

// Tells how large a text is in a font, turned or not as if it were not.
class IChartTextMeasure {
public:
    virtual ~IChartTextMeasure() = default;
    virtual ChartTextSize Measure(ChartFont font, std::string_view text) const = 0;
};

struct ChartText {
    std::string text;
    ChartFont font = ChartFont::kOfContext;
    ChartPoint place;
    bool isAlignedBelow = false;  // the place is at its lower edge
};

struct ChartTick {
    ChartLine mark;
    ChartText label;
};

// One axis as it is to be drawn.
struct AxisFigure {
    std::uint32_t textColour = 0, lineColour = 0;
    std::optional<ChartText> title;
    ChartLine line;
    std::vector<ChartTick> ticks;
};

// All that does not move between samples.
struct ChartBackground {
    ChartArea client;
    std::optional<ChartText> title;
    std::vector<AxisFigure> axes;
    ChartArea plot;
};

enum DataChartColour : std::uint32_t { kChartTitleColour, kChartUnusedColour, kPlotFillColour, kPlotFrameColour };

// Copies as much of a text as fits beside its terminator; the length copied.
std::uint32_t CopyChartText(std::string_view text, char* buffer, std::uint32_t capacity);

// On the thread of the chart's window alone.
class DataChartModel {
public:
    static constexpr std::size_t kTitleLength = 150, kDrawnAxisTitleLength = 100;

    DataChartModel() = default;
    DataChartModel(const DataChartModel&) = delete;
    DataChartModel& operator=(const DataChartModel&) = delete;

    // The chart's own, until it is deleted; null for want of memory.
    DataChartSeries* AddSeries();
    DataChartAxis* AddAxis();
    // Null for an index out of range.
    DataChartSeries* Series(std::size_t index) const;
    DataChartAxis* Axis(std::size_t index) const;
    std::size_t SeriesCount() const { return series_.size(); }
    std::size_t AxisCount() const { return axes_.size(); }
    // An index out of range does nothing.
    void DeleteSeries(std::size_t index);
    // False, and the axis stays, while a series uses it. An index out of range gives true and does nothing.
    bool DeleteAxis(std::size_t index);
    void ClearSeries() { series_.clear(); }
    void ClearSamples();
    void ClearAxes();  // the series go first

    void SetTitle(std::string_view text) { title_ = text.substr(0, kTitleLength); }

    // Lays everything out for a client area from 0, 0, and calculates the axes' ticks. Null for one without pixels.
    // `chart` is what label formatters are told of it.
    std::optional<ChartBackground> LayOut(int width, int height, const IChartTextMeasure& measure, void* chart);

    // An axis has scrolled. By letter each scroll runs the layout at once; here it runs when the chart is next drawn,
    // once for however many. What the layouts between would have left behind for the last one are ticks and decimals,
    // and those are calculated still, so that the picture is the same.
    void MarkLayoutDue();
    bool IsLayoutDue() const { return isLayoutDue_; }

    // The place of an axis's marker, across the whole plot. Nothing where it is not to be drawn.
    static std::optional<ChartLine> MarkerOf(const DataChartAxis& axis);

    std::array<std::uint32_t, 4> colours{0x000000, 0xFFFFFF, 0xF0F0F0, 0x000000};  // by DataChartColour

private:
    void MeasureAxis(DataChartAxis& axis, const IChartTextMeasure& measure) const;
    ChartArea StackAxes(ChartArea plot, const IChartTextMeasure& measure);

    std::string title_;
    std::vector<std::unique_ptr<DataChartSeries>> series_;
    std::vector<std::unique_ptr<DataChartAxis>> axes_;
    bool isLayoutDue_ = false;
};

}  // namespace corvex
