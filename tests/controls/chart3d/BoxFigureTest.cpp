#include <gtest/gtest.h>

#include "controls/chart3d/BoxFigure.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

class BoxFigureTest : public ::testing::Test {
protected:
    std::array<FaceFigure, 3> Faces() const { return FacesOf(chart.model, chart.model.Seen(), SixPixelMeasure()); }
    // The texts that are drawn along an axis, and a dash for each that is not.
    static std::string Drawn(const FaceFigure& face, Chart3DAxis axis) {
        std::string text;
        for (const TickLine& line : face.ticks) {
            if (line.axis == axis) text += (text.empty() ? "" : " ") + (line.label ? line.label->text : "-");
        }
        return text;
    }

    TestChart3D chart;
};

TEST_F(BoxFigureTest, ByDefaultAllLabelsButTheWallsLowestHaveRoom) {
    chart.SpreadTicks(4);
    const auto faces = Faces();
    EXPECT_EQ(faces[0].face, BoxFace::kFloor);
    EXPECT_EQ(Drawn(faces[0], kXAxis), "0.00 85.00 170.00 255.00");
    EXPECT_EQ(Drawn(faces[0], kDepthAxis), "0.00 85.00 170.00 255.00");
    EXPECT_EQ(faces[1].face, BoxFace::kMinimumX);
    EXPECT_EQ(Drawn(faces[1], kVerticalAxis), "- 85.00 170.00 255.00");
    EXPECT_EQ(faces[2].face, BoxFace::kMaximumDepth);
    EXPECT_EQ(Drawn(faces[2], kVerticalAxis), "- 85.00 170.00 255.00");
    chart.model.style &= ~kChart3DTickLines;
    for (const FaceFigure& face : Faces())
        EXPECT_TRUE(face.ticks.empty());
}

TEST_F(BoxFigureTest, UnderACeilingTheWallsHighestHaveNone) {
    chart.SpreadTicks(4);
    chart.model.space.rotation[0] = 0.5F;
    const auto faces = Faces();
    EXPECT_EQ(faces[0].face, BoxFace::kCeiling);
    EXPECT_EQ(Drawn(faces[1], kVerticalAxis), "0.00 85.00 170.00 -");
    EXPECT_EQ(Drawn(faces[2], kVerticalAxis), "0.00 85.00 170.00 -");
}

TEST_F(BoxFigureTest, AWallKeepsOffTheLabelThatIsNearestWhateverTheOrder) {
    chart.SpreadTicks(4);
    for (const Chart3DAxis axis : {kXAxis, kDepthAxis})
        chart.model.ticks[axis].Spread(4, {255.0F, 0.0F}, nullptr);
    const auto faces = Faces();
    EXPECT_EQ(Drawn(faces[0], kXAxis), "255.00 170.00 85.00 0.00");
    EXPECT_EQ(Drawn(faces[1], kVerticalAxis), "- 85.00 170.00 255.00");
    EXPECT_EQ(Drawn(faces[2], kVerticalAxis), "- 85.00 170.00 255.00");
}

TEST_F(BoxFigureTest, ATickWithoutATextIsALineAndHindersNone) {
    chart.model.ticks[kXAxis].SetCount(3);
    chart.model.ticks[kXAxis].Set(2, 0.0F, "here");
    const auto faces = Faces();
    EXPECT_EQ(faces[0].ticks.size(), 3u);
    EXPECT_EQ(Drawn(faces[0], kXAxis), "- - here");
}

TEST_F(BoxFigureTest, ALineThatRunsStraightUpHasItsLabelToTheRight) {
    chart.SpreadTicks(2);
    chart.model.space.rotation[1] = 0.0F;
    const auto faces = Faces();
    const TickLine& line = faces[0].ticks[0];
    EXPECT_EQ(line.from.x, line.to.x);
    ASSERT_TRUE(line.label);
    EXPECT_EQ(line.label->side, TextSide::kRight);
    EXPECT_EQ(line.label->at.x, line.to.x + 4);
}

// Each line lies on its face from end to end, and its label is at the end that is in front.
TEST_F(BoxFigureTest, LinesRunFromTheWallToTheFront) {
    const char* const outlines[] = {"0132", "4576", "0451", "0264", "2376", "1375"};
    std::mt19937 random(9);
    for (int round = 0; round < 300; ++round) {
        Chart3DSpace& space = chart.model.space = RandomSpace(random);
        chart.model.style = kChart3DTickLines | (space.normalises ? kChart3DNormalise : 0u);
        chart.SpreadTicks(3);
        for (const FaceFigure& face : Faces()) {
            for (std::size_t i = 0; i < 4; ++i) {
                const int corner = outlines[static_cast<int>(face.face)][i] - '0';
                const BoxPlace part{corner & 1 ? 1.0F : 0.0F, corner & 2 ? 1.0F : 0.0F, corner & 4 ? 1.0F : 0.0F};
                ASSERT_TRUE(IsCut(face.corners[i], ReferenceProject(space, PlaceIn(space, part))));
            }
            const auto [plane, isMaximum] = PlaneOf(face.face);
            const bool isLevel = plane == kVerticalAxis;
            ASSERT_EQ(face.ticks.size(), isLevel ? 6u : 3u);
            for (std::size_t i = 0; i < face.ticks.size(); ++i) {
                const TickLine& line = face.ticks[i];
                ASSERT_EQ(line.axis, !isLevel ? kVerticalAxis : i < 3 ? kXAxis : kDepthAxis);
                BoxPlace part;
                part[plane] = isMaximum ? 1.0F : 0.0F;
                part[line.axis] = static_cast<float>(i % 3) / 2.0F;
                part[3 - plane - line.axis] = 0.0F;
                const BoxPlace low = PlaceIn(space, part);
                part[3 - plane - line.axis] = 1.0F;
                const BoxPlace high = PlaceIn(space, part);
                const bool isLowInFront = LevelDepth(space, low) < LevelDepth(space, high);
                ASSERT_TRUE(IsCut(line.to, ReferenceProject(space, isLowInFront ? low : high)));
                ASSERT_TRUE(IsCut(line.from, ReferenceProject(space, isLowInFront ? high : low)));
                if (!line.label) continue;
                const bool isRight = line.to.x >= line.from.x;
                ASSERT_EQ(line.label->at, (YUpPoint{line.to.x + (isRight ? 4 : -4), line.to.y}));
                ASSERT_EQ(line.label->side, isRight ? TextSide::kRight : TextSide::kLeft);
            }
        }
    }
}

}  // namespace
}  // namespace corvex
