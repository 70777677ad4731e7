// The behaviour of a 3-D chart without a window.
#pragma once

#include <ostream>

#include "controls/chart3d/Chart3DMachine.h"
#include "tests/controls/chart/ChartHostFake.h"

namespace corvex {

struct Chart3DNote {
    std::uint32_t code;
    int plot, row, column;  // the plot by its place in the chart; -1 for none
    friend bool operator==(const Chart3DNote&, const Chart3DNote&) = default;
};
void PrintTo(const Chart3DNote& note, std::ostream* out);
using Chart3DNotes = std::vector<Chart3DNote>;

class Chart3DHostFake final : public ChartHostFake<IChart3DHost, Chart3DNote> {
public:
    void Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) override;
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot, int row,
                                       int column) override;

    Chart3DMachine* machine = nullptr;
    std::function<std::optional<std::string>(ChartLabelKind kind, const Point3D& point)> label;
};

// A chart whose box lies before the eye, unturned: a point stands on the screen where its x and its height say. It has
// one plot of 2 rows and 3 columns, at x 50, 100 and 150, depth 0 and 100, and height 20 and 120.
struct FakeChart {
    FakeChart();

    QZChart3DPlot& AddPlot(std::uint32_t flags, int rows, int columns);
    QZChart3DPlot& Plot(std::size_t index = 0) { return *machine.chart.plots[index]; }
    // The selected points of all plots, as notes of no code.
    Chart3DNotes Selected() const;
    Chart3DNotes Click(YUpPoint place, ChartModifiers held = {});  // pressed and released
    void Press(Chart3DKey key) { machine.keys.OnDown(key); }

    Chart3DHostFake host;
    Chart3DMachine machine{host};
};

}  // namespace corvex
