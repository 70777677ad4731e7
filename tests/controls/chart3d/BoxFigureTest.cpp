#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "controls/chart/LabelThinning.h"
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
    for (const FaceFigure& face : faces)
        EXPECT_EQ(face.corners, CornersOf(face.face, chart.model.space, chart.model.Seen()));
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

TEST_F(BoxFigureTest, WithoutTheStyleThereAreOutlinesAlone) {
    chart.SpreadTicks(4);
    chart.model.style &= ~kChart3DTickLines;
    for (const FaceFigure& face : Faces()) {
        EXPECT_TRUE(face.ticks.empty());
        EXPECT_EQ(face.corners, CornersOf(face.face, chart.model.space, chart.model.Seen()));
    }
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
    std::mt19937 random(9);
    for (int round = 0; round < 300; ++round) {
        Chart3DSpace& space = chart.model.space = RandomSpace(random);
        chart.model.style = kChart3DTickLines | (space.normalises ? kChart3DNormalise : 0u);
        for (const Chart3DAxis axis : {kXAxis, kDepthAxis, kVerticalAxis}) {
            chart.model.ticks[axis].SetCount(3);
            for (std::size_t i = 0; i < 3; ++i)
                chart.model.ticks[axis].Set(i, Between(random, -200.0F, 600.0F), "t");
        }
        for (const FaceFigure& face : Faces()) {
            const auto [plane, isMaximum] = PlaneOf(face.face);
            const bool isLevel = plane == kVerticalAxis;
            ASSERT_EQ(face.ticks.size(), isLevel ? 6u : 3u);
            for (std::size_t i = 0; i < face.ticks.size(); ++i) {
                const TickLine& line = face.ticks[i];
                ASSERT_EQ(line.axis, !isLevel ? kVerticalAxis : i < 3 ? kXAxis : kDepthAxis);
                BoxPlace low;
                low[plane] = isMaximum ? space.ranges[plane].maximum : space.ranges[plane].minimum;
                low[line.axis] = chart.model.ticks[line.axis].At(i % 3)->value;
                const std::size_t along = 3 - plane - line.axis;
                BoxPlace high = low;
                low[along] = space.ranges[along].minimum;
                high[along] = space.ranges[along].maximum;
                const auto level = [&](const BoxPlace& place) {
                    return LevelDepth(space, place[kXAxis], place[kVerticalAxis], place[kDepthAxis]);
                };
                const auto seen = [&](const BoxPlace& place) {
                    return ReferenceProject(space, place[kXAxis], place[kVerticalAxis], place[kDepthAxis]);
                };
                const bool isLowInFront = level(low) < level(high);
                ASSERT_TRUE(IsCut(line.to, seen(isLowInFront ? low : high)));
                ASSERT_TRUE(IsCut(line.from, seen(isLowInFront ? high : low)));
                if (!line.label) continue;
                const bool isRight = line.to.x >= line.from.x;
                ASSERT_EQ(line.label->at, (YUpPoint{line.to.x + (isRight ? 4 : -4), line.to.y}));
                ASSERT_EQ(line.label->side, isRight ? TextSide::kRight : TextSide::kLeft);
            }
        }
    }
}

// The wall's corner at the level that the other wall does not have.
YUpPoint FreeFoot(const FaceFigure& wall, const FaceFigure& level, const FaceFigure& other) {
    return *std::ranges::find_if(wall.corners, [&](YUpPoint corner) {
        return std::ranges::count(level.corners, corner) != 0 && std::ranges::count(other.corners, corner) == 0;
    });
}

// Looked at again from what was drawn: a label is left out only for the last one drawn on its axis, or on a wall for
// the label of the floor or ceiling that is nearest to the wall's own.
TEST_F(BoxFigureTest, CrowdedLabelsThinThemselvesByTheRule) {
    std::mt19937 random(10);
    int drawn = 0, leftOut = 0;
    const auto boxOf = [](const TickLine& line, const std::string& text) {
        const int width = 6 * static_cast<int>(text.size());
        const bool isRight = line.to.x >= line.from.x;
        const int left = isRight ? line.to.x + 4 : line.to.x - 4 - width;
        return YUpBox{{left + 1, line.to.y - 4}, {left + width - 1, line.to.y + 4}};
    };
    for (int round = 0; round < 300; ++round) {
        chart.model.space = RandomSpace(random);
        chart.model.style = kChart3DTickLines | (chart.model.space.normalises ? kChart3DNormalise : 0u);
        chart.SpreadTicks(2 + static_cast<int>(random() % 60));
        const auto faces = Faces();
        std::array<std::vector<const TickLine*>, 2> ofLevel;
        for (const FaceFigure& face : faces) {
            const Chart3DAxis plane = PlaneOf(face.face).axis;
            std::optional<YUpBox> first, last;
            if (plane != kVerticalAxis) {
                const YUpPoint foot = FreeFoot(face, faces[0], faces[face.face == faces[1].face ? 2 : 1]);
                const TickLine& nearest = *std::ranges::min(ofLevel[plane], {}, [foot](const TickLine* line) {
                    return std::hypot(line->to.x - foot.x, line->to.y - foot.y);
                });
                first = boxOf(nearest, nearest.label->text);
            }
            std::size_t i = 0;
            for (const TickLine& line : face.ticks) {
                if (i == chart.model.ticks[line.axis].Count()) i = 0, last.reset();
                const YUpBox box = boxOf(line, chart.model.ticks[line.axis].At(i++)->label);
                const bool fits = !(first && Overlap(box, *first)) && !(last && Overlap(box, *last));
                ASSERT_EQ(line.label.has_value(), fits) << round;
                if (fits) last = box;
                if (fits && plane == kVerticalAxis) ofLevel[line.axis].push_back(&line);
                ++(fits ? drawn : leftOut);
            }
        }
    }
    EXPECT_GT(drawn, 5000);
    EXPECT_GT(leftOut, 5000);
}

}  // namespace
}  // namespace corvex
