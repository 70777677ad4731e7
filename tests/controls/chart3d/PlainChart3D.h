// A 3-D chart's behaviour as one would write it down plainly, step by step and without a thought for speed, to compare
// the real one with. Only the projection and the ticks are the real ones.
#pragma once

#include <optional>
#include <vector>

#include "tests/controls/chart3d/Chart3DHostFake.h"

namespace corvex {

struct PlainPlot {
    std::uint32_t flags = 0x14;
    int radius = 3, rows = 0, columns = 0, lastRow = 0, lastColumn = 0;
    std::vector<Point3D> points;
    Point3D& At(int row, int column) { return points[static_cast<std::size_t>(row * columns + column)]; }
    bool Has(int row, int column) const { return row >= 0 && row < rows && column >= 0 && column < columns; }
    int Selected() const;
    void Deselect();
};

class PlainChart3D {
public:
    // In the state of the real one.
    explicit PlainChart3D(const FakeChart& real);

    void Key(std::uint32_t key);
    void KeyUp(std::uint32_t key);
    void Down(YUpPoint place, bool control, bool shift);
    void DoubleClick(YUpPoint place, bool control, bool shift);
    void Move(YUpPoint place);
    void Up();
    void SetPoint(std::size_t plot, int row, int column, Point3D point);
    void SetPoints(std::size_t plot, const Point3D* points);
    void SetGrid(std::size_t plot, int rows, int columns);
    void AddPlot(std::size_t index);
    void DeletePlot(std::size_t index);
    void SetStyle(std::uint32_t bits);
    void SetRange(std::size_t axis, float minimum, float maximum);
    void SetBox(float size);
    void Size(int width, int height);

    std::vector<PlainPlot> plots;
    std::uint32_t style;
    Chart3DSpace space;
    ChartRange limits;  // of the height
    std::optional<std::size_t> lastPlot;
    std::optional<YUpBox> band;
    Chart3DNotes notes;
    int repaints = 0, width, height;
    bool control = false, shift = false, panned = false, pointerHidden = false, captured = false;

private:
    struct Extents {
        float minimum[3] = {3.4028235e38F, 3.4028235e38F, 3.4028235e38F};
        float maximum[3] = {-3.4028235e38F, -3.4028235e38F, -3.4028235e38F};
    };

    void Tell(std::uint32_t code, int plot = -1, int row = 0, int column = 0) {
        notes.push_back({code, plot, row, column});
    }
    YUpPoint PlaceOf(const Point3D& point) const;
    Extents Measured() const;
    void Follow(bool xGrew, bool depthGrew, bool heightGrew);
    void Recompute();
    void Drag(int up);
    void Band();

    bool button = false, dragging = false, banding = false;
    YUpPoint start, last;
    std::optional<Extents> known;
};

}  // namespace corvex
