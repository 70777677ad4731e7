// Random keys, clicks, drags and messages, after each of which the chart must be what the plain reference is.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "tests/controls/chart/ChartStorm.h"
#include "tests/controls/chart3d/PlainChart3D.h"

namespace corvex {
namespace {

class Storm3D : ChartStorm {
public:
    explicit Storm3D(unsigned seed) : ChartStorm(seed) {}

    // One doing to both, and what it was.
    std::string Step();
    void Compare();

private:
    float Height() { return Next(12) == 0 ? std::numeric_limits<float>::quiet_NaN() : static_cast<float>(Next(256)); }
    Point3D NextPoint();
    YUpPoint NextPlace();
    std::string Key();
    std::string Mouse();
    std::string Points();
    std::string Plots();
    std::string Message();

    FakeChart fake_;
    Chart3DMachine& real_ = fake_.machine;
    PlainChart3D plain_{fake_};
};

Point3D Storm3D::NextPoint() {
    return {static_cast<float>(Next(256)), static_cast<float>(Next(256)), Height(),
            static_cast<std::uint32_t>(Next(2))};
}

// Often on a point, or beside it.
YUpPoint Storm3D::NextPlace() {
    YUpPoint place{Next(300), Next(300)};
    if (Next(4) == 0 || plain_.plots.empty()) return place;
    PlainPlot& plot = plain_.plots[static_cast<std::size_t>(Next(static_cast<int>(plain_.plots.size())))];
    if (plot.points.empty()) return place;
    place = real_.chart.Seen()
                .Project(plot.points[static_cast<std::size_t>(Next(static_cast<int>(plot.points.size())))])
                .at;
    return {place.x + Next(9) - 4, place.y + Next(9) - 4};
}

std::string Storm3D::Key() {
    static constexpr std::uint32_t keys[] = {0x10, 0x11, 0x25, 0x26, 0x27, 0x28, 0xDB, 0xDD, 0x41};
    const std::uint32_t key = keys[Next(std::size(keys))];
    if (Next(3) == 0) {
        real_.keys.OnUp(static_cast<Chart3DKey>(key));
        plain_.KeyUp(key);
    } else {
        real_.keys.OnDown(static_cast<Chart3DKey>(key));
        plain_.Key(key);
    }
    return "key " + std::to_string(key);
}

std::string Storm3D::Mouse() {
    const int what = Next(12);
    const YUpPoint place = NextPlace();
    const bool control = Next(4) == 0, shift = Next(6) == 0;
    if (what < 3) {
        real_.mouse.OnDown(place, {control, shift});
        plain_.Down(place, control, shift);
    } else if (what == 3) {
        real_.mouse.OnDoubleClick(place, {control, shift});
        plain_.DoubleClick(place, control, shift);
    } else if (what < 10) {
        real_.mouse.OnMove(place);
        plain_.Move(place);
    } else if (what == 10) {
        real_.mouse.EndGesture();
        plain_.Up();
    } else {
        real_.chart.held = {};
        plain_.KeyUp(0x10);
        plain_.KeyUp(0x11);
    }
    return "mouse " + std::to_string(what);
}

std::string Storm3D::Points() {
    const auto index = static_cast<std::size_t>(Next(3));
    if (index >= plain_.plots.size()) return "no plot";
    QZChart3DPlot& plot = fake_.Plot(index);
    const int row = Next(4), column = Next(4), what = Next(6);
    if (what < 3) {
        const Point3D point = NextPoint();
        plot.setPoint(row, column, point, 0);
        plain_.SetPoint(index, row, column, point);
    } else if (what == 3) {
        std::vector<Point3D> points(plain_.plots[index].points.size());
        std::ranges::generate(points, [this] { return NextPoint(); });
        plot.setPoints(points.data(), 0);
        plain_.SetPoints(index, points.data());
    } else if (what == 4) {
        const int rows = Next(12) == 0 ? 0 : row + 1;
        plot.setGridSize(rows, column + 1);
        plain_.SetGrid(index, rows, column + 1);
    } else if (plain_.plots[index].Has(row, column)) {
        plot.selectPoint(row, column, 1, 0);
        PlainPlot& one = plain_.plots[index];
        one.At(row, column).flags |= 1;
        one.lastRow = row;
        one.lastColumn = column;
    }
    return "points " + std::to_string(what);
}

std::string Storm3D::Plots() {
    const auto index = static_cast<std::size_t>(Next(3));
    const int what = Next(8);
    if (what == 0 && plain_.plots.size() < 3) {
        real_.AddPlot(index, false)->setGridSize(3, 4);
        plain_.AddPlot(index);
        plain_.SetGrid(std::min(index, plain_.plots.size() - 1), 3, 4);
    } else if (what == 1 && index < plain_.plots.size()) {
        real_.DeletePlot(&fake_.Plot(index), false);
        plain_.DeletePlot(index);
    } else if (index < plain_.plots.size()) {
        const auto flags = static_cast<std::uint32_t>(Next(0x20)) | (Next(5) == 0 ? 0x200U : 0x10U);
        const auto radius = static_cast<std::uint16_t>(Next(9));
        fake_.Plot(index).setFlags(0, 0);
        fake_.Plot(index).setFlags(flags, 0);
        fake_.Plot(index).setPointRadius(radius);
        plain_.plots[index].Deselect();
        plain_.plots[index].flags = flags;
        plain_.plots[index].radius = radius;
    }
    return "plots " + std::to_string(what);
}

std::string Storm3D::Message() {
    const int what = Next(7);
    const auto axis = static_cast<Chart3DAxis>(Next(3));
    const float low = static_cast<float>(Next(200)), high = low + static_cast<float>(Next(100));
    const std::uint32_t bits = Next(2) == 0 ? 0x20 : 0x80U << axis;
    if (what == 0) {
        real_.SetStyle(bits, false);
        plain_.SetStyle(bits);
    } else if (what == 1) {
        real_.ClearStyle(bits, false);
        plain_.style &= ~bits;
    } else if (what == 2) {
        real_.SetRange(axis, &low, &high);
        plain_.SetRange(axis, low, high);
    } else if (what == 3) {
        real_.SetLimits(kVerticalAxis, &low, &high);
        plain_.limits = {low, high};
    } else if (what == 4) {
        real_.SetBoxSize(low);
        plain_.SetBox(low);
    } else if (what == 5) {
        real_.OnSize(Next(3) * 150, 300);
        plain_.Size(real_.chart.width, 300);
    } else {
        real_.SetRotation({}, true);
        real_.SetScale(1.0F, false);
        plain_.space.rotation = {};
        plain_.space.scale = {1.0F, 1.0F, 1.0F};
        ++plain_.repaints;
    }
    return "message " + std::to_string(what);
}

std::string Storm3D::Step() {
    switch (Next(10)) {
        case 0:
            return Key();
        case 1:
        case 2:
            return Points();
        case 3:
            return Plots();
        case 4:
            return Message();
        default:
            return Mouse();
    }
}

void Storm3D::Compare() {
    const Chart3DModel& chart = real_.chart;
    ASSERT_EQ(fake_.host.TakeNotes(), std::exchange(plain_.notes, {}));
    ASSERT_EQ(chart.style, plain_.style);
    ASSERT_EQ(chart.space.rotation, plain_.space.rotation);
    ASSERT_EQ(chart.space.translation, plain_.space.translation);
    ASSERT_EQ(chart.space.scale, plain_.space.scale);
    ASSERT_EQ(chart.space.pivot, plain_.space.pivot);
    ASSERT_EQ(chart.space.boxSize, plain_.space.boxSize);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        ASSERT_EQ(chart.space.ranges[axis].minimum, plain_.space.ranges[axis].minimum) << axis;
        ASSERT_EQ(chart.space.ranges[axis].maximum, plain_.space.ranges[axis].maximum) << axis;
    }
    ASSERT_EQ(fake_.host.repaints, plain_.repaints);
    ASSERT_EQ(fake_.host.pointer, plain_.pointerHidden ? -1 : 0);
    ASSERT_EQ(fake_.host.hasCapture, plain_.captured);
    ASSERT_EQ(chart.band.has_value(), plain_.band.has_value());
    if (chart.band) {
        ASSERT_EQ(chart.band->opposite, plain_.band->opposite);
    }
    ASSERT_EQ(chart.lastSelected, plain_.lastPlot ? chart.plots[*plain_.lastPlot].get() : nullptr);
    ASSERT_EQ(chart.plots.size(), plain_.plots.size());
    for (std::size_t i = 0; i < chart.plots.size(); ++i) {
        const QZChart3DPlot& plot = *chart.plots[i];
        const PlainPlot& plain = plain_.plots[i];
        ASSERT_EQ(plot.getSelectedCount(), plain.Selected());
        ASSERT_EQ(std::pair(plot.LastRow(), plot.LastColumn()), std::pair(plain.lastRow, plain.lastColumn));
        const bool isSame =
            std::ranges::equal(plot.Points(), plain.points, [](const Point3D& one, const Point3D& other) {
                const bool isHeight = one.z == other.z || (one.z != one.z && other.z != other.z);
                return one.x == other.x && one.y == other.y && isHeight && one.flags == other.flags;
            });
        ASSERT_TRUE(isSame) << i;
    }
}

class Chart3DStormTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(Chart3DStormTest, TenThousandDoingsLeaveItAsThePlainOne) {
    Storm3D storm(GetParam());
    for (int i = 0; i < 10000; ++i) {
        const std::string doing = storm.Step();
        storm.Compare();
        if (HasFatalFailure()) FAIL() << "after " << i << ": " << doing;
    }
}

// Whatever the parent does when it is told of something, nothing is touched that has gone, and all stays consistent.
TEST_P(Chart3DStormTest, AParentThatMeddlesBreaksNothing) {
    ChartStorm storm(GetParam());
    const auto next = [&](int below) { return storm.Next(below); };
    const auto number = [&] { return storm.Number(); };
    FakeChart fake;
    Chart3DMachine& chart = fake.machine;
    const auto any = [&]() -> QZChart3DPlot& {
        if (chart.chart.plots.empty()) fake.AddPlot(0x1F, 3, 3);
        return fake.Plot(static_cast<std::size_t>(next(static_cast<int>(chart.chart.plots.size()))));
    };
    const auto point = [&] { return Point3D{number(), number(), number(), static_cast<std::uint32_t>(next(2))}; };
    const auto place = [&] { return storm.Place(); };
    const ChartStorm::Doings doings = {
        [&] {
            if (chart.chart.plots.size() < 4) fake.AddPlot(0x1F, next(4), next(4)).setPointRadius(400);
        },
        [&] { chart.DeletePlot(&any(), next(2) == 0); },
        [&] { any().setGridSize(next(5), next(5)); },
        [&] { any().setPoint(next(4), next(4), point(), 1); },
        [&] { any().setPoints(std::vector<Point3D>(16, point()).data(), 1); },
        [&] { any().selectPoint(next(4), next(4), next(2), 1); },
        [&] { any().setFlags(1U << next(10), 1); },
        [&] { any().clearFlags(1U << next(10), 1); },
        [&] { chart.SetStyle(1U << next(15), next(2) == 0); },
        [&] { chart.ClearStyle(1U << next(15), next(2) == 0); },
        [&] {
            chart.SetBoxSize(next(9) == 0 ? number() : static_cast<float>(next(300)));
        },  // large ones have many ticks
        [&] {
            chart.SetRotation({number(), number(), number()}, true);
        },
        [&] {
            chart.SetTranslation({number(), number(), number()}, true);
        },
        [&] { chart.SetScale(number(), true); },
        [&] {
            const float low = number(), high = number();
            chart.SetRange(static_cast<Chart3DAxis>(next(3)), &low, &high);
            chart.SetLimits(static_cast<Chart3DAxis>(next(3)), &low, &high);
        },
        [&] { chart.OnSize(next(400), next(400)); },
        [&] { chart.chart.held = {}; },
        [&] { chart.keys.OnDown(static_cast<Chart3DKey>(0x10 + next(0x20))); },
        [&] { chart.keys.OnUp(static_cast<Chart3DKey>(0x10 + next(2))); },
        [&] { chart.mouse.EndGesture(); },
        [&] { chart.mouse.OnDoubleClick(place(), {}); },
        [&] {
            chart.mouse.OnDown(place(), {next(4) == 0, next(4) == 0});
        },
        [&] { chart.mouse.OnDown(place(), {}); },
        [&] { chart.mouse.OnMove(place()); },
        [&] { chart.mouse.OnMove(place()); },
        [&] { chart.mouse.OnMove(place()); },
    };
    storm.Rage(5000, doings, fake.host.handler, [&](int i) {
        const auto& plots = chart.chart.plots;
        const auto isLast = [&](const auto& plot) { return plot.get() == chart.chart.lastSelected; };
        ASSERT_TRUE(chart.chart.lastSelected == nullptr || std::ranges::any_of(plots, isLast)) << i;
        ASSERT_TRUE(fake.host.pointer == 0 || fake.host.pointer == -1) << i;
        for (const auto& plot : plots)
            ASSERT_EQ(plot->getSelectedCount(),
                      std::ranges::count_if(plot->Points(), [](const Point3D& one) { return IsSelected(one); }))
                << i;
        fake.host.notes.clear();
    });
    chart.mouse.EndGesture();
    EXPECT_EQ(fake.host.pointer, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Chart3DStormTest, ::testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace corvex
