#include <gtest/gtest.h>

#include <cstring>

#include "controls/chart2d/QZChart2DSeries.h"
#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {
namespace {

class QZChart2DSeriesTest : public ::testing::Test {
protected:
    float XOf(std::uint32_t index) {
        Point2D point;
        EXPECT_EQ(series.getPoint(index, &point), 1);
        return point.x;
    }
    int PaintsSoon() { return std::exchange(fake.host.soon, 0); }

    FakeChart2D fake;
    QZChart2DSeries& series = *fake.machine.AddSeries(0, false);
};

TEST_F(QZChart2DSeriesTest, ResetGivesBackHowItBegan) {
    const auto expectDefaults = [&] {
        EXPECT_EQ(series.getFlags(), 0x4BU);
        EXPECT_EQ(series.getPointRadius(), 5);
        EXPECT_EQ(series.getPenWidth(), 1);
        EXPECT_EQ(series.GetLook().penStyle, 0);
        EXPECT_EQ(series.getColor(12), 0x0000FF);
        EXPECT_EQ(series.getColor(13), 0);
        EXPECT_EQ(series.getColor(15), 0);
        EXPECT_EQ(series.getName(nullptr, 0), 0U);
    };
    expectDefaults();
    series.addPoint({1.0F, 2.0F, 3, 1});
    series.setFlags(0x84, 0);
    series.setPointRadius(9);
    series.setPenWidth(7);
    for (const std::uint32_t index : {12U, 13U, 15U}) {
        EXPECT_EQ(series.setColor(index, 0x010203 + index), 1);
        EXPECT_EQ(series.getColor(index), static_cast<std::int32_t>(0x010203 + index));
    }
    series.setName("Advance");
    EXPECT_EQ(series.getPointRadius() * 10 + series.getPenWidth(), 97);
    series.reset();
    expectDefaults();
    EXPECT_EQ(series.getPointCount() * 10 + series.getSelectedCount(), 11) << "points stay";
    for (const std::uint32_t index : {0U, 11U, 14U, 16U, 0xFFFFFFFFU}) {
        EXPECT_EQ(series.setColor(index, 1), 0);
        EXPECT_EQ(series.getColor(index), -1);
    }
}

TEST_F(QZChart2DSeriesTest, NamesAreCutAt64) {
    char name[100] = "untouched";
    series.setName(std::string(80, 'n').c_str());
    series.setName(nullptr);
    EXPECT_EQ(series.getName(name, 0), 64U);
    EXPECT_STREQ(name, "untouched");
    EXPECT_EQ(series.getName(name, sizeof name), 64U);
    EXPECT_EQ(name, std::string(64, 'n'));
    EXPECT_EQ(series.getName(name, 3), 64U);
    EXPECT_STREQ(name, "nn");
}

TEST_F(QZChart2DSeriesTest, FlagsAreAddedAndTakenAway) {
    series.setFlags(0x80, 0);
    EXPECT_EQ(series.getFlags(), 0xCBU);
    series.clearFlags(0x47, 1);
    EXPECT_EQ(series.getFlags(), 0x88U);
    EXPECT_EQ(series.testFlag(0x0F), 1);
    EXPECT_EQ(series.testFlag(0x77), 0);
    series.setFlags(0, 1);
    EXPECT_EQ(series.getFlags(), 0U);
    EXPECT_EQ(PaintsSoon(), 2);
}

TEST_F(QZChart2DSeriesTest, PointsComeGoAndAreStored) {
    series.addPoint({1.0F, 1.0F, 77});
    series.addPoint({3.0F, 3.0F});
    EXPECT_EQ(series.insertPoint({2.0F, 2.0F}, 1), 1);
    EXPECT_EQ(series.insertPoint({9.0F, 9.0F}, 3), 0) << "not behind the last";
    EXPECT_EQ(series.setPoint(2, {4.0F, 4.0F}, 0), 1);
    EXPECT_EQ(series.setPoint(3, {4.0F, 4.0F}, 1), 0);
    EXPECT_EQ(PaintsSoon(), 0);
    EXPECT_EQ(series.setPoint(2, {5.0F, 4.0F}, 1), 1);
    EXPECT_EQ(PaintsSoon(), 1);
    EXPECT_EQ(series.getPointCount(), 3);
    EXPECT_EQ(XOf(0) * 100 + XOf(1) * 10 + XOf(2), 125.0F);
    Point2D point{-1.0F, -1.0F};
    EXPECT_EQ(series.getPoint(3, &point), 0);
    EXPECT_EQ(series.getPoint(0, nullptr), 0);
    EXPECT_EQ(point.x, -1.0F);
    series.getPoint(0, &point);
    EXPECT_EQ(point.word, 77U);
    EXPECT_EQ(series.deletePoint(1), 1);
    EXPECT_EQ(series.deletePoint(2), 0);
    EXPECT_EQ(XOf(0) * 10 + XOf(1), 15.0F);
    EXPECT_EQ(PaintsSoon(), 0);
    series.clear();
    EXPECT_EQ(series.getPointCount(), 0);
    EXPECT_EQ(PaintsSoon(), 1);
    EXPECT_EQ(series.insertPoint(point, 0) + series.deletePoint(0) + series.getPoint(0, &point), 0);
}

TEST_F(QZChart2DSeriesTest, TheCountFollowsWhatIsSaidNotWhatIs) {
    const auto counts = [&] { return std::pair(series.getSelectedCount(), static_cast<int>(series.CountSelected())); };
    series.addPoint({0.0F, 0.0F, 0, 1});
    series.addPoint({0.0F, 0.0F, 0, 0});
    EXPECT_EQ(counts(), std::pair(1, 1));
    EXPECT_EQ(series.selectPoint(0, 1, 0), 1);
    EXPECT_EQ(counts(), std::pair(2, 1)) << "it was selected before";
    EXPECT_EQ(series.selectPoint(2, 1, 1), 0);
    EXPECT_EQ(PaintsSoon(), 0);
    EXPECT_EQ(series.selectPoint(1, -1, 1), 1);
    EXPECT_EQ(PaintsSoon(), 1);
    EXPECT_EQ(counts(), std::pair(3, 2));
    for (int i = 0; i < 5; ++i)
        series.selectPoint(0, 0, 0);
    EXPECT_EQ(counts(), std::pair(0, 1)) << "never below";
    series.clearSelection(1);
    EXPECT_EQ(PaintsSoon(), 1);
    EXPECT_EQ(counts(), std::pair(0, 0));
    series.insertPoint({0.0F, 0.0F, 0, 1}, 0);
    series.setPoint(1, {0.0F, 0.0F, 0, 3}, 0);
    series.setPoint(1, {1.0F, 0.0F, 0, 5}, 0);
    EXPECT_EQ(counts(), std::pair(2, 2));
    series.setPoint(1, {1.0F, 0.0F, 0, 2}, 0);
    EXPECT_EQ(counts(), std::pair(1, 1));
    series.deletePoint(1);
    EXPECT_EQ(counts(), std::pair(1, 1));
    series.deletePoint(0);
    EXPECT_EQ(counts(), std::pair(0, 0));
    series.selectPoint(0, 1, 0);
    series.selectPoint(0, 1, 0);
    series.deletePoint(0);
    EXPECT_EQ(counts(), std::pair(1, 0));
    series.clear();
    EXPECT_EQ(counts(), std::pair(0, 0));
}

}  // namespace
}  // namespace corvex
