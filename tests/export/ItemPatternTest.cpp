#include <gtest/gtest.h>

#include "definition/ADXValue.h"
#include "export/ItemPattern.h"

namespace corvex {
namespace {

TEST(ItemPatternTest, MatchesTheWholeText) {
    EXPECT_TRUE(MatchesPattern("RPM", "RPM"));
    EXPECT_FALSE(MatchesPattern("RPM", "RPM2"));
    EXPECT_FALSE(MatchesPattern("RPM", "xRPM"));
    EXPECT_FALSE(MatchesPattern("RPM", "RP"));
    EXPECT_TRUE(MatchesPattern("", ""));
    EXPECT_FALSE(MatchesPattern("", "x"));
}

TEST(ItemPatternTest, TakesEitherCase) {
    EXPECT_TRUE(MatchesPattern("*TEMP*", "Coolant Temperature"));
    EXPECT_TRUE(MatchesPattern("coolant*", "COOLANT X"));
}

TEST(ItemPatternTest, LetsAStarStandForAnything) {
    EXPECT_TRUE(MatchesPattern("*", ""));
    EXPECT_TRUE(MatchesPattern("**", "abc"));
    EXPECT_TRUE(MatchesPattern("a*b*c", "a--b--b-c"));
    EXPECT_TRUE(MatchesPattern("*ab", "aab"));
    EXPECT_FALSE(MatchesPattern("a*b*c", "a--c--b"));
    EXPECT_FALSE(MatchesPattern("*x", "abc"));
}

TEST(ItemPatternTest, LetsAQuestionMarkStandForOneCharacter) {
    EXPECT_TRUE(MatchesPattern("B?", "B1"));
    EXPECT_FALSE(MatchesPattern("B?", "B"));
    EXPECT_FALSE(MatchesPattern("B?", "B12"));
    EXPECT_TRUE(MatchesPattern("?C",
                               "\xC2\xB0"
                               "C"));
}

TEST(ItemPatternTest, EndsSoonOnManyStars) {
    std::string pattern;
    for (int i = 0; i < 2000; ++i)
        pattern += "*a";
    EXPECT_FALSE(MatchesPattern(pattern + "b", std::string(20000, 'a')));
}

TEST(ItemPatternTest, LooksAtTitleAndId) {
    ADXValue value;
    value.SetId("ECT");
    value.SetTitle("Coolant", 7);
    EXPECT_TRUE(ItemMatches("ect", value));
    EXPECT_TRUE(ItemMatches("cool*", value));
    EXPECT_TRUE(ItemMatches("", value));
    EXPECT_FALSE(ItemMatches("oil", value));
}

TEST(ItemPatternTest, ReadsTitlesOfTheNarrowCodePage) {
    ADXValue value;
    value.SetTitle(
        "\xB0"
        "C",
        2);
    EXPECT_TRUE(
        ItemMatches("\xC2\xB0"
                    "C",
                    value));
    EXPECT_TRUE(ItemMatches("?c", value));
}

}  // namespace
}  // namespace corvex
