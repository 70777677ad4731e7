#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "controls/scope/ScopeModel.h"

namespace corvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity(), kHuge = 1e308,
                 kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr int kEdge = 67108864;

// With the default range and decimals the plot is 42, 10, 290, 175: 248 by 165.
ScopeModel MakeScope(int width = 300, int height = 200) {
    ScopeModel scope;
    scope.SetClient(width, height);
    scope.LayOut();
    return scope;
}

std::vector<std::string> TextsOf(ScopeModel& scope) {
    std::vector<std::string> texts;
    for (const ScopeLabel& label : scope.LayOut().labels)
        texts.push_back(label.text);
    return texts;
}

TEST(ScopeModelTest, LeftEdgeMakesRoomForTheNumbers) {
    struct Case {
        double maximum, minimum;
        int decimals, left;
    };
    for (const Case& c :
         {Case{10, -10, 2, 42}, Case{0, 0, 0, 24}, Case{1, 9.99, 0, 24}, Case{99999, -3, 1, 54}, Case{0.001, 0, 3, 60},
          Case{kInfinity, kNoNumber, 0, 24}, Case{-1e308, 0, 0, 1872}, Case{1, 1, -5, 24}, Case{1, 1, 1000, 144}}) {
        ScopeModel scope = MakeScope();
        scope.SetYRange(c.maximum, c.minimum);
        scope.SetDecimals(c.decimals);
        EXPECT_EQ(scope.Plot(), (ScopeArea{42, 10, 290, 175})) << "until the next frame";
        EXPECT_EQ(scope.LayOut().plot.left, c.left) << c.maximum << " " << c.decimals;
    }
}

TEST(ScopeModelTest, LabelsStandAroundThePlot) {
    ScopeModel scope = MakeScope();
    scope.start = 300;
    scope.xLabel = "Samples";
    const ScopeFrame frame = scope.LayOut();
    const struct {
        ScopePoint place;
        ScopeTextAlign align;
    } wanted[] = {{{38, 10}, ScopeTextAlign::kBelowRight},     {{38, 175}, ScopeTextAlign::kBaselineRight},
                  {{42, 179}, ScopeTextAlign::kBelowLeft},     {{290, 179}, ScopeTextAlign::kBelowRight},
                  {{166, 179}, ScopeTextAlign::kBelowCentred}, {{14, 92}, ScopeTextAlign::kTurned}};
    ASSERT_EQ(frame.labels.size(), std::size(wanted));
    for (std::size_t i = 0; i < std::size(wanted); ++i) {
        EXPECT_EQ(frame.labels[i].place, wanted[i].place) << i;
        EXPECT_EQ(frame.labels[i].align, wanted[i].align) << i;
    }
    EXPECT_EQ(TextsOf(scope), (std::vector<std::string>{"10.00", "-10.00", "300", "382", "Samples", ""}));
    scope.isHexadecimal = true;
    scope.start = -1;
    EXPECT_EQ(TextsOf(scope)[2], "FFFFFFFF");
    EXPECT_EQ(TextsOf(scope)[3], "51");
    scope.isHexadecimal = false;
    scope.start = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(TextsOf(scope)[3], "-2147483567");
}

TEST(ScopeModelTest, MidlinesQuarterThePlotOrAreNotThere) {
    ScopeModel scope = MakeScope();
    EXPECT_EQ(scope.LayOut().midlines, (std::vector<int>{51, 92, 133}));
    scope.hasMidlines = false;
    EXPECT_TRUE(scope.LayOut().midlines.empty());
}

