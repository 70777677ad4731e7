// A series: its points in their order, and how they are drawn.
#pragma once

#include <string>
#include <vector>

#include "controls/chart2d/IQZChart2DSeries.h"

namespace corvex {

// What a series asks of its chart. On the thread of the chart's window.
class ISeries2DOwner {
public:
    virtual ~ISeries2DOwner() = default;
    // A point stood at `before` until now and stands at `now`; null where there was none, or is none any more.
    virtual void OnPointChanged(const Point2D* before, const Point2D* now) = 0;
    virtual void OnPointsCleared() = 0;
    // With the next paint.
    virtual void PaintSoon() = 0;
};

class QZChart2DSeries final : public IQZChart2DSeries {
public:
    static constexpr std::size_t kNameLength = 64;

    // The owner outlives it.
    explicit QZChart2DSeries(ISeries2DOwner& owner) : owner_(owner) {}
    ~QZChart2DSeries() override = default;
    QZChart2DSeries(const QZChart2DSeries&) = delete;
    QZChart2DSeries& operator=(const QZChart2DSeries&) = delete;

    void reset() override;
    void setName(const char* text) override;
    std::uint32_t getName(char* buffer, std::uint32_t capacity) const override;
    void setFlags(std::uint32_t bits, int redraw) override;
    std::uint32_t getFlags() const override { return look_.flags; }
    int testFlag(std::uint32_t mask) const override { return Is(mask) ? 1 : 0; }
    void clearFlags(std::uint32_t bits, int redraw) override;
    int setColor(std::uint32_t index, std::uint32_t colour) override;
    std::int32_t getColor(std::uint32_t index) const override;
    void clear() override;
    void addPoint(const Point2D& point) override;
    int insertPoint(const Point2D& point, std::uint32_t index) override;
    int deletePoint(std::uint32_t index) override;
    int setPoint(std::uint32_t index, const Point2D& point, int redraw) override;
    int getPoint(std::uint32_t index, Point2D* point) const override;
    int selectPoint(std::uint32_t index, int selected, int redraw) override;
    void clearSelection(int redraw) override;
    int getSelectedCount() const override { return selectedCount_; }
    int getPointCount() const override { return static_cast<int>(points_.size()); }
    void setPointRadius(std::uint16_t radius) override { look_.radius = radius; }
    std::uint16_t getPointRadius() const override { return look_.radius; }
    void setPenWidth(std::uint8_t width) override { look_.penWidth = width; }
    std::uint8_t getPenWidth() const override { return look_.penWidth; }

    // All that reset() sets back but the name.
    struct Look {
        std::uint32_t flags = kSeriesDefaultFlags;
        std::uint16_t radius = 5;
        std::uint32_t line = 0, selected = 0x0000FF, point = 0;  // colours
        std::uint8_t penStyle = 0, penWidth = 1;                 // of the system's styles, solid
    };
    const Look& GetLook() const { return look_; }
    bool Is(std::uint32_t mask) const { return (look_.flags & mask) != 0; }
    const std::vector<Point2D>& Points() const { return points_; }
    // For the chart, which tells of it itself, and leaves kPointSelected alone.
    Point2D& At(std::size_t index) { return points_[index]; }
    // Whatever the count says.
    std::size_t CountSelected() const;
    // Selects those for which isChosen(point) is true and no others, and counts them anew.
    template <class IsChosen>
    void SelectBy(const IsChosen& isChosen) {
        selectedCount_ = 0;
        for (Point2D& point : points_) {
            const bool isIn = isChosen(point);
            point.flags = isIn ? point.flags | kPointSelected : point.flags & ~kPointSelected;
            selectedCount_ += isIn ? 1 : 0;
        }
    }

private:
    static std::uint32_t Look::*ColourOf(std::uint32_t index);  // null for an unknown one
    int Insert(std::size_t index, const Point2D& point);
    void Count(int more);
    void PaintIf(int redraw);

    ISeries2DOwner& owner_;
    std::vector<Point2D> points_;
    std::string name_;
    Look look_;
    int selectedCount_ = 0;
};

}  // namespace corvex
