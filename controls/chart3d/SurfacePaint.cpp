#include "controls/chart3d/SurfacePaint.h"

#include <utility>

#include "controls/chart3d/SurfaceFigure.h"

namespace corvex {

namespace {

constexpr int kSelectedPen = 2, kPointPen = 1;  // pixels

// Keeps a solid brush of the colour asked for last selected: neighbours often have the same.
class BrushInUse {
public:
    explicit BrushInUse(HDC dc) : dc_(dc), former_(::SelectObject(dc, ::GetStockObject(NULL_BRUSH))) {}
    ~BrushInUse() { ::SelectObject(dc_, former_); }
    BrushInUse(const BrushInUse&) = delete;
    BrushInUse& operator=(const BrushInUse&) = delete;

    void Use(std::uint32_t colour) {
        if (brush_ && colour == colour_) return;
        OwnedBrush next(::CreateSolidBrush(colour));
        ::SelectObject(dc_, next.Get());
        brush_ = std::move(next);
        colour_ = colour;
    }

private:
    HDC dc_;
    HGDIOBJ former_;
    OwnedBrush brush_;
    std::uint32_t colour_ = 0;
};

void PaintQuads(HDC dc, const Chart3DModel& chart, const QZChart3DPlot& plot, const SurfaceFigure& surface) {
    const OwnedPen line(::CreatePen(PS_SOLID, plot.getLineWidth(), plot.Colour(kPlotLineColour)));
    const SelectGuard pen(dc, line.Get());
    BrushInUse brush(dc);
    ::SetPolyFillMode(dc, WINDING);
    const bool isWire = chart.Has(kChart3DWireframe), isByHeight = plot.Is(kPlotColourHeight);
    surface.ForEachQuad([&](const SurfaceQuad& quad) {
        if (!isWire) brush.Use(isByHeight ? plot.ramp.map(quad.height) : plot.Colour(kFaceColour));
        const auto corner = [&quad](std::size_t i) { return POINT{quad.corners[i].x, quad.corners[i].y}; };
        const POINT corners[4] = {corner(0), corner(1), corner(2), corner(3)};
        ::Polygon(dc, corners, 4);
    });
}

void PaintPoints(HDC dc, const Chart3DModel& chart, const QZChart3DPlot& plot, const SurfaceFigure& surface) {
    if (plot.Is(kPlotNoPoints) || (plot.getSelectedCount() == 0 && !plot.Is(kPlotAllPoints))) return;
    const OwnedPen thick(::CreatePen(PS_SOLID, kSelectedPen, plot.Colour(kPlotLineColour)));
    const OwnedPen thin(::CreatePen(PS_SOLID, kPointPen, plot.Colour(kPlotLineColour)));
    const SelectGuard pen(dc, thin.Get());
    BrushInUse brush(dc);
    const bool isByHeight = chart.Has(kChart3DWireframe) && plot.Is(kPlotColourHeight);
    const int radius = plot.getPointRadius();
    for (int row = 0; row < plot.Rows(); ++row) {
        for (int column = 0; column < plot.Columns(); ++column) {
            const Point3D& point = plot.At(row, column);
            const bool isSelected = (point.flags & kPointSelected) != 0;
            if (!isSelected && !plot.Is(kPlotAllPoints)) continue;
            ::SelectObject(dc, isSelected ? thick.Get() : thin.Get());
            brush.Use(isByHeight ? plot.ramp.map(point.z)
                                 : plot.Colour(isSelected ? kSelectedPointColour : kPointColour));
            const YUpPoint at = surface.PlaceOf(row, column);
            ::Ellipse(dc, at.x - radius, at.y - radius, at.x + radius, at.y + radius);
        }
    }
}

}  // namespace

void PaintSurface(HDC dc, const Chart3DModel& chart, QZChart3DPlot& plot, const Projection& projection) {
    if (plot.Is(kPlotColourHeight)) {
        if (const std::optional<ChartRange> range = RampRangeOf(chart, plot))
            plot.ramp.setRange(range->minimum, range->maximum);
    }
    const SurfaceFigure surface(plot, projection);
    PaintQuads(dc, chart, plot, surface);
    PaintPoints(dc, chart, plot, surface);
}

}  // namespace corvex
