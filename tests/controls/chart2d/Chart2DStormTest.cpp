// Random clicks, drags and messages, after each of which the chart must be what a plain one is.
#include <gtest/gtest.h>

#include "tests/controls/chart/ChartStorm.h"
#include "tests/controls/chart2d/PlainChart2D.h"

namespace corvex {
namespace {

class Storm2D : ChartStorm {
public:
    explicit Storm2D(unsigned seed) : ChartStorm(seed) {}

    // One doing to both, and what it was.
    std::string Step();
    void Compare();

private:
    Point2D NextPoint();
    YUpPoint NextPlace();
    std::string Mouse();
    std::string Points();
    std::string Series();
    std::string Message();

    FakeChart2D fake_;
    Chart2DMachine& real_ = fake_.machine;
    PlainChart2D plain_{fake_};
};

// Endless ones now and then; none that is no number, as such never are alike.
Point2D Storm2D::NextPoint() {
    const auto coordinate = [this] {
        const float number = Once(12) ? Number() : static_cast<float>(Next(512) - 256);
        return number == number ? number : 0.0F;
    };
    return {coordinate(), coordinate(), static_cast<std::uint32_t>(Next(9)), static_cast<std::uint32_t>(Next(4))};
}

// Often on a point, or beside it.
YUpPoint Storm2D::NextPlace() {
    const YUpPoint place{Next(650), Next(650)};
    if (Once(4) || plain_.series.empty()) return place;
    const PlainSeries& series = plain_.series[static_cast<std::size_t>(Next(static_cast<int>(plain_.series.size())))];
    if (series.points.empty()) return place;
    const Point2D& point = series.points[static_cast<std::size_t>(Next(static_cast<int>(series.points.size())))];
    return {plain_.PlaceOf(point).x + Next(13) - 6, plain_.PlaceOf(point).y + Next(13) - 6};
}

std::string Storm2D::Mouse() {
    const int what = Next(14);
    const YUpPoint place = NextPlace();
    const ChartModifiers held{Once(4), Once(8)};
    if (what < 4) {
        real_.mouse.OnDown(place, held);
        plain_.Down(place, held.control, held.shift);
    } else if (what == 4) {
        real_.mouse.OnDoubleClick(place, held);
        plain_.Clear();
        plain_.Down(place, held.control, held.shift);
    } else if (what < 11) {
        real_.mouse.OnMove(place);
        plain_.Move(place);
    } else if (what == 11) {
        real_.mouse.OnUp();
        plain_.Up(true);
    } else if (what == 12) {
        real_.mouse.EndGesture();
        plain_.Up(false);
    } else {
        real_.OnKey(0x10, held.shift);
        real_.OnKey(0x11, held.control);
        plain_.shift = held.shift;
        plain_.control = held.control;
    }
    return "mouse " + std::to_string(what);
}

std::string Storm2D::Points() {
    const auto index = static_cast<std::size_t>(Next(3));
    if (index >= plain_.series.size()) return "no series";
    QZChart2DSeries& series = fake_.Series(index);
    const auto place = static_cast<std::uint32_t>(Next(8));
    const int what = Next(12);
    const Point2D point = NextPoint();
    if (what < 3) {
        series.addPoint(point);
        plain_.Insert(index, plain_.series[index].points.size(), point);
    } else if (what < 5) {
        if (series.insertPoint(point, place) != 0) plain_.Insert(index, place, point);
    } else if (what < 7) {
        series.deletePoint(place);
        plain_.Delete(index, place);
    } else if (what < 9) {
        series.setPoint(place, point, 0);
        plain_.Set(index, place, point);
    } else if (what < 11) {
        series.selectPoint(place, what - 9, 0);
        plain_.Select(index, place, what == 10);
    } else if (Once(3)) {
        series.clear();
        plain_.Empty(index);
    }
    return "points " + std::to_string(what);
}

std::string Storm2D::Series() {
    const auto index = static_cast<std::size_t>(Next(3));
    const int what = Next(8);
    if (what == 0 && plain_.series.size() < 3) {
        real_.AddSeries(index, false);
        plain_.AddSeries(index);
    } else if (index >= plain_.series.size()) {
        return "no series";
    } else if (what == 1) {
        real_.DeleteSeries(&fake_.Series(index), false);
        plain_.DeleteSeries(index);
    } else {
        const auto flags = static_cast<std::uint32_t>(Next(0x10)) | (Once(6) ? 0x80U : 0x08U);
        const auto radius = static_cast<std::uint16_t>(Next(9));
        fake_.Series(index).setFlags(0, 0);
        fake_.Series(index).setFlags(flags, 0);
        fake_.Series(index).setPointRadius(radius);
        plain_.series[index].flags = flags;
        plain_.series[index].radius = radius;
    }
    return "series " + std::to_string(what);
}

std::string Storm2D::Message() {
    const int what = Next(5);
    const Chart2DAxis axis = kChart2DAxes[Next(2)];
    const float low = static_cast<float>(Next(400) - 300), high = low + static_cast<float>(Next(400) - 20);
    const std::uint32_t bits = 0x10U << axis;
    if (what == 0) {
        real_.SetStyle(bits, false);
        plain_.SetStyle(bits);
    } else if (what == 1) {
        real_.ClearStyle(bits, false);
        plain_.style &= ~bits;
    } else if (what == 2) {
        real_.ranges.Set(axis, &low, &high);
        plain_.SetRange(static_cast<int>(axis), low, high);
    } else if (what == 3) {
        real_.chart.limits[axis] = plain_.limits[axis] = {low, high};
    } else {
        plain_.width = Once(5) ? 100 : 650;
        real_.OnSize(plain_.width, 650);
        ++plain_.repaints;
    }
    return "message " + std::to_string(what);
}

std::string Storm2D::Step() {
    switch (Next(10)) {
        case 0:
        case 1:
            return Points();
        case 2:
            return Series();
        case 3:
            return Message();
        default:
            return Mouse();
    }
}

void Storm2D::Compare() {
    const Chart2DModel& chart = real_.chart;
    ASSERT_EQ(fake_.host.TakeNotes(), std::exchange(plain_.notes, {}));
    ASSERT_EQ(fake_.host.placed, plain_.placed);
    ASSERT_EQ(chart.style, plain_.style);
    for (const Chart2DAxis axis : kChart2DAxes)
        ASSERT_EQ(chart.ranges[axis], plain_.ranges[axis]) << axis;
    ASSERT_EQ(fake_.host.repaints, plain_.repaints);
    ASSERT_EQ(fake_.host.pointer, plain_.pointerHidden ? -1 : 0);
    ASSERT_EQ(fake_.host.hasCapture, plain_.captured);
    ASSERT_EQ(chart.band.has_value(), plain_.band.has_value());
    if (chart.band) {
        ASSERT_EQ(chart.band->opposite, plain_.band->opposite);
    }
    ASSERT_EQ(chart.series.size(), plain_.series.size());
    for (std::size_t i = 0; i < chart.series.size(); ++i) {
        ASSERT_EQ(chart.series[i]->getSelectedCount(), plain_.series[i].count) << i;
        const bool isSame = std::ranges::equal(
            chart.series[i]->Points(), plain_.series[i].points, [](const Point2D& one, const Point2D& other) {
                return one.x == other.x && one.y == other.y && one.word == other.word && one.flags == other.flags;
            });
        ASSERT_TRUE(isSame) << i;
    }
}

class Chart2DStormTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(Chart2DStormTest, TenThousandDoingsLeaveItAsThePlainOne) {
    Storm2D storm(GetParam());
    for (int i = 0; i < 10000; ++i) {
        const std::string doing = storm.Step();
        storm.Compare();
        if (HasFatalFailure()) FAIL() << "after " << i << ": " << doing;
    }
}

// Whatever the parent does when it is told of something, nothing is touched that has gone, and all stays consistent.
TEST_P(Chart2DStormTest, AParentThatMeddlesBreaksNothing) {
    ChartStorm storm(GetParam());
    const auto next = [&](int below) { return storm.Next(below); };
    const auto index = [&] { return static_cast<std::uint32_t>(next(6)); };
    const auto number = [&] { return storm.Number(); };
    const auto place = [&] { return storm.Place(); };
    const auto axis = [&] { return kChart2DAxes[next(2)]; };
    FakeChart2D fake;
    Chart2DMachine& chart = fake.machine;
    // Without points, as their coming is told.
    const auto add = [&] {
        QZChart2DSeries& series = *chart.AddSeries(0, false);
        series.setFlags(0x0F, 0);
        series.setPointRadius(400);
    };
    const auto any = [&]() -> QZChart2DSeries& {
        if (chart.chart.series.empty()) add();
        return fake.Series(static_cast<std::size_t>(next(static_cast<int>(chart.chart.series.size()))));
    };
    const auto point = [&] { return Point2D{number(), number(), 0, static_cast<std::uint32_t>(next(2))}; };
    const ChartStorm::Doings doings = {
        [&] {
            if (chart.chart.series.size() < 4) add();
        },
        [&] { chart.DeleteSeries(&any(), storm.Once(2)); },
        [&] { any().addPoint(point()); },
        [&] { any().insertPoint(point(), index()); },
        [&] { any().deletePoint(index()); },
        [&] { any().setPoint(index(), point(), 1); },
        [&] { any().selectPoint(index(), next(2), 1); },
        [&] { any().clear(); },
        [&] { any().setFlags(storm.Bit(9), 1); },
        [&] { any().clearFlags(storm.Bit(9), 1); },
        [&] { chart.SetStyle(storm.Bit(7), storm.Once(2)); },
        [&] { chart.ClearStyle(storm.Bit(7), storm.Once(2)); },
        [&] { chart.ClearSelection(true); },
        [&] {
            const float low = number(), high = number();
            chart.ranges.Set(axis(), storm.Once(9) ? nullptr : &low, &high);
            chart.chart.limits[axis()] = {high, low};
        },
        [&] { chart.OnSize(next(700), next(700)); },
        [&] { chart.OnKey(static_cast<std::uint32_t>(0x10 + next(3)), storm.Once(3)); },
        [&] { chart.mouse.EndGesture(); },
        [&] { chart.mouse.OnUp(); },
        [&] { chart.mouse.OnDoubleClick(place(), {}); },
        [&] {
            chart.mouse.OnDown(place(), {storm.Once(4), storm.Once(4)});
        },
        [&] { chart.mouse.OnDown(place(), {}); },
        [&] { chart.mouse.OnMove(place()); },
        [&] { chart.mouse.OnMove(place()); },
        [&] { chart.mouse.OnMove(place()); },
    };
    storm.Rage(5000, doings, fake.host.handler, [&](int i) {
        const auto& series = chart.chart.series;
        const auto isPicked = [&](const auto& one) { return one.get() == chart.chart.picked.series; };
        ASSERT_TRUE(chart.chart.picked.series == nullptr || std::ranges::any_of(series, isPicked)) << i;
        ASSERT_TRUE(fake.host.pointer == 0 || fake.host.pointer == -1) << i;
        for (const auto& one : series)
            ASSERT_GE(one->getSelectedCount(), 0) << i;
        fake.host.notes.clear();
    });
    chart.mouse.EndGesture();
    EXPECT_EQ(fake.host.pointer, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Chart2DStormTest, ::testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace corvex
