#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "controls/chart3d/BoxFaces.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

using enum BoxFace;
using Faces = std::array<BoxFace, 3>;

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
        const Faces faces = FacesBehind(space.rotation[0], space.rotation[1]);
        EXPECT_TRUE(std::ranges::is_sorted(faces));
        for (const BoxFace face : faces) {
            const Chart3DAxis axis = PlaneOf(face).axis;
            BoxPlace centre{0.5F, 0.5F, 0.5F};
            const auto depth = [&] {
                const BoxPlace place = PlaceIn(space, centre);
                return axis == kVerticalAxis ? ReferenceProject(space, place).depth : LevelDepth(space, place);
            };
            const double middle = depth();
            centre[axis] = PlaneOf(face).isMaximum ? 1.0F : 0.0F;
            ASSERT_GT(depth(), middle) << static_cast<int>(face);
        }
    }
}

}  // namespace
}  // namespace corvex
