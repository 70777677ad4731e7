#include "tests/controls/chart3d/Chart3DHostFake.h"

#include <algorithm>

namespace corvex {

void PrintTo(const Chart3DNote& note, std::ostream* out) {
    *out << note.code << " (" << note.plot << ", " << note.row << ", " << note.column << ")";
}

void Chart3DHostFake::Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) {
    const auto& plots = machine->chart.plots;
    const auto place = std::ranges::find_if(plots, [plot](const auto& one) { return one.get() == plot; });
    Write({code, plot == nullptr ? -1 : static_cast<int>(place - plots.begin()), row, column});
}

std::optional<std::string> Chart3DHostFake::LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot*, int,
                                                    int) {
    return label ? label(kind, point) : std::nullopt;
}

FakeChart::FakeChart() {
    host.machine = &machine;
    host.mouse = &machine.mouse;
    machine.chart.width = machine.chart.height = 255;
    machine.SetRotation({}, false);
    machine.SetTranslation({}, false);
    AddPlot(kPlotDragHeight | kPlotBand, 2, 3);
}

QZChart3DPlot& FakeChart::AddPlot(std::uint32_t flags, int rows, int columns) {
    QZChart3DPlot& plot = *machine.AddPlot(99, false);
    plot.setFlags(0, 0);
    plot.setFlags(flags, 0);
    plot.setGridSize(rows, columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            plot.At(row, column) = {50.0F * static_cast<float>(column + 1), 100.0F * static_cast<float>(row),
                                    100.0F * static_cast<float>(row) + 20.0F};
    }
    return plot;
}

Chart3DNotes FakeChart::Selected() const {
    Chart3DNotes selected;
    for (std::size_t i = 0; i < machine.chart.plots.size(); ++i) {
        const QZChart3DPlot& plot = *machine.chart.plots[i];
        for (int row = 0; row < plot.Rows(); ++row) {
            for (int column = 0; column < plot.Columns(); ++column) {
                if (IsSelected(plot.At(row, column))) selected.push_back({0, static_cast<int>(i), row, column});
            }
        }
    }
    return selected;
}

Chart3DNotes FakeChart::Click(YUpPoint place, ChartModifiers held) {
    host.notes.clear();
    machine.mouse.OnDown(place, held);
    machine.mouse.EndGesture();
    return host.TakeNotes();
}

}  // namespace corvex
