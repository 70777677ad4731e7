// Random clicks, drags and messages, after each of which the chart must be what a plain one is.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "tests/controls/chart/ChartStorm.h"
#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {
namespace {

struct PlainSeries {
    std::uint32_t flags = 0x4B;
    int radius = 5, count = 0;
    std::vector<Point2D> points;
};

int PlainPixel(float value, ChartRange range, int client) {
    const double span = std::abs(static_cast<double>(range.maximum) - range.minimum);
    double place = static_cast<double>(value) - range.minimum;
    place = span == 0.0 ? place * 0.0 : place * (client - 140) / span;
    place += 70.0;
    if (std::isnan(place) || place < -67108864.0) return -67108864;
    return place > 67108864.0 ? 67108864 : static_cast<int>(std::trunc(place));
}

// The chart as one would write it down plainly, step by step and without a thought for speed.
class PlainChart2D {
public:
    explicit PlainChart2D(const FakeChart2D& real) {
        for (const auto& one : real.machine.chart.series)
            series.push_back({one->getFlags(), one->getPointRadius(), one->getSelectedCount(), one->Points()});
    }

    YUpPoint PlaceOf(const Point2D& point) const {
        return {PlainPixel(point.x, ranges[0], width), PlainPixel(point.y, ranges[1], height)};
    }

    void Clear() {
        for (PlainSeries& one : series) {
            one.count = 0;
            for (Point2D& point : one.points)
                point.flags &= ~1U;
        }
    }

    void Down(YUpPoint place, bool isControl, bool isShift) {
        Up(false);
        button = captured = true;
        control = isControl;
        shift = isShift;
        start = last = place;
        for (const PlainSeries& one : series)
            banding = banding || (one.flags & 0x88) == 0x08;
        std::size_t selected = 0;
        bool found = false;
        for (const PlainSeries& one : series) {
            for (const Point2D& point : one.points)
                selected += point.flags & 1;
        }
        for (std::size_t s = 0; s < series.size() && !found; ++s) {
            PlainSeries& one = series[s];
            if ((one.flags & 0x0C) == 0 || (one.flags & 0x80) != 0 || !HasPlot()) continue;
            for (std::size_t p = 0; p < one.points.size() && !found; ++p) {
                const YUpPoint at = PlaceOf(one.points[p]);
                if (std::abs(at.x - place.x) > one.radius || std::abs(at.y - place.y) > one.radius) continue;
                found = true;
                picked = {s, p};
            }
        }
        if (!found) {
            if (control) return;
            Clear();
            ++repaints;
            return;
        }
        PlainSeries& one = series[picked->first];
        Point2D& point = one.points[picked->second];
        if ((one.flags & 3) != 0) dragging = true;
        const bool isGroup = (point.flags & 1) != 0 && selected >= 2;
        if (isGroup && !control) return;
        if (isGroup) {
            point.flags &= ~1U;
            one.count = std::max(0, one.count - 1);
            ++repaints;
            return;
        }
        if (!control) Clear();
        if ((one.flags & 4) != 0) {
            one.count = 0;
            for (Point2D& other : one.points)
                other.flags &= ~1U;
        }
        if ((point.flags & 1) != 0) return;
        point.flags |= 1;
        ++one.count;
        Tell(1124, static_cast<int>(picked->first), static_cast<int>(picked->second));
        ++repaints;
    }

    void Move(YUpPoint place) {
        if (!button || place == last) return;
        const int across = place.x - last.x, up = place.y - last.y;
        last = place;
        if (control || shift) return;
        if (dragging) {
            pointerHidden = true;
            Drag(across, up);
        } else if (banding) {
            Band();
        }
    }

    void Drag(int across, int up) {
        float by[2];
        const int pixels[2] = {across, up}, lengths[2] = {width - 140, height - 140};
        for (int axis = 0; axis < 2; ++axis) {
            by[axis] = static_cast<float>(pixels[axis]) * (ranges[axis].maximum - ranges[axis].minimum) /
                       static_cast<float>(lengths[axis]);
            if (!std::isfinite(by[axis])) by[axis] = 0.0F;
        }
        bool any = false;
        for (PlainSeries& one : series) {
            any = any || (one.flags & 3) != 0;
            for (int axis = 0; axis < 2; ++axis) {
                if ((one.flags >> axis & 1) == 0) continue;
                for (const Point2D& point : one.points) {
                    const float value = axis == 0 ? point.x : point.y;
                    if ((point.flags & 1) == 0 || !std::isfinite(value)) continue;
                    if (value + by[axis] < limits[axis].minimum) {
                        by[axis] = limits[axis].minimum - value;
                    } else if (value + by[axis] > limits[axis].maximum) {
                        by[axis] = limits[axis].maximum - value;
                    }
                }
            }
        }
        for (std::size_t s = 0; s < series.size(); ++s) {
            PlainSeries& one = series[s];
            for (std::size_t p = 0; p < one.points.size(); ++p) {
                Point2D& point = one.points[p];
                if ((point.flags & 1) == 0 || (one.flags & 3) == 0) continue;
                if ((one.flags & 1) != 0) point.x += by[0];
                if ((one.flags & 2) != 0) point.y += by[1];
                Tell(1125, static_cast<int>(s), static_cast<int>(p));
            }
        }
        if (!any) return;
        Follow();
        ++repaints;
    }

