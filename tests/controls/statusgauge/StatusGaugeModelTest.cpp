#include <gtest/gtest.h>

#include <cstring>
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

std::string FalseTextOf(const StatusGaugeModel& model) {
    char buffer[32];
    std::memset(buffer, '?', sizeof buffer);
    model.ToldFalseText().CopyTo(buffer, sizeof buffer);
    return buffer;
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

TEST(StatusGaugeModelTest, WordAndColoursFollowTheState) {
    StatusGaugeModel model = WithWords(0);
    model.trueColour = 0x111111;
    model.falseColour = 0x222222;
    EXPECT_EQ(model.Word(), "OFF");
    EXPECT_EQ(model.WordColour(), 0x222222u);
    EXPECT_EQ(model.WordFill(), 0x0000FFu);
    model.state = 1;
    EXPECT_EQ(model.Word(), "ON");
    EXPECT_EQ(model.WordColour(), 0x111111u);
    EXPECT_EQ(model.WordFill(), 0x00FF00u);
}

TEST(StatusGaugeModelTest, OtherStatesShowTheTrueWordInTheColoursOfTheFalseOne) {
    for (const std::uint32_t state : {2u, 3u, 0x80000000u, 0xFFFFFFFFu}) {
        StatusGaugeModel model = WithWords(state);
        model.trueColour = 0x111111;
        EXPECT_EQ(model.Word(), "ON") << state;
        EXPECT_EQ(model.WordColour(), 0u) << state;
        EXPECT_EQ(model.WordFill(), 0x0000FFu) << state;
    }
}

TEST(StatusGaugeModelTest, AbsentTextIsNotReplacedByTheOtherOne) {
    StatusGaugeModel model = WithWords(1);
    model.trueText.Set(nullptr, 5);
    EXPECT_EQ(model.Word(), "");
    model = WithWords(0);
    model.falseText.Set("x", 0);
    EXPECT_EQ(model.Word(), "");
}

TEST(StatusGaugeModelTest, LongWordIsCut) {
    StatusGaugeModel model = WithWords(1);
    const std::string text = std::string(254, 'a') + std::string(100, 'b');
    Store(model.trueText, text);
    EXPECT_EQ(model.Word(), text.substr(0, 254));
    Store(model.trueText, text.substr(0, 254));
    EXPECT_EQ(model.Word(), text.substr(0, 254));
}

TEST(StatusGaugeModelTest, FalseTextIsToldWhereThereIsATitle) {
    StatusGaugeModel model = WithWords(0);
    EXPECT_EQ(FalseTextOf(model), "");
    Store(model.title, "Fan");
    EXPECT_EQ(FalseTextOf(model), "OFF");
    model.falseText.Set(nullptr, 0);
    EXPECT_EQ(FalseTextOf(model), "");
}

}  // namespace
}  // namespace corvex
