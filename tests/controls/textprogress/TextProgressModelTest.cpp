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

// The share of the position cut to a pixel. The minimum is not taken off it, and nothing is clamped but to an int.
TEST(TextProgressModelTest, LengthIsTheShareOfThePosition) {
    const struct {
        std::int32_t position, minimum, maximum, whole, length;
    } cases[] = {{0, 0, 100, 200, 0},
                 {50, 0, 100, 200, 100},
                 {100, 0, 100, 200, 200},
                 {33, 0, 100, 10, 3},
                 {99, 0, 100, 10, 9},
                 {100, 100, 200, 50, 50},
                 {150, 100, 200, 50, 75},
                 {150, 0, 100, 200, 300},
                 {-50, 0, 100, 200, -100},
                 {-33, 0, 100, 10, -3},
                 {50, 100, 0, 200, -100},
                 {50, 7, 7, 200, 0},
                 {0, 0, 0, 200, 0},
                 {kMost, 0, 1, 1000, kMost},
                 {kLeast, 0, 1, 1000, kLeast},
                 {kMost, kLeast, kMost, kMost, kMost / 2},
                 {kLeast, kMost, kLeast, 2, 1}};
    for (const auto& c : cases)
        EXPECT_EQ(At(c.position, c.minimum, c.maximum).Length(c.whole), c.length)
            << c.position << " of " << c.minimum << " to " << c.maximum;
}

TEST(TextProgressModelTest, BarGrowsFromTheLeftOrTheBottomAndNeverBeyondTheWindow) {
    const struct {
        std::int32_t position;
        bool vertical;
        const char *bar, *rest;
    } cases[] = {{25, false, "0,0,20,80", "20,0,80,80"}, {25, true, "0,60,80,80", "0,0,80,60"},
                 {kMost, false, "0,0,80,80", nullptr},   {kMost, true, "0,0,80,80", nullptr},
                 {kLeast, false, nullptr, "0,0,80,80"},  {kLeast, true, nullptr, "0,0,80,80"}};
    for (const auto& c : cases) {
        TextProgressModel model = At(c.position);
        model.vertical = c.vertical;
        for (const auto& [part, words] : {std::pair{model.Bar(80, 80), c.bar}, {model.Rest(80, 80), c.rest}}) {
            EXPECT_EQ(part.Empty(), words == nullptr) << c.position;
            if (words != nullptr) {
                EXPECT_EQ(Words(part), words) << c.position;
            }
        }
    }
}

TEST(TextProgressModelTest, WindowWithoutAnAreaHasNeither) {
    EXPECT_TRUE(At(50).Bar(0, 0).Empty());
    EXPECT_TRUE(At(50).Rest(0, 0).Empty());
}

TEST(TextProgressModelTest, StepBeyondTheMaximumReturnsToTheMinimumAndNeverLeavesAnInt) {
    const struct {
        std::int32_t position, step, minimum, maximum, after;
    } cases[] = {{95, 5, 10, 100, 100},
                 {100, 5, 10, 100, 10},
                 {10, -15, 10, 100, -5},
                 {kMost, kMost, 3, kMost, 3},
                 {kLeast, kLeast, 3, kMost, kLeast}};
    for (const auto& c : cases) {
        TextProgressModel model = At(c.position, c.minimum, c.maximum);
        model.step = c.step;
        EXPECT_EQ(model.StepIt(), c.position);
        EXPECT_EQ(model.position, c.after) << c.position << " " << c.step;
    }
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
