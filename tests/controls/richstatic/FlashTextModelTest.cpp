#include <gtest/gtest.h>

#include <vector>

#include "controls/richstatic/FlashTextModel.h"

namespace corvex {
namespace {

TEST(FlashTextModelTest, KeepsTextAndColoursAndAnswersTheOldOnes) {
    FlashTextModel model;
    EXPECT_STREQ(model.Text(), "");
    EXPECT_FALSE(model.Flashing());
    model.SetText("Ready");
    EXPECT_EQ(model.SetTextColour(0x112233), 0u);
    EXPECT_EQ(model.SetBackColour(0x445566), kNoColour);
    EXPECT_EQ(model.SetTextColour(0), 0x112233u);
    EXPECT_EQ(model.SetBackColour(0), 0x445566u);
    EXPECT_STREQ(model.Text(), "Ready");
    EXPECT_EQ(model.Length(), 5u);
}

TEST(FlashTextModelTest, TextOf261CharactersChangesTheFirstThreeAloneOfWhatLiesThere) {
    const std::string whole(260, 'x');
    const struct {
        std::vector<std::string> texts;
        std::string shown;
    } cases[] = {{{whole}, whole},
                 {{"Connected", whole + "x"}, "xxxnected"},
                 {{"Connected", "ab", std::string(1000, 'x')}, "xxxnected"},
                 {{std::string(300, 'x')}, "xxx"}};
    for (const auto& expected : cases) {
        FlashTextModel model;
        for (const std::string& text : expected.texts)
            model.SetText(text);
        EXPECT_EQ(model.Text(), expected.shown);
    }
}

struct Look {
    std::string text;
    std::uint32_t textColour, backColour;
    bool operator==(const Look&) const = default;
};

Look LookOf(const FlashTextModel& model) {
    return {model.Text(), model.TextColour(), model.BackColour()};
}

FlashTextModel Ready() {
    FlashTextModel model;
    model.SetText("Ready");
    model.SetTextColour(1);
    model.SetBackColour(2);
    return model;
}

TEST(FlashTextModelTest, FlashShowsItsOwnAndGivesTheFormerBackASecondIsLost) {
    FlashTextModel model = Ready();
    EXPECT_TRUE(model.BeginFlash("Saved", 3, 4));
    EXPECT_FALSE(model.BeginFlash("second", 5, 6));
    EXPECT_TRUE(model.Flashing());
    EXPECT_EQ(LookOf(model), (Look{"Saved", 3, 4}));
    EXPECT_TRUE(model.EndFlash());
    EXPECT_FALSE(model.Flashing());
    EXPECT_EQ(LookOf(model), (Look{"Ready", 1, 2}));
    EXPECT_TRUE(model.BeginFlash("again", 3, 4));
}

TEST(FlashTextModelTest, ChangesDuringAFlashShowWhenItEnds) {
    FlashTextModel model = Ready();
    model.BeginFlash("Saved", 3, 4);
    model.SetText("Connected");
    EXPECT_EQ(model.SetTextColour(5), 1u);
    EXPECT_EQ(model.SetBackColour(6), 2u);
    EXPECT_EQ(LookOf(model), (Look{"Saved", 3, 4}));
    model.EndFlash();
    EXPECT_EQ(LookOf(model), (Look{"Connected", 5, 6}));
}

TEST(FlashTextModelTest, OverlongTextsChangeThreeCharactersOfTheFlashAndNothingOfTheText) {
    FlashTextModel model = Ready();
    model.BeginFlash("Saved", 3, 4);
    model.SetText(std::string(261, 'x'));
    EXPECT_STREQ(model.Text(), "Saved");
    model.EndFlash();
    EXPECT_STREQ(model.Text(), "xxxed");
    model = Ready();
    model.BeginFlash(std::string(261, 'x'), 3, 4);
    EXPECT_STREQ(model.Text(), "xxxdy");
    model.EndFlash();
    EXPECT_STREQ(model.Text(), "Ready");
}

TEST(FlashTextModelTest, EndWithoutAFlashChangesNothing) {
    FlashTextModel model = Ready();
    EXPECT_FALSE(model.EndFlash());
    EXPECT_EQ(LookOf(model), (Look{"Ready", 1, 2}));
}

TEST(FlashTextModelTest, CopyStaysWithinItsCapacityAndEndsInZero) {
    FlashTextModel model;
    model.SetText("Ready");
    char buffer[8];
    const auto copied = [&](std::size_t capacity) {
        std::fill(std::begin(buffer), std::end(buffer), '#');
        const std::size_t length = model.CopyText(buffer, capacity);
        return std::to_string(length) + ":" + std::string(buffer, sizeof buffer);
    };
    EXPECT_EQ(copied(0), "0:########");
    EXPECT_EQ(copied(1), std::string("0:\0#######", 10));
    EXPECT_EQ(copied(3), std::string("2:Re\0#####", 10));
    EXPECT_EQ(copied(5), std::string("4:Read\0###", 10));
    EXPECT_EQ(copied(6), std::string("5:Ready\0##", 10));
    EXPECT_EQ(copied(100), std::string("5:Ready\0##", 10));
}

}  // namespace
}  // namespace corvex
