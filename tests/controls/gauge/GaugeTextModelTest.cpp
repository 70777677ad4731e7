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

std::string CopyOf(const GaugeText& text, std::size_t capacity) {
    char buffer[10] = "xxxxxxxxx";
    text.CopyTo(buffer, capacity);
    return buffer;
}

TEST(GaugeTextModelTest, KeepsACopyOfItsOwn) {
    std::string source = "Coolant";
    const GaugeText text = Holding(source.c_str(), source.size());
    source = "changed";
    EXPECT_TRUE(text.Present());
    EXPECT_EQ(text.View(), "Coolant");
}

TEST(GaugeTextModelTest, TextLongerThanItsLengthIsEmptyInsteadOfCut) {
    const struct {
        const char* text;
        std::size_t length;
        const char* kept;
    } cases[] = {{"RPM", 100, "RPM"}, {"RPM\0hidden", 10, "RPM"}, {"", 5, ""}, {"RPM", 3, "RPM"}, {"RPM", 2, ""}};
    for (const auto& expected : cases) {
        const GaugeText text = Holding(expected.text, expected.length);
        EXPECT_TRUE(text.Present());
        EXPECT_EQ(text.View(), expected.kept) << expected.text << " " << expected.length;
    }
}

TEST(GaugeTextModelTest, NeverReadsBeyondTheLengthAndOneByte) {
    const std::vector<char> unended(8, 'x');
    EXPECT_EQ(Holding(unended.data(), unended.size() - 1).View(), "");
}

TEST(GaugeTextModelTest, AbsentAtFirstAndWithoutATextOrALength) {
    GaugeText text;
    EXPECT_FALSE(text.Present());
    EXPECT_EQ(text.View(), "");
    text.Set("RPM", 3);
    text.Set("RPM", 0);
    EXPECT_FALSE(text.Present());
    text.Set("RPM", 3);
    text.Set(nullptr, 3);
    EXPECT_FALSE(text.Present());
}

TEST(GaugeTextModelTest, CopiesOutCutToTheCapacity) {
    const GaugeText text = Holding("Coolant", 7);
    EXPECT_EQ(CopyOf(text, 10), "Coolant");
    EXPECT_EQ(CopyOf(text, 5), "Cool");
    EXPECT_EQ(CopyOf(text, 1), "");
    EXPECT_EQ(CopyOf(text, 0), "xxxxxxxxx") << "left alone";
    EXPECT_EQ(CopyOf(GaugeText(), 4), "");
    text.CopyTo(nullptr, 5);
    char buffer[10] = "xxxxxxxxx";
    text.CopyTo(buffer, 5);
    EXPECT_EQ(buffer[5], 'x');
}

TEST(GaugeTextModelTest, TextOfHundredCharactersIsKeptButNotDrawn) {
    const std::string full(100, 'x'), drawn(99, 'x');
    EXPECT_EQ(Holding(drawn.c_str(), 99).Drawn(), drawn);
    EXPECT_EQ(Holding(full.c_str(), 100).View(), full);
    EXPECT_EQ(Holding(full.c_str(), 100).Drawn(), "");
}

}  // namespace
}  // namespace corvex
