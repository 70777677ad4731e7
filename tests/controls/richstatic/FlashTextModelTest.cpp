#include <gtest/gtest.h>

#include "controls/richstatic/FlashTextModel.h"

namespace corvex {
namespace {

TEST(FlashTextModelTest, BeginsEmptyInBlackOnTheSystemsGround) {
    const FlashTextModel model;
    EXPECT_STREQ(model.Text(), "");
    EXPECT_EQ(model.Length(), 0u);
    EXPECT_EQ(model.TextColour(), 0u);
    EXPECT_EQ(model.BackColour(), kNoColour);
    EXPECT_FALSE(model.Flashing());
}

TEST(FlashTextModelTest, KeepsTextAndColoursAndAnswersTheOldOnes) {
    FlashTextModel model;
    model.SetText("Ready");
    EXPECT_EQ(model.SetTextColour(0x112233), 0u);
    EXPECT_EQ(model.SetBackColour(0x445566), kNoColour);
    EXPECT_EQ(model.SetTextColour(0), 0x112233u);
    EXPECT_EQ(model.SetBackColour(0), 0x445566u);
    EXPECT_STREQ(model.Text(), "Ready");
    EXPECT_EQ(model.Length(), 5u);
}

TEST(FlashTextModelTest, TextOf260CharactersFits) {
    FlashTextModel model;
    model.SetText(std::string(260, 'x'));
    EXPECT_EQ(model.Text(), std::string(260, 'x'));
}

TEST(FlashTextModelTest, TextOf261CharactersChangesTheFirstThreeAlone) {
    FlashTextModel model;
    model.SetText("Connected");
    model.SetText(std::string(261, 'x'));
    EXPECT_STREQ(model.Text(), "xxxnected");
}

TEST(FlashTextModelTest, OverlongTextShowsAgainWhatLayBehindAShorterOne) {
    FlashTextModel model;
    model.SetText("Connected");
    model.SetText("ab");
    model.SetText(std::string(1000, 'x'));
    EXPECT_STREQ(model.Text(), "xxxnected");
}

TEST(FlashTextModelTest, OverlongTextOnAnEmptyOneHasThreeCharacters) {
    FlashTextModel model;
    model.SetText(std::string(300, 'x'));
    EXPECT_STREQ(model.Text(), "xxx");
}

TEST(FlashTextModelTest, FlashShowsItsOwnAndGivesTheFormerBack) {
    FlashTextModel model;
    model.SetText("Ready");
    model.SetTextColour(1);
    model.SetBackColour(2);
    EXPECT_TRUE(model.BeginFlash("Saved", 3, 4));
    EXPECT_TRUE(model.Flashing());
    EXPECT_STREQ(model.Text(), "Saved");
    EXPECT_EQ(model.TextColour(), 3u);
    EXPECT_EQ(model.BackColour(), 4u);
    EXPECT_TRUE(model.EndFlash());
    EXPECT_FALSE(model.Flashing());
    EXPECT_STREQ(model.Text(), "Ready");
    EXPECT_EQ(model.TextColour(), 1u);
    EXPECT_EQ(model.BackColour(), 2u);
}

TEST(FlashTextModelTest, SecondFlashIsIgnoredAndItsTextLost) {
    FlashTextModel model;
    model.SetText("Ready");
    model.BeginFlash("first", 1, 2);
    EXPECT_FALSE(model.BeginFlash("second", 3, 4));
    EXPECT_STREQ(model.Text(), "first");
    EXPECT_EQ(model.TextColour(), 1u);
    EXPECT_EQ(model.BackColour(), 2u);
    model.EndFlash();
    EXPECT_STREQ(model.Text(), "Ready");
}

TEST(FlashTextModelTest, ChangesDuringAFlashShowWhenItEnds) {
    FlashTextModel model;
    model.SetText("Ready");
    model.SetTextColour(1);
    model.SetBackColour(2);
    model.BeginFlash("Saved", 3, 4);
    model.SetText("Connected");
    EXPECT_EQ(model.SetTextColour(5), 1u);
    EXPECT_EQ(model.SetBackColour(6), 2u);
    EXPECT_STREQ(model.Text(), "Saved");
    EXPECT_EQ(model.TextColour(), 3u);
    EXPECT_EQ(model.BackColour(), 4u);
    model.EndFlash();
    EXPECT_STREQ(model.Text(), "Connected");
    EXPECT_EQ(model.TextColour(), 5u);
    EXPECT_EQ(model.BackColour(), 6u);
}

TEST(FlashTextModelTest, OverlongTextDuringAFlashChangesThreeCharactersOfTheFlashAtItsEnd) {
    FlashTextModel model;
    model.SetText("Ready");
    model.BeginFlash("Saved", 3, 4);
    model.SetText(std::string(261, 'x'));
    EXPECT_STREQ(model.Text(), "Saved");
    model.EndFlash();
    EXPECT_STREQ(model.Text(), "xxxed");
}

TEST(FlashTextModelTest, OverlongFlashChangesThreeCharactersAndGivesTheTextBack) {
    FlashTextModel model;
    model.SetText("Ready");
    model.BeginFlash(std::string(261, 'x'), 3, 4);
    EXPECT_STREQ(model.Text(), "xxxdy");
    model.EndFlash();
    EXPECT_STREQ(model.Text(), "Ready");
}

TEST(FlashTextModelTest, EndWithoutAFlashChangesNothing) {
    FlashTextModel model;
    model.SetText("Ready");
    model.SetTextColour(1);
    EXPECT_FALSE(model.EndFlash());
    EXPECT_STREQ(model.Text(), "Ready");
    EXPECT_EQ(model.TextColour(), 1u);
}

TEST(FlashTextModelTest, FlashMayFollowAFlash) {
    FlashTextModel model;
    model.BeginFlash("first", 1, 2);
    model.EndFlash();
    EXPECT_TRUE(model.BeginFlash("second", 1, 2));
    EXPECT_STREQ(model.Text(), "second");
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