TEST(ScopeModelTest, AStepCountsAtOnceAndTheRoomForSamplesWithTheNextFrame) {
    ScopeModel scope = MakeScope();
    EXPECT_EQ(scope.VisibleSamples(), 82U);
    scope.SetStep(0);
    EXPECT_EQ(scope.Step(), 1U);
    EXPECT_EQ(scope.VisibleSamples(), 248U);
    for (int i = 0; i < 100; ++i)
        scope.AddSample(i);
    EXPECT_EQ(scope.Replay().size(), 82U);
    scope.LayOut();
    for (int i = 0; i < 300; ++i)
        scope.AddSample(i);
    EXPECT_EQ(scope.Replay().size(), 248U);
    scope.SetStep(100);
    EXPECT_EQ(scope.AddSample(0)->shift, 100);
}

TEST(ScopeModelTest, ASampleMovesTheTraceAndAddsALineOfOneStep) {
    ScopeModel scope = MakeScope();
    const struct {
        std::uint32_t step;
        double value;
        ScopeStroke wanted;
    } cases[] = {
        {3, 0.0, {3, 286, {286, 93}, {289, 93}}},   // its own previous one
        {3, 10.0, {3, 286, {286, 93}, {289, 10}}},  // 20 units on 165 pixels
        {3, -10.0, {3, 286, {286, 10}, {289, 175}}},
        {1, 10.01, {1, 289, {289, 175}, {290, 10}}},  // truncated
        {8, -11.0, {8, 278, {278, 10}, {286, 183}}},  // beyond the edge
        {2, kHuge, {2, 287, {287, 183}, {289, 175 - kEdge}}},
        {2, kNoNumber, {2, 287, {287, 175 - kEdge}, {289, 175 + kEdge}}},
        {0xFFFFFFFF, 0, {kEdge, 290 - kEdge, {290 - kEdge, 175 + kEdge}, {290 - kEdge, 93}}},
    };
    for (const auto& c : cases) {
        scope.SetStep(c.step);
        const auto stroke = scope.AddSample(c.value);
        ASSERT_TRUE(stroke) << c.value;
        EXPECT_EQ(stroke->shift, c.wanted.shift) << c.value;
        EXPECT_EQ(stroke->stripLeft, c.wanted.stripLeft) << c.value;
        EXPECT_EQ(stroke->from, c.wanted.from) << c.value << " " << stroke->from.y;
        EXPECT_EQ(stroke->to, c.wanted.to) << c.value << " " << stroke->to.y;
    }
}

TEST(ScopeModelTest, HistoryIsDrawnAnewAtAnotherScaleItsOldestSampleFlat) {
    ScopeModel scope = MakeScope();
    for (const double value : {1.0, 2.0, 4.0})
        scope.AddSample(value);
    scope.SetYRange(5.0, 0.0);
    const auto strokes = scope.Replay();
    ASSERT_EQ(strokes.size(), 3U);
    const int from[] = {142, 142, 109}, to[] = {142, 109, 43};  // 33 pixels a unit
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(strokes[i].from.y, from[i]) << i;
        EXPECT_EQ(strokes[i].to.y, to[i]) << i;
    }
    EXPECT_EQ(scope.AddSample(0.0)->from.y, 43) << "the last one is the previous one";
}

TEST(ScopeModelTest, ASmallerWindowKeepsTheNewestSamples) {
    ScopeModel scope = MakeScope();
    for (int i = 0; i < 100; ++i)
        scope.AddSample(i);
    scope.SetClient(82, 200);  // 30 pixels of plot
    scope.LayOut();
    scope.SetYRange(165.0, 0.0);  // a pixel a unit
    const auto strokes = scope.Replay();
    ASSERT_EQ(strokes.size(), 10U);
    EXPECT_EQ(strokes.front().to.y, 175 - 90);
    EXPECT_EQ(strokes.back().to.y, 175 - 99);
}

TEST(ScopeModelTest, EqualLimitsAreAFlatTraceInTheMiddle) {
    for (const double limit : {0.0, 7.0, -kHuge}) {
        ScopeModel scope = MakeScope(2200);
        scope.SetYRange(limit, limit);
        scope.LayOut();
        for (const double value : {0.0, 7.0, kInfinity, kNoNumber})
            EXPECT_EQ(scope.AddSample(value)->to.y, 93) << limit << " " << value;
    }
}

