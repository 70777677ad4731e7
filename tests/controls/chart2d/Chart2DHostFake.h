// The behaviour of a 2-D chart without a window.
#pragma once

#include <ostream>

#include "controls/chart2d/Chart2DMachine.h"
#include "tests/controls/chart/ChartHostFake.h"

namespace corvex {

struct Chart2DNote {
    std::uint32_t code;
    int series, index;  // the series by its place in the chart; -1 for none
    friend bool operator==(const Chart2DNote&, const Chart2DNote&) = default;
};
void PrintTo(const Chart2DNote& note, std::ostream* out);
using Chart2DNotes = std::vector<Chart2DNote>;

class Chart2DHostFake final : public ChartHostFake<IChart2DHost, Chart2DNote> {
public:
    void Tell(Chart2DCode code, QZChart2DSeries* series, int index) override;
    void PlacePointer(YUpPoint place) override { placed.push_back(place); }
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point2D& point, QZChart2DSeries* series,
                                       int index) override;

    Chart2DMachine* machine = nullptr;
    std::function<std::optional<std::string>(ChartLabelKind kind, const Point2D& point)> label;
    std::vector<YUpPoint> placed;
};

// A chart of 650 by 650 pixels, on which the origin stands at 325, 325 and a unit is a pixel. It has one series with
// points at -100, 0 and 100 on both axes.
struct FakeChart2D {
    FakeChart2D();

    static YUpPoint At(int x, int y) { return {325 + x, 325 + y}; }
    QZChart2DSeries& AddSeries(std::uint32_t flags, const std::vector<Point2D>& points);
    QZChart2DSeries& Series(std::size_t index = 0) { return *machine.chart.series[index]; }
    // The selected points of all series, as notes of no code.
    Chart2DNotes Selected() const;
    Chart2DNotes Click(YUpPoint place, ChartModifiers held = {});  // pressed and released

    Chart2DHostFake host;
    Chart2DMachine machine{host};
};

}  // namespace corvex
