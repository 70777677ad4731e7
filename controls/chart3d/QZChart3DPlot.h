// A surface: its points in rows and columns, and how they are drawn.
#pragma once

#include <string>
#include <vector>

#include "controls/chart3d/ColorRamp.h"
#include "controls/chart3d/IQZChart3DPlot.h"

namespace corvex {

class QZChart3DPlot;

// What a plot asks of its chart. On the thread of the chart's window.
class IPlot3DOwner {
public:
    virtual ~IPlot3DOwner() = default;
    // The point stood at `before` until now.
    virtual void OnPointSet(const QZChart3DPlot& plot, const Point3D& before, const Point3D& now) = 0;
    virtual void OnPointsSet() = 0;
    // Points have come or gone with the size of the grid: nothing is told to anybody.
    virtual void OnGridSized() {}
    // With the next paint.
    virtual void PaintSoon() = 0;
};

class QZChart3DPlot final : public IQZChart3DPlot {
public:
    static constexpr std::size_t kNameLength = 64;
    // Of its points, in memory: more is refused as want of memory would be.
    static constexpr std::size_t kMaxPoints = std::size_t{1} << 26;

    // The owner outlives it.
    explicit QZChart3DPlot(IPlot3DOwner& owner) : owner_(owner) {}
    virtual ~QZChart3DPlot() = default;
    QZChart3DPlot(const QZChart3DPlot&) = delete;
    QZChart3DPlot& operator=(const QZChart3DPlot&) = delete;

    void reset() override;
    void setName(const char* text) override;
    std::uint32_t getName(char* buffer, std::uint32_t capacity) const override;
    void setFlags(std::uint32_t bits, int redraw) override;
    std::uint32_t getFlags() const override { return flags_; }
    int testFlag(std::uint32_t mask) const override { return Is(mask) ? 1 : 0; }
    void clearFlags(std::uint32_t bits, int redraw) override;
    int setColor(std::uint32_t index, std::uint32_t colour) override;
    std::int32_t getColor(std::uint32_t index) const override;
    void setType(std::uint32_t type) override { type_ = type; }
    std::uint32_t getType() const override { return type_; }
    void setLineWidth(std::uint8_t width) override { lineWidth_ = width; }
    std::uint8_t getLineWidth() const override { return lineWidth_; }
    void setGridSize(int rows, int columns) override;
    void getGridSize(int* rows, int* columns) const override;
    void setPoint(int row, int column, const Point3D& point, int redraw) override;
    int getPoint(int row, int column, Point3D* point) const override;
    void setPointRadius(std::uint16_t radius) override { radius_ = radius; }
    std::uint16_t getPointRadius() const override { return radius_; }
    void clearSelection(int redraw) override;
    int getSelectedCount() const override { return selectedCount_; }
    int selectPoint(int row, int column, int selected, int redraw) override;
    void setPoints(const Point3D* points, int redraw) override;

    bool Is(std::uint32_t mask) const { return (flags_ & mask) != 0; }
    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    // All points, row by row.
    const std::vector<Point3D>& Points() const { return points_; }
    const Point3D& At(int row, int column) const { return points_[IndexOf(row, column)]; }
    // For the chart, which tells of it itself. The selected points are counted, so kPointSelected is left alone.
    Point3D& At(int row, int column) { return points_[IndexOf(row, column)]; }
    std::uint32_t Colour(Plot3DColour index) const { return static_cast<std::uint32_t>(getColor(index)); }
    // The point that was selected last. Of the grid, where that has any.
    int LastRow() const { return lastRow_; }
    int LastColumn() const { return lastColumn_; }
    void SetLast(int row, int column);

    // A paint gives it the range that it needs.
    ColorRamp ramp;

private:
    static constexpr std::uint32_t kDefaultLineColour = 0, kDefaultSelectedColour = 0xFF0000,
                                   kDefaultFaceColour = 0x0000FF;
    static constexpr std::uint16_t kDefaultRadius = 3;

    bool Contains(int row, int column) const { return row >= 0 && row < rows_ && column >= 0 && column < columns_; }
    std::size_t IndexOf(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
    }

    static std::uint32_t QZChart3DPlot::*ColourOf(std::uint32_t index);  // null for an unknown one
    void Deselect();
    void PaintIf(int redraw);

    IPlot3DOwner& owner_;
    std::uint32_t flags_ = kPlotDefaultFlags;
    std::string name_;
    int rows_ = 0, columns_ = 0;
    std::vector<Point3D> points_;
    std::uint32_t type_ = kRampOfChart;
    std::uint8_t lineWidth_ = 1;
    std::uint32_t storedColour_ = 0, lineColour_ = kDefaultLineColour, selectedColour_ = kDefaultSelectedColour,
                  pointColour_ = 0, faceColour_ = kDefaultFaceColour;
    std::uint16_t radius_ = kDefaultRadius;
    int lastRow_ = 0, lastColumn_ = 0;
    int selectedCount_ = 0;
};

}  // namespace corvex