TEST(ScopeModelTest, AnyNumberAndAnySizeHaveAPlaceThatIsOne) {
    const double numbers[] = {0.0, -1.0, kHuge, -kHuge, kInfinity, -kInfinity, kNoNumber, 1e-320};
    for (const int size : {-5, 0, 1, 35, 60, 4000}) {
        for (const double maximum : numbers) {
            for (const double minimum : numbers) {
                ScopeModel scope;
                scope.SetYRange(maximum, minimum);
                scope.SetClient(size, size);
                scope.LayOut();
                for (const double value : numbers) {
                    const auto stroke = scope.AddSample(value);
                    EXPECT_LE(std::abs(stroke ? stroke->to.y : 0), kEdge + 4000);
                }
                scope.isLive = false;
                EXPECT_LE(scope.StaticTrace().size(), 4000U);
            }
        }
    }
}

TEST(ScopeModelTest, WithoutRoomAndInStaticModeNothingIsDrawn) {
    ScopeModel narrow = MakeScope(54, 200);  // 2 pixels of plot
    EXPECT_FALSE(narrow.AddSample(1.0));
    EXPECT_TRUE(narrow.Replay().empty());
    EXPECT_TRUE(narrow.StaticTrace().empty());
    EXPECT_FALSE(MakeScope(300, 35).AddSample(1.0)) << "no height";
    ScopeModel still = MakeScope();
    still.isLive = false;
    EXPECT_FALSE(still.AddSample(1.0));
    EXPECT_TRUE(still.Replay().empty());
    still.isLive = true;
    EXPECT_EQ(still.Replay().size(), 1U) << "but it is remembered";
    EXPECT_EQ(still.AddSample(2.0)->from.y, 175 - 90);
}

TEST(ScopeModelTest, StaticDataLieAcrossThePlotAndZerosAfterThem) {
    const float fraction = 2.5F;
    std::uint8_t data[8] = {10, 0, 200, 1};
    std::memcpy(data + 4, &fraction, sizeof fraction);
    const struct {
        std::uint8_t width;
        std::int32_t start;
        std::size_t size;
        std::vector<int> values;  // in halves
    } cases[] = {
        {1, 0, 4, {20, 0, 400, 2, 0, 0}},
        {1, 2, 4, {400, 2, 0, 0, 0, 0}},
        {2, 0, 4, {20, 912, 0, 0, 0, 0}},
        {2, 1, 4, {102400, 0, 0, 0, 0, 0}},  // the second is cut by the end
        {4, 4, 8, {5, 0, 0, 0, 0, 0}},
        {3, 0, 8, {0, 0, 0, 0, 0, 0}},
        {0, 0, 8, {0, 0, 0, 0, 0, 0}},
        {1, -2, 4, {0, 0, 20, 0, 400, 2}},
        {1, std::numeric_limits<std::int32_t>::max(), 4, {0, 0, 0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        ScopeModel scope = MakeScope(42 + 16 + 10, 37);  // 16 by 2 pixels: five steps of 3
        scope.SetYRange(1.0, 0.0);                       // of 2 pixels a unit
        scope.SetDecimals(3);
        scope.LayOut();
        scope.isLive = false;
        scope.data = data;
        scope.dataSize = c.size;
        scope.sampleWidth = c.width;
        scope.start = c.start;
        const auto trace = scope.StaticTrace();
        ASSERT_EQ(trace.size(), c.values.size());
        for (std::size_t i = 0; i < trace.size(); ++i)
            EXPECT_EQ(trace[i], (ScopePoint{42 + 3 * static_cast<int>(i), 12 - c.values[i]}))
                << int{c.width} << " " << i;
    }
    ScopeModel none = MakeScope();
    none.dataSize = sizeof data;
    EXPECT_EQ(none.StaticTrace().back().y, 93) << "no data are zeros";
}

}  // namespace
}  // namespace corvex