    void Band() {
        band = YUpBox{start, last};
        for (PlainSeries& one : series) {
            if ((one.flags & 0x0C) == 0 || (one.flags & 0x80) != 0) continue;
            one.count = 0;
            for (Point2D& point : one.points) {
                const YUpPoint at = PlaceOf(point);
                const bool isIn = HasPlot() && at.x >= std::min(start.x, last.x) && at.x <= std::max(start.x, last.x) &&
                                  at.y >= std::min(start.y, last.y) && at.y <= std::max(start.y, last.y);
                point.flags = isIn ? point.flags | 1U : point.flags & ~1U;
                one.count += isIn ? 1 : 0;
            }
        }
        ++repaints;
    }

    void Up(bool isReleased) {
        if (dragging && isReleased && pointerHidden && picked && picked->second < series[picked->first].points.size())
            placed.push_back(PlaceOf(series[picked->first].points[picked->second]));
        if (dragging) Tell(1126);
        if (banding) ++repaints;
        button = dragging = banding = pointerHidden = captured = false;
        band.reset();
    }

    void Follow() {
        for (unsigned axis = 0; axis < 2; ++axis) {
            if ((style & 0x10U << axis) == 0) continue;
            std::optional<ChartRange> extent;
            for (const PlainSeries& one : series) {
                for (const Point2D& point : one.points) {
                    const float value = axis == 0 ? point.x : point.y;
                    if (!std::isfinite(value)) continue;
                    if (!extent) extent = {value, value};
                    extent = ChartRange{std::min(extent->minimum, value), std::max(extent->maximum, value)};
                }
            }
            if (!extent || *extent == ranges[axis]) continue;
            ranges[axis] = *extent;
            Tell(1127 + axis);
        }
    }

    void Insert(std::size_t one, std::size_t index, Point2D point) {
        auto& points = series[one].points;
        points.insert(points.begin() + static_cast<std::ptrdiff_t>(index), point);
        series[one].count += static_cast<int>(point.flags & 1);
        Follow();
    }

    void Delete(std::size_t one, std::size_t index) {
        auto& points = series[one].points;
        if (index >= points.size()) return;
        if ((points[index].flags & 1) != 0) series[one].count = std::max(0, series[one].count - 1);
        points.erase(points.begin() + static_cast<std::ptrdiff_t>(index));
        Follow();
    }

    void Set(std::size_t one, std::size_t index, Point2D point) {
        if (index >= series[one].points.size()) return;
        const bool was = (series[one].points[index].flags & 1) != 0, is = (point.flags & 1) != 0;
        if (is && !was) ++series[one].count;
        if (was && !is) series[one].count = std::max(0, series[one].count - 1);
        series[one].points[index] = point;
        Follow();
    }

    void Select(std::size_t one, std::size_t index, bool selected) {
        if (index >= series[one].points.size()) return;
        std::uint32_t& flags = series[one].points[index].flags;
        flags = selected ? flags | 1U : flags & ~1U;
        series[one].count = std::max(0, series[one].count + (selected ? 1 : -1));
    }

    void Empty(std::size_t one) {
        series[one].points.clear();
        series[one].count = 0;
        Follow();
    }

    void AddSeries(std::size_t index) {
        index = std::min(index, series.size());
        series.insert(series.begin() + static_cast<std::ptrdiff_t>(index), PlainSeries{});
        if (picked && picked->first >= index) ++picked->first;
    }

    void DeleteSeries(std::size_t index) {
        series.erase(series.begin() + static_cast<std::ptrdiff_t>(index));
        if (picked && picked->first == index) {
            picked.reset();
        } else if (picked && picked->first > index) {
            --picked->first;
        }
        Follow();
    }

    void SetStyle(std::uint32_t bits) {
        style = bits == 0 ? 0 : style | bits;
        Follow();
    }

    void SetRange(int axis, float minimum, float maximum) {
        if ((style & 0x10U << axis) == 0) ranges[axis] = {minimum, std::max(minimum, maximum)};
    }

    std::vector<PlainSeries> series;
    std::uint32_t style = 7;
    ChartRange ranges[2]{{-255, 255}, {-255, 255}}, limits[2]{{-255, 255}, {-255, 255}};
    std::optional<YUpBox> band;
    Chart2DNotes notes;
    std::vector<YUpPoint> placed;
    int repaints = 0, width = 650, height = 650;
    bool control = false, shift = false, pointerHidden = false, captured = false;

private:
    void Tell(std::uint32_t code, int one = -1, int index = 0) { notes.push_back({code, one, index}); }
    bool HasPlot() const { return width > 140 && height > 140; }
    bool button = false, dragging = false, banding = false;
    YUpPoint start, last;
    std::optional<std::pair<std::size_t, std::size_t>> picked;
};

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
