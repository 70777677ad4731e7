#include <gtest/gtest.h>

#include <climits>
#include <cstring>

#include "controls/chart3d/QZChart3DPlot.h"

namespace corvex {
namespace {

class OwnerFake final : public IPlot3DOwner {
public:
    void OnPointSet(const QZChart3DPlot&, const Point3D& was, const Point3D& now) override {
        before = was;
        after = now;
        ++points;
    }
    void OnPointsSet() override { ++batches; }
    void OnGridSized() override { ++sizes; }
    void PaintSoon() override { ++paints; }

    Point3D before, after;
    int points = 0, batches = 0, sizes = 0, paints = 0;
};

class QZChart3DPlotTest : public ::testing::Test {
protected:
    std::vector<int> Size() const {
        std::vector<int> size{-1, -1};
        plot.getGridSize(&size[0], &size[1]);
        return size;
    }

    OwnerFake owner;
    QZChart3DPlot own{owner};
    IQZChart3DPlot& plot = own;
};

TEST_F(QZChart3DPlotTest, ResetBringsBackWhatItBeganWith) {
    const auto check = [&](std::uint32_t stored) {
        EXPECT_EQ(plot.getFlags(), 0x14U);
        EXPECT_EQ(plot.getSelectedCount(), 0);
        EXPECT_EQ(plot.getPointRadius(), 3);
        EXPECT_EQ(plot.getType(), 1U);
        EXPECT_EQ(plot.getLineWidth(), 1);
        EXPECT_EQ(plot.getColor(15), 0);
        EXPECT_EQ(plot.getColor(12), 0xFF0000);
        EXPECT_EQ(plot.getColor(16), 0xFF);
        EXPECT_EQ(own.Colour(kPointColour), stored);
        EXPECT_EQ(own.Colour(kPlotStoredColour), stored);
    };
    check(0);
    plot.setGridSize(1, 1);
    plot.selectPoint(0, 0, 1, 0);
    plot.setFlags(0xFFFFFFFF, 0);
    plot.setPointRadius(9);
    plot.setType(0);
    plot.setLineWidth(9);
    for (std::uint32_t index = 0; index < 20; ++index)
        EXPECT_EQ(plot.setColor(index, 5), index == 7 || index == 12 || index == 13 || index == 15 || index == 16);
    EXPECT_EQ(plot.getColor(15) + plot.getColor(12) + plot.getColor(16), 15);
    EXPECT_EQ(plot.getColor(8), -1);
    plot.reset();
    check(5);
    EXPECT_FALSE(IsSelected(own.At(0, 0)));
}

TEST_F(QZChart3DPlotTest, NamesAreCutAndMeasured) {
    char buffer[100] = "untouched";
    plot.setName("surface");
    plot.setName(nullptr);
    EXPECT_EQ(plot.getName(nullptr, 5), 7U);
    EXPECT_EQ(plot.getName(buffer, 0), 7U);
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_EQ(plot.getName(buffer, 5), 7U);
    EXPECT_STREQ(buffer, "surf");
    const std::vector<char> endless(64, 'x');  // and nothing may be read behind it
    plot.setName(endless.data());
    EXPECT_EQ(plot.getName(buffer, sizeof buffer), 64U);
    EXPECT_EQ(std::strlen(buffer), 64U);
}

TEST_F(QZChart3DPlotTest, FlagsAreAddedAndTakenAwayWithTheSelection) {
    plot.setGridSize(1, 2);
    plot.setPoints(nullptr, 0);  // is ignored
    const auto isCleared = [&](const auto& work) {
        plot.selectPoint(0, 1, 1, 0);
        work();
        return plot.getSelectedCount() == 0 && !IsSelected(own.At(0, 1));
    };
    EXPECT_FALSE(isCleared([&] { plot.setFlags(0x200, 1); }));
    EXPECT_EQ(plot.getFlags(), 0x214U);
    EXPECT_EQ(plot.testFlag(0x204), 1);
    EXPECT_EQ(plot.testFlag(0x8), 0);
    EXPECT_FALSE(isCleared([&] { plot.clearFlags(0x204, 1); }));
    EXPECT_EQ(plot.getFlags(), 0x10U);
    EXPECT_EQ(owner.paints, 2);
    EXPECT_TRUE(isCleared([&] { plot.clearFlags(0x08, 0); }));
    EXPECT_TRUE(isCleared([&] { plot.clearFlags(0x10, 0); }));
    EXPECT_TRUE(isCleared([&] { plot.setFlags(0, 0); }));
    EXPECT_TRUE(isCleared([&] { plot.clearSelection(0); }));
    EXPECT_EQ(plot.getFlags(), 0U);
    EXPECT_EQ(owner.paints, 2);
    plot.clearSelection(1);
    EXPECT_EQ(owner.paints, 3);
}

TEST_F(QZChart3DPlotTest, AnotherGridKeepsWhatBothHave) {
    plot.setGridSize(2, 3);
    for (int i = 0; i < 6; ++i)
        own.At(i / 3, i % 3).z = static_cast<float>(i);
    plot.selectPoint(0, 1, 1, 0);
    plot.selectPoint(1, 2, 1, 0);
    plot.setGridSize(3, 2);
    EXPECT_EQ(Size(), (std::vector{3, 2}));
    std::vector<float> heights;
    for (const Point3D& point : own.Points())
        heights.push_back(point.z);
    EXPECT_EQ(heights, (std::vector<float>{0, 1, 3, 4, 0, 0}));
    EXPECT_EQ(plot.getSelectedCount(), 1);
    EXPECT_EQ(own.LastRow() + own.LastColumn(), 0) << "it is gone";
    EXPECT_EQ(owner.sizes, 2);
    for (const auto& [rows, columns] : {std::pair(-1, 2), {2, -1}, {INT_MAX, INT_MAX}, {1 << 13, (1 << 13) + 1}})
        plot.setGridSize(rows, columns);
    EXPECT_EQ(Size(), (std::vector{3, 2}));
    plot.getGridSize(nullptr, nullptr);
    plot.setGridSize(0, 5);
    EXPECT_EQ(Size(), (std::vector{0, 5}));
    EXPECT_EQ(plot.getSelectedCount(), 0);
}

TEST_F(QZChart3DPlotTest, PointsOutOfRangeAreRefused) {
    plot.setGridSize(2, 3);
    for (const auto& [row, column] : {std::pair(-1, 0), {0, -1}, {2, 0}, {0, 3}, {INT_MAX, INT_MAX}}) {
        Point3D point{1.0F, 2.0F, 3.0F, 1};
        plot.setPoint(row, column, point, 1);
        EXPECT_EQ(plot.getPoint(row, column, &point), 0);
        EXPECT_EQ(plot.selectPoint(row, column, 1, 1), 0);
        EXPECT_EQ(point.z, 3.0F);
    }
    EXPECT_EQ(plot.getPoint(0, 0, nullptr), 0);
    EXPECT_EQ(owner.points + owner.paints + plot.getSelectedCount(), 0);
}

TEST_F(QZChart3DPlotTest, AStoredPointBringsItsFlagsAndTheOwnerHearsOfIt) {
    plot.setGridSize(2, 3);
    plot.setPoint(1, 2, {1.0F, 2.0F, 3.0F, 0x81}, 0);
    EXPECT_EQ(owner.paints, 0);
    plot.setPoint(1, 2, {4.0F, 5.0F, 6.0F, 0x81}, 1);
    EXPECT_EQ(owner.paints, 1);
    EXPECT_EQ(owner.points, 2);
    EXPECT_EQ(owner.before.y, 2.0F);
    EXPECT_EQ(owner.after.y, 5.0F);
    EXPECT_EQ(plot.getSelectedCount(), 1);
    Point3D point;
    EXPECT_EQ(plot.getPoint(1, 2, &point), 1);
    EXPECT_EQ(point.x + point.y + point.z, 15.0F);
    EXPECT_EQ(point.flags, 0x81U);
    plot.clearSelection(0);
    EXPECT_EQ(own.At(1, 2).flags, 0x80U);
    plot.setPoint(1, 2, {}, 0);
    EXPECT_EQ(plot.getSelectedCount(), 0);
    const std::vector<Point3D> points(6, {1.0F, 1.0F, 1.0F, 1});
    plot.setPoints(points.data(), 1);
    EXPECT_EQ(plot.getSelectedCount(), 6);
    EXPECT_EQ(owner.batches * 100 + owner.points * 10 + owner.paints, 132);
}

TEST_F(QZChart3DPlotTest, SelectingCountsOnceAndIsRemembered) {
    plot.setGridSize(2, 3);
    EXPECT_EQ(plot.selectPoint(1, 2, 5, 0), 0);
    EXPECT_EQ(plot.selectPoint(0, 1, 1, 7), 1);
    EXPECT_EQ(plot.selectPoint(1, 2, 1, 0), 0);
    EXPECT_EQ(plot.getSelectedCount(), 2);
    EXPECT_EQ(own.LastRow() * 10 + own.LastColumn(), 12);
    plot.selectPoint(0, 1, 0, 0);
    plot.selectPoint(0, 1, 0, 0);
    EXPECT_EQ(plot.getSelectedCount(), 1);
    EXPECT_EQ(own.LastRow() * 10 + own.LastColumn(), 12);
    EXPECT_EQ(owner.paints, 1);
}

}  // namespace
}  // namespace corvex
