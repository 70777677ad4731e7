#include <gtest/gtest.h>

#include <string>

#include "controls/statusgauge/StatusGaugeModel.h"

namespace corvex {
namespace {

void Store(GaugeText& text, const std::string& source) {
    text.Set(source.c_str(), source.size());
}

StatusGaugeModel WithWords(std::uint32_t state) {
    StatusGaugeModel model;
    model.state = state;
    Store(model.trueText, "ON");
    Store(model.falseText, "OFF");
    return model;
}

TEST(StatusGaugeModelTest, BeginsWithItsDefaults) {
    const StatusGaugeModel model;
    EXPECT_EQ(model.flags, 1u);
    EXPECT_FALSE(model.Round());
    EXPECT_EQ(model.titleColour, 0x000000u);
    EXPECT_EQ(model.trueColour, 0x000000u);
    EXPECT_EQ(model.falseColour, 0x000000u);
    EXPECT_EQ(model.trueFill, 0x00FF00u);
    EXPECT_EQ(model.falseFill, 0x0000FFu);
    EXPECT_EQ(model.state, 0u);
    EXPECT_FALSE(model.title.Present());
    EXPECT_FALSE(model.trueText.Present());
    EXPECT_FALSE(model.falseText.Present());
}

TEST(StatusGaugeModelTest, FlagsAreAddedAndNoneClearsThemAll) {
    StatusGaugeModel model;
    model.AddFlags(0x80);
    EXPECT_EQ(model.flags, 0x81u);
    EXPECT_TRUE(model.Round());
    model.AddFlags(0);
    EXPECT_EQ(model.flags, 0u);
    EXPECT_FALSE(model.Round());
}

// Any state but 0 shows the true word, but only 1 shows its colours.
TEST(StatusGaugeModelTest, WordAndColoursFollowTheState) {
    for (const std::uint32_t state : {0u, 1u, 2u, 3u, 0x80000000u, 0xFFFFFFFFu}) {
        StatusGaugeModel model = WithWords(state);
        model.trueColour = 0x111111;
        model.falseColour = 0x222222;
        EXPECT_EQ(model.Word(), state == 0 ? "OFF" : "ON") << state;
        EXPECT_EQ(model.WordColour(), state == 1 ? 0x111111u : 0x222222u) << state;
        EXPECT_EQ(model.WordFill(), state == 1 ? 0x00FF00u : 0x0000FFu) << state;
    }
}

TEST(StatusGaugeModelTest, AbsentTextIsNotReplacedByTheOtherOneAndALongOneIsCut) {
    StatusGaugeModel model = WithWords(0);
    model.falseText.Set("x", 0);
    EXPECT_EQ(model.Word(), "");
    model = WithWords(1);
    model.trueText.Set(nullptr, 5);
    EXPECT_EQ(model.Word(), "");
    for (const std::size_t length : {254U, 255U, 354U}) {
        Store(model.trueText, std::string(length, 'a'));
        EXPECT_EQ(model.Word(), std::string(254, 'a'));
    }
}

TEST(StatusGaugeModelTest, FalseTextIsToldWhereThereIsATitle) {
    StatusGaugeModel model = WithWords(0);
    EXPECT_EQ(model.ToldFalseText().View(), "");
    model.title.Set("", 1);
    EXPECT_EQ(model.ToldFalseText().View(), "OFF") << "an empty one is there";
    model.falseText.Set(nullptr, 0);
    EXPECT_EQ(model.ToldFalseText().View(), "");
}

}  // namespace
}  // namespace corvex
