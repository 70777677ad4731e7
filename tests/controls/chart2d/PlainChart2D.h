// A 2-D chart's behaviour as one would write it down plainly, step by step and without a thought for speed, to compare
// the real one with.
#pragma once

#include <optional>
#include <vector>

#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {

struct PlainSeries {
    std::uint32_t flags = 0x4B;
    int radius = 5, count = 0;
    std::vector<Point2D> points;
};

class PlainChart2D {
public:
    explicit PlainChart2D(const FakeChart2D& real);

    YUpPoint PlaceOf(const Point2D& point) const;
    void Down(YUpPoint place, bool control, bool shift);
    void Move(YUpPoint place);
    void Up(bool isReleased);
    void Clear();
    void Insert(std::size_t series, std::size_t index, Point2D point);
    void Delete(std::size_t series, std::size_t index);
    void Set(std::size_t series, std::size_t index, Point2D point);
    void Select(std::size_t series, std::size_t index, bool selected);
    void Empty(std::size_t series);
    void AddSeries(std::size_t index);
    void DeleteSeries(std::size_t index);
    void SetStyle(std::uint32_t bits);
    void SetRange(int axis, float minimum, float maximum);

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
    void Follow();
    void Drag(int across, int up);
    void Band();

    bool button = false, dragging = false, banding = false;
    YUpPoint start, last;
    std::optional<std::pair<std::size_t, std::size_t>> picked;
};

}  // namespace corvex
