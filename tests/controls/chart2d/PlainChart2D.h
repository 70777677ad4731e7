// The 2-D chart once more, as a reference for the tests of the quick one.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {

struct PlainSeries {
    std::uint32_t flags = 0x4B;
    int radius = 5, count = 0;
    std::vector<Point2D> points;
};

inline int PlainPixel(float value, ChartRange range, int client) {
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

}  // namespace corvex
