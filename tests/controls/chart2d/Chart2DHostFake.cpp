#include "tests/controls/chart2d/Chart2DHostFake.h"

#include <algorithm>

namespace corvex {

void PrintTo(const Chart2DNote& note, std::ostream* out) {
    *out << note.code << " (" << note.series << ", " << note.index << ")";
}

void Chart2DHostFake::Tell(Chart2DCode code, QZChart2DSeries* series, int index) {
    const auto& all = machine->chart.series;
    const auto place = std::ranges::find_if(all, [series](const auto& one) { return one.get() == series; });
    Write({code, series == nullptr ? -1 : static_cast<int>(place - all.begin()), index});
}

std::optional<std::string> Chart2DHostFake::LabelOf(ChartLabelKind kind, const Point2D& point, QZChart2DSeries*, int) {
    return label ? label(kind, point) : std::nullopt;
}

FakeChart2D::FakeChart2D() {
    host.machine = &machine;
    host.mouse = &machine.mouse;
    machine.OnSize(650, 650);
    AddSeries(kSeriesDefaultFlags, {{-100.0F, -100.0F}, {0.0F, 0.0F}, {100.0F, 100.0F}});
    host.repaints = 0;
}

QZChart2DSeries& FakeChart2D::AddSeries(std::uint32_t flags, const std::vector<Point2D>& points) {
    QZChart2DSeries& series = *machine.AddSeries(99, false);
    series.setFlags(0, 0);
    series.setFlags(flags, 0);
    for (const Point2D& point : points)
        series.addPoint(point);
    return series;
}

Chart2DNotes FakeChart2D::Selected() const {
    Chart2DNotes selected;
    for (std::size_t i = 0; i < machine.chart.series.size(); ++i) {
        const auto& points = machine.chart.series[i]->Points();
        for (std::size_t p = 0; p < points.size(); ++p) {
            if (IsSelected(points[p])) selected.push_back({0, static_cast<int>(i), static_cast<int>(p)});
        }
    }
    return selected;
}

Chart2DNotes FakeChart2D::Click(YUpPoint place, ChartModifiers held) {
    host.notes.clear();
    machine.mouse.OnDown(place, held);
    machine.mouse.OnUp();
    return host.TakeNotes();
}

}  // namespace corvex
