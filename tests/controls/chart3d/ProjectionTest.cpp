#include <gtest/gtest.h>

#include <cmath>

#include "controls/chart3d/Projection.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

TEST(ProjectionTest, GoesStepByStep) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        const Chart3DSpace space = RandomSpace(random);
        const Projection projection(space);
        const float x = Between(random, -200.0F, 600.0F), vertical = Between(random, -200.0F, 600.0F),
                    depth = Between(random, -200.0F, 600.0F);
        const ProjectedPoint point = projection.Project(x, vertical, depth);
        const ReferencePlace place = ReferenceProject(space, BoxPlace{x, depth, vertical});
        ASSERT_TRUE(IsCut(point.at, place)) << point.at.x << "," << point.at.y << " " << place.x << "," << place.y;
        ASSERT_TRUE(IsCut(point.depth, place.depth)) << point.depth << " " << place.depth;
        EXPECT_EQ(projection.Project(Point3D{x, depth, vertical, 0}).at, point.at) << "a point's z is its height";
    }
}

TEST(ProjectionTest, TheBoxStandsWhereItsDefaultsPutIt) {
    const Chart3DSpace space;
    const ProjectedPoint origin = Projection(space).Project(0.0F, 0.0F, 0.0F);
    EXPECT_EQ(origin.at, (YUpPoint{75, 68}));
    EXPECT_EQ(origin.depth, 180);
    EXPECT_EQ(Projection(space).Project(127.5F, 127.5F, 127.5F).at, (YUpPoint{255, 187})) << "the pivot";
}

TEST(ProjectionTest, ARangeWithoutExtentIsTheBoxesLowEnd) {
    Chart3DSpace space;
    const ProjectedPoint low = Projection(space).Project(0.0F, 0.0F, 0.0F);
    space.ranges.fill({5.0F, 5.0F});
    for (const float value : {5.0F, 0.0F, 1e9F, kNone, kEndless}) {
        const ProjectedPoint point = Projection(space).Project(value, value, value);
        EXPECT_EQ(point.at, low.at) << value;
        EXPECT_EQ(point.depth, low.depth) << value;
    }
}

TEST(ProjectionTest, AHeightThatIsNotFiniteStandsAtTheMinimum) {
    Chart3DSpace space;
    space.ranges[kVerticalAxis] = {40.0F, 90.0F};
    for (const bool normalises : {true, false}) {
        space.normalises = normalises;
        const Projection projection(space);
        for (const float height : {kNone, kEndless, -kEndless}) {
            EXPECT_EQ(projection.Project(7.0F, height, 9.0F).at, projection.Project(7.0F, 40.0F, 9.0F).at);
            EXPECT_EQ(projection.HeightOf(height), 40.0F);
        }
        EXPECT_EQ(projection.HeightOf(1e30F), 1e30F);
    }
}

TEST(ProjectionTest, FarPlacesKeepToTheEdge) {
    Chart3DSpace space;
    const Projection projection(space);
    constexpr int kEdge = 1 << 26;
    EXPECT_EQ(projection.Project(1e30F, 0.0F, 0.0F).at.x, kEdge);
    EXPECT_EQ(projection.Project(-1e30F, 0.0F, 0.0F).at.x, -kEdge);
    EXPECT_EQ(projection.Project(-1e30F, 0.0F, 0.0F).depth, kEdge);
    EXPECT_EQ(projection.Project(kNone, 0.0F, 0.0F).at, (YUpPoint{-kEdge, -kEdge}));
    space.rotation[0] = kEndless;
    EXPECT_EQ(Projection(space).Project(1.0F, 1.0F, 1.0F).at.y, -kEdge);
}

}  // namespace
}  // namespace corvex
