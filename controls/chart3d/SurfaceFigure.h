// The quads of a surface in the order of a painter, from the far corner to the near one.
#pragma once

#include <array>
#include <vector>

#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

struct SurfaceQuad {
    std::array<YUpPoint, 4> corners;  // (r, c), (r + 1, c), (r + 1, c + 1), (r, c + 1)
    float height = 0.0F;              // the mean of its points', each as Projection::HeightOf has it
};

struct SurfaceOrder {
    bool rowsDescend = false, columnsDescend = false;
};

// From the depths of the corners: first row and column, last of both, last row and first column, first row and last
// column.
SurfaceOrder OrderOf(int firstFirst, int lastLast, int lastFirst, int firstLast);

// The surface of one paint. The plot outlives it, and is not changed meanwhile.
class SurfaceFigure {
public:
    // Projects every point once.
    SurfaceFigure(const QZChart3DPlot& plot, const Projection& projection);

    // Calls paint(const SurfaceQuad&) for each.
    template <class Paint>
    void ForEachQuad(const Paint& paint) const {
        for (int i = 0; i + 1 < plot_.Rows(); ++i) {
            const int row = order_.rowsDescend ? plot_.Rows() - 2 - i : i;
            for (int j = 0; j + 1 < plot_.Columns(); ++j)
                paint(QuadAt(row, order_.columnsDescend ? plot_.Columns() - 2 - j : j));
        }
    }
    // Of the point of that row and column, which are in range.
    YUpPoint PlaceOf(int row, int column) const { return places_[IndexOf(row, column)]; }

private:
    std::size_t IndexOf(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(plot_.Columns()) +
               static_cast<std::size_t>(column);
    }
    SurfaceQuad QuadAt(int row, int column) const;

    const QZChart3DPlot& plot_;
    Projection projection_;
    std::vector<YUpPoint> places_;
    SurfaceOrder order_;
};

// The range that the plot's ramp is to have in a paint of this chart: of finite heights alone. Nothing when there is
// none.
std::optional<ChartRange> RampRangeOf(const Chart3DModel& chart, const QZChart3DPlot& plot);

// The plots that a paint draws, in their order: one surface, or all as wires.
std::vector<QZChart3DPlot*> DrawnPlots(const Chart3DModel& chart);

// What the selection label says; nothing when it is not shown.
std::optional<std::string> SelectionText(const Chart3DModel& chart, IChart3DLabels& labels);

}  // namespace corvex
