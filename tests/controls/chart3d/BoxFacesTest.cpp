#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "controls/chart3d/BoxFaces.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

using enum BoxFace;
using Faces = std::array<BoxFace, 3>;

TEST(NormalAngleTest, IsWithinOneTurn) {
    EXPECT_EQ(NormalAngle(0.0F), 0.0F);
    EXPECT_NEAR(NormalAngle(-0.5F), 5.783185, 1e-5);
    EXPECT_NEAR(NormalAngle(7.0F), 0.716815, 1e-5);
    EXPECT_NEAR(NormalAngle(-7.0F), 5.566371, 1e-5);
    for (int i = -2000; i < 2000; ++i) {
        const float angle = static_cast<float>(i) * 0.013F;
        EXPECT_GE(NormalAngle(angle), 0.0F);
        EXPECT_LE(NormalAngle(angle), 6.2831855F);
        EXPECT_NEAR(std::cos(NormalAngle(angle)), std::cos(angle), 1e-5);
        EXPECT_NEAR(std::sin(NormalAngle(angle)), std::sin(angle), 1e-5);
    }
}

TEST(FacesBehindTest, TheDefaultAnglesShowFloorMinimumXAndMaximumDepth) {
    EXPECT_EQ(FacesBehind(-0.5F, 0.707F), (Faces{kFloor, kMinimumX, kMaximumDepth}));
}

TEST(FacesBehindTest, AQuadrantHasItsLowerEnd) {
    EXPECT_EQ(FacesBehind(0.0F, 0.0F), (Faces{kCeiling, kMinimumX, kMaximumDepth}));
    EXPECT_EQ(FacesBehind(std::nextafter(3.1415927F, 0.0F), std::nextafter(1.5707964F, 0.0F)),
              (Faces{kCeiling, kMinimumX, kMaximumDepth}));
    EXPECT_EQ(FacesBehind(3.1415927F, 1.5707964F), (Faces{kFloor, kMinimumDepth, kMinimumX}));
    EXPECT_EQ(FacesBehind(-1.0F, 3.1415927F), (Faces{kFloor, kMinimumDepth, kMaximumX}));
    EXPECT_EQ(FacesBehind(-1.0F, 4.712389F), (Faces{kFloor, kMaximumDepth, kMaximumX}));
    EXPECT_EQ(FacesBehind(-1e-20F, -1e-20F), (Faces{kFloor, kMaximumDepth, kMaximumX})) << "a whole turn";
    EXPECT_EQ(FacesBehind(std::nanf(""), std::nanf("")), (Faces{kFloor, kMaximumDepth, kMaximumX}));
}

// The yaw alone chooses the walls, so a box that stands on its head has them in front.
TEST(FacesBehindTest, AreBehindTheMiddleOfTheBox) {
    std::mt19937 random(6);
    for (int round = 0; round < 2000; ++round) {
        Chart3DSpace space = RandomSpace(random);
        if (round % 2 != 0) space.rotation[0] += 3.1415927F;
        const BoxPlace low{space.ranges[kXAxis].minimum, space.ranges[kDepthAxis].minimum,
                           space.ranges[kVerticalAxis].minimum};
        const BoxPlace high{space.ranges[kXAxis].maximum, space.ranges[kDepthAxis].maximum,
                            space.ranges[kVerticalAxis].maximum};
        BoxPlace middle;
        for (std::size_t i = 0; i < 3; ++i)
            middle[i] = (low[i] + high[i]) / 2.0F;
        Faces faces = FacesBehind(space.rotation[0], space.rotation[1]);
        EXPECT_TRUE(std::ranges::is_sorted(faces));
        for (const BoxFace face : faces) {
            const Chart3DAxis axis = PlaneOf(face).axis;
            BoxPlace centre = middle;
            centre[axis] = PlaneOf(face).isMaximum ? high[axis] : low[axis];
            const auto depth = [&](const BoxPlace& place) {
                if (axis != kVerticalAxis)
                    return LevelDepth(space, place[kXAxis], place[kVerticalAxis], place[kDepthAxis]);
                return ReferenceProject(space, place[kXAxis], place[kVerticalAxis], place[kDepthAxis]).depth;
            };
            ASSERT_GT(depth(centre), depth(middle)) << static_cast<int>(face);
        }
    }
}

TEST(CornersTest, LieOnTheFaceInTheOrderOfItsOutline) {
    std::mt19937 random(8);
    for (int round = 0; round < 100; ++round) {
        const Chart3DSpace space = RandomSpace(random);
        const Projection projection(space);
        const char* const outlines[] = {"0132", "4576", "0451", "0264", "2376", "1375"};
        for (int face = 0; face < 6; ++face) {
            const auto corners = CornersOf(static_cast<BoxFace>(face), space, projection);
            for (std::size_t i = 0; i < 4; ++i) {
                const int corner = outlines[face][i] - '0';
                const auto end = [&](Chart3DAxis axis, int bit) {
                    return (corner & bit) != 0 ? space.ranges[axis].maximum : space.ranges[axis].minimum;
                };
                ASSERT_TRUE(IsCut(corners[i],
                                  ReferenceProject(space, end(kXAxis, 1), end(kVerticalAxis, 4), end(kDepthAxis, 2))))
                    << face << " " << i;
            }
        }
    }
}

}  // namespace
}  // namespace corvex
