#include <gtest/gtest.h>

#include <limits>

#include "controls/textprogress/TextProgressModel.h"

namespace corvex {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

TextProgressModel At(std::int32_t position, std::int32_t minimum = 0, std::int32_t maximum = 100) {
    TextProgressModel model;
    model.minimum = minimum;
    model.maximum = maximum;
    model.position = position;
    return model;
}

std::string Words(const BarPart& part) {
    return std::to_string(part.left) + "," + std::to_string(part.top) + "," + std::to_string(part.right) + "," +
           std::to_string(part.bottom);
}

TEST(TextProgressModelTest, BeginsAsABarOf255Steps) {
    const TextProgressModel model;
    EXPECT_EQ(model.barColour, 0xD26400u);
    EXPECT_FALSE(model.vertical);
    EXPECT_EQ(model.minimum, 0);
    EXPECT_EQ(model.maximum, 255);
    EXPECT_EQ(model.step, 1);
    EXPECT_EQ(model.position, 0);
}

TEST(TextProgressModelTest, LengthIsTheShareOfThePositionCutToAPixel) {
    EXPECT_EQ(At(0).Length(200), 0);
    EXPECT_EQ(At(50).Length(200), 100);
    EXPECT_EQ(At(100).Length(200), 200);
    EXPECT_EQ(At(33).Length(10), 3);
    EXPECT_EQ(At(99).Length(10), 9);
}

TEST(TextProgressModelTest, MinimumIsNotTakenOffThePosition) {
    EXPECT_EQ(At(100, 100, 200).Length(50), 50);
    EXPECT_EQ(At(150, 100, 200).Length(50), 75);
}

TEST(TextProgressModelTest, PositionOutsideTheRangeIsNotClamped) {
    EXPECT_EQ(At(150).Length(200), 300);
    EXPECT_EQ(At(-50).Length(200), -100);
    EXPECT_EQ(At(-33).Length(10), -3);
}

TEST(TextProgressModelTest, RangeThatRunsBackwardsTurnsTheSign) {
    EXPECT_EQ(At(50, 100, 0).Length(200), -100);
}

TEST(TextProgressModelTest, EmptyRangeHasNoBar) {
    EXPECT_EQ(At(50, 7, 7).Length(200), 0);
    EXPECT_EQ(At(0, 0, 0).Length(200), 0);
}

TEST(TextProgressModelTest, HugeNumbersStayWithinAnInt) {
    EXPECT_EQ(At(kMost, 0, 1).Length(1000), kMost);
    EXPECT_EQ(At(kLeast, 0, 1).Length(1000), kLeast);
    EXPECT_EQ(At(kMost, kLeast, kMost).Length(kMost), kMost / 2);
    EXPECT_EQ(At(kLeast, kMost, kLeast).Length(2), 1);
}

TEST(TextProgressModelTest, BarGrowsFromTheLeft) {
    EXPECT_EQ(Words(At(25).Bar(80, 20)), "0,0,20,20");
    EXPECT_EQ(Words(At(25).Rest(80, 20)), "20,0,80,20");
}

TEST(TextProgressModelTest, VerticalBarGrowsFromTheBottom) {
    TextProgressModel model = At(25);
    model.vertical = true;
    EXPECT_EQ(Words(model.Bar(20, 80)), "0,60,20,80");
    EXPECT_EQ(Words(model.Rest(20, 80)), "0,0,20,60");
}

TEST(TextProgressModelTest, BarBeyondTheWindowFillsItAndLeavesNoRest) {
    for (const bool vertical : {false, true}) {
        TextProgressModel model = At(kMost);
        model.vertical = vertical;
        EXPECT_EQ(Words(model.Bar(80, 20)), "0,0,80,20");
        EXPECT_TRUE(model.Rest(80, 20).Empty());
    }
}

TEST(TextProgressModelTest, BarBelowZeroIsNone) {
    for (const bool vertical : {false, true}) {
        TextProgressModel model = At(kLeast);
        model.vertical = vertical;
        EXPECT_TRUE(model.Bar(80, 20).Empty());
        EXPECT_EQ(Words(model.Rest(80, 20)), "0,0,80,20");
    }
}

TEST(TextProgressModelTest, WindowWithoutAnAreaHasNeither) {
    EXPECT_TRUE(At(50).Bar(0, 0).Empty());
    EXPECT_TRUE(At(50).Rest(0, 0).Empty());
}

TEST(TextProgressModelTest, StepBeyondTheMaximumReturnsToTheMinimum) {
    TextProgressModel model = At(95, 10, 100);
    model.step = 5;
    EXPECT_EQ(model.StepIt(), 95);
    EXPECT_EQ(model.position, 100);
    EXPECT_EQ(model.StepIt(), 100);
    EXPECT_EQ(model.position, 10);
}

TEST(TextProgressModelTest, StepBackPassesTheMinimum) {
    TextProgressModel model = At(10, 10, 100);
    model.step = -15;
    model.StepIt();
    EXPECT_EQ(model.position, -5);
}

TEST(TextProgressModelTest, StepNeverLeavesAnInt) {
    TextProgressModel model = At(kMost, 3, kMost);
    model.step = kMost;
    model.StepIt();
    EXPECT_EQ(model.position, 3);
    model.position = model.step = kLeast;
    model.StepIt();
    EXPECT_EQ(model.position, kLeast);
}

TEST(TextProgressModelTest, TextIsInTwoTonesWithoutAColourOverAGroundWithOne) {
    TextProgressModel model;
    EXPECT_FALSE(model.TwoTone());
    model.label.SetTextColour(kNoColour);
    EXPECT_FALSE(model.TwoTone());
    model.label.SetBackColour(0xFFFFFF);
    EXPECT_TRUE(model.TwoTone());
    model.label.SetTextColour(0);
    EXPECT_FALSE(model.TwoTone());
}

}  // namespace
}  // namespace corvex
