#include <gtest/gtest.h>

#include <vector>

#include "controls/gauge/GaugeTextModel.h"

namespace corvex {
namespace {

GaugeText Holding(const char* text, std::size_t length) {
    GaugeText held;
    held.Set(text, length);
    return held;
}

TEST(GaugeTextModelTest, BeginsAbsent) {
    EXPECT_FALSE(GaugeText().Present());
    EXPECT_EQ(GaugeText().View(), "");
}

TEST(GaugeTextModelTest, KeepsACopyOfItsOwn) {
    std::string source = "Coolant";
    const GaugeText text = Holding(source.c_str(), source.size());
    source = "changed";
    EXPECT_TRUE(text.Present());
    EXPECT_EQ(text.View(), "Coolant");
}

TEST(GaugeTextModelTest, CopiesUpToTheZeroByteOfAShorterText) {
    EXPECT_EQ(Holding("RPM", 100).View(), "RPM");
    EXPECT_EQ(Holding("RPM\0hidden", 10).View(), "RPM");
    EXPECT_TRUE(Holding("", 5).Present());
}

TEST(GaugeTextModelTest, LengthTooSmallGivesAnEmptyTextInsteadOfACutOne) {
    EXPECT_EQ(Holding("RPM", 3).View(), "RPM");
    const GaugeText text = Holding("RPM", 2);
    EXPECT_TRUE(text.Present());
    EXPECT_EQ(text.View(), "");
}

TEST(GaugeTextModelTest, NeverReadsBeyondTheLengthAndOneByte) {
    const std::vector<char> unended(8, 'x');
    EXPECT_EQ(Holding(unended.data(), unended.size() - 1).View(), "");
}

TEST(GaugeTextModelTest, NoTextOrNoLengthTakesTheOldOneAway) {
    GaugeText text = Holding("RPM", 3);
    text.Set("RPM", 0);
    EXPECT_FALSE(text.Present());
    text.Set("RPM", 3);
    text.Set(nullptr, 3);
    EXPECT_FALSE(text.Present());
}

TEST(GaugeTextModelTest, CopiesOutCutToTheCapacity) {
    const GaugeText text = Holding("Coolant", 7);
    char buffer[10] = "xxxxxxxxx";
    text.CopyTo(buffer, 5);
    EXPECT_STREQ(buffer, "Cool");
    EXPECT_EQ(buffer[5], 'x');
    text.CopyTo(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "Coolant");
    text.CopyTo(buffer, 1);
    EXPECT_STREQ(buffer, "");
}

TEST(GaugeTextModelTest, AbsentTextComesOutEmpty) {
    char buffer[4] = "xxx";
    GaugeText().CopyTo(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "");
}

TEST(GaugeTextModelTest, NoBufferOrNoCapacityIsLeftAlone) {
    char buffer[4] = "xxx";
    Holding("RPM", 3).CopyTo(buffer, 0);
    EXPECT_STREQ(buffer, "xxx");
    Holding("RPM", 3).CopyTo(nullptr, 5);
}

TEST(GaugeTextModelTest, TextOfHundredCharactersIsKeptButNotDrawn) {
    const std::string full(100, 'x'), drawn(99, 'x');
    EXPECT_EQ(Holding(drawn.c_str(), 99).Drawn(), drawn);
    EXPECT_EQ(Holding(full.c_str(), 100).View(), full);
    EXPECT_EQ(Holding(full.c_str(), 100).Drawn(), "");
}

}  // namespace
}  // namespace corvex
