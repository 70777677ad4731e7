// A window for the behaviour of a 3-D chart, without a system under it: it paints nothing and writes down what it is
// told.
#pragma once

#include <functional>
#include <ostream>
#include <utility>
#include <vector>

#include "controls/chart3d/Chart3DMachine.h"

namespace corvex {

struct Chart3DNote {
    std::uint32_t code;
    int plot, row, column;  // the plot by its place in the chart; -1 for none
    friend bool operator==(const Chart3DNote&, const Chart3DNote&) = default;
};
void PrintTo(const Chart3DNote& note, std::ostream* out);
using Chart3DNotes = std::vector<Chart3DNote>;

class Chart3DHostFake final : public IChart3DHost {
public:
    void Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) override;
    void Repaint() override;
    void PaintSoon() override { ++soon; }
    void Capture() override { hasCapture = true; }
    // As the system does: the window hears of its loss.
    void Release() override;
    void HidePointer() override { --pointer; }
    void ShowPointer() override { ++pointer; }
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot, int row,
                                       int column) override;

    Chart3DNotes TakeNotes() { return std::exchange(notes, {}); }

    Chart3DMachine* machine = nullptr;
    std::function<void()> handler;  // of the parent's, and of whoever watches a repaint
    std::function<std::optional<std::string>(ChartLabelKind kind, const Point3D& point)> label;
    Chart3DNotes notes;
    int repaints = 0, soon = 0, pointer = 0;
    bool hasCapture = false;
};

// A chart whose box lies before the eye, unturned: a point stands on the screen where its x and its height say. It has
// one plot of 2 rows and 3 columns, at x 50, 100 and 150, depth 0 and 100, and height 20 and 120.
struct FakeChart {
    FakeChart();

    QZChart3DPlot& AddPlot(std::uint32_t flags, int rows, int columns);
    QZChart3DPlot& Plot(std::size_t index = 0) { return *machine.chart.plots[index]; }
    // The selected points of all plots, as notes of no code.
    Chart3DNotes Selected() const;
    Chart3DNotes Click(YUpPoint place, Chart3DModifiers held = {});  // pressed and released
    void Press(Chart3DKey key) { machine.keys.OnDown(key); }

    Chart3DHostFake host;
    Chart3DMachine machine{host};
};

}  // namespace corvex
