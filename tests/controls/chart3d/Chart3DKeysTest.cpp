#include <gtest/gtest.h>

#include <cmath>

#include "tests/controls/chart3d/Chart3DHostFake.h"

namespace corvex {
namespace {

constexpr Chart3DKey kArrows[] = {Chart3DKey::kLeft, Chart3DKey::kRight, Chart3DKey::kUp, Chart3DKey::kDown};

class Chart3DKeysTest : public ::testing::Test {
protected:
    int Repaints() { return std::exchange(fake.host.repaints, 0); }

    FakeChart fake;
    Chart3DSpace& space = fake.machine.chart.space;
};

TEST_F(Chart3DKeysTest, ControlTurnsWithoutALimit) {
    fake.Press(Chart3DKey::kControl);
    fake.Press(Chart3DKey::kLeft);
    fake.Press(Chart3DKey::kLeft);
    fake.Press(Chart3DKey::kUp);
    EXPECT_EQ(Repaints(), 3);
    EXPECT_EQ(space.rotation, (Vector3D{-0.05F, -0.1F, 0.0F}));
    fake.Press(Chart3DKey::kRight);
    for (int i = 0; i < 100; ++i)
        fake.Press(Chart3DKey::kDown);
    EXPECT_NEAR(space.rotation[0], 4.95F, 1e-4F);
    EXPECT_EQ(space.rotation[1], -0.05F);
    EXPECT_EQ(space.translation, Vector3D{});
}

TEST_F(Chart3DKeysTest, ShiftMovesUntilItIsOverTheEnd) {
    fake.Press(Chart3DKey::kShift);
    const struct {
        Chart3DKey key;
        std::size_t axis;
        float step;
    } cases[] = {{Chart3DKey::kLeft, 0, -2.0F},
                 {Chart3DKey::kRight, 0, 2.0F},
                 {Chart3DKey::kUp, 1, 2.0F},
                 {Chart3DKey::kDown, 1, -2.0F}};
    for (const auto& [key, axis, step] : cases) {
        space.translation = {};
        for (int i = 1; i <= 151; ++i) {
            fake.Press(key);
            EXPECT_EQ(space.translation[axis], step * static_cast<float>(i));
        }
        EXPECT_EQ(Repaints(), 151);
        fake.Press(key);
        EXPECT_EQ(space.translation[axis], step * 151.0F) << "stands beyond 300";
        EXPECT_EQ(Repaints(), 0);
        space.translation[axis] = step * 150.0F;
        fake.Press(key);
        EXPECT_EQ(space.translation[axis], step * 151.0F) << "stood at 300";
        space.translation[axis] = NAN;
        fake.Press(key);
        EXPECT_EQ(Repaints(), 1);
    }
    EXPECT_FALSE(fake.machine.chart.isPanned);
}

TEST_F(Chart3DKeysTest, BothScaleDownToTwoTenthsAndUpWithoutEnd) {
    fake.Press(Chart3DKey::kShift);
    fake.Press(Chart3DKey::kControl);
    for (const Chart3DKey key : kArrows)
        fake.Press(key);
    EXPECT_EQ(Repaints(), 0) << "arrows mean nothing with both";
    space.scale = {1.0F, 2.0F, 3.0F};
    fake.Press(Chart3DKey::kSmaller);
    EXPECT_EQ(space.scale, (Vector3D{0.98F, 1.98F, 2.98F})) << "each by as much";
    space.scale[0] = 0.2F;
    fake.Press(Chart3DKey::kSmaller);
    EXPECT_EQ(space.scale[0], 0.2F - 0.02F);
    Repaints();
    fake.Press(Chart3DKey::kSmaller);
    EXPECT_EQ(space.scale[0], 0.2F - 0.02F);
    EXPECT_EQ(Repaints(), 0);
    for (int i = 0; i < 1000; ++i)
        fake.Press(Chart3DKey::kLarger);
    EXPECT_NEAR(space.scale[0], 20.18F, 1e-3F);
}

}  // namespace
}  // namespace corvex
