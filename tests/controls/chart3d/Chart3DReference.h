// The 3-D chart once more, in doubles and by plain rules, and what its tests are built of.
#pragma once

#include <limits>
#include <random>

#include "controls/chart3d/BoxFaces.h"
#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

inline constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
inline constexpr float kEndless = std::numeric_limits<float>::infinity();
inline constexpr float kHuge = std::numeric_limits<float>::max();

struct ReferencePlace {
    double x, y, depth;
};

// Step by step and without a matrix, of a place in the axes' coordinates.
ReferencePlace ReferenceProject(const Chart3DSpace& space, const BoxPlace& place);
inline ReferencePlace ReferenceProject(const Chart3DSpace& space, const Point3D& point) {
    return ReferenceProject(space, BoxPlace{point.x, point.y, point.z});
}
// How far away it is for one who is level with the box.
double LevelDepth(Chart3DSpace space, const BoxPlace& place);
// Of the box, given in parts of the ranges.
BoxPlace PlaceIn(const Chart3DSpace& space, const BoxPlace& part);

// Whether the pixel is what truncation leaves of the place, give or take a float's last digits.
bool IsCut(int pixel, double place);
bool IsCut(YUpPoint pixels, const ReferencePlace& place);

// Any ranges, scale and place; the pitch less than a right angle, and no face seen edge on.
Chart3DSpace RandomSpace(std::mt19937& random);
float Between(std::mt19937& random, float minimum, float maximum);

// Six pixels for a byte, 14 high.
class SixPixelMeasure final : public ITickTextMeasure {
public:
    YUpSize Measure(std::string_view text) const override { return {6 * static_cast<int>(text.size()), 14}; }
};

// A chart whose plots' words nobody hears.
class TestChart3D : public IPlot3DOwner {
public:
    QZChart3DPlot& AddPlot(int rows, int columns);
    // Rows along the depth, columns along X, evenly spread over the ranges; heights by `height(row, column)`.
    template <class Height>
    QZChart3DPlot& AddField(int rows, int columns, const Height& height) {
        QZChart3DPlot& plot = AddPlot(rows, columns);
        for (int i = 0; i < rows * columns; ++i) {
            const int row = i / columns, column = i % columns;
            const auto part = [](int at, int count) { return static_cast<float>(at) / static_cast<float>(count - 1); };
            const BoxPlace place = PlaceIn(model.space, {part(column, columns), part(row, rows), 0.0F});
            plot.setPoint(row, column, {place[kXAxis], place[kDepthAxis], height(row, column), 0}, 0);
        }
        return plot;
    }
    void SpreadTicks(int count);

    Chart3DModel model;

private:
    void OnPointSet(const QZChart3DPlot&, const Point3D&, const Point3D&) override {}
    void OnPointsSet() override {}
    void OnGridSized() override {}
    void PaintSoon() override {}
};

}  // namespace corvex
