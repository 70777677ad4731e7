#include <gtest/gtest.h>

#include "definition/ADXValue.h"
#include "export/ItemPattern.h"

namespace corvex {
namespace {

TEST(ItemPatternTest, MatchesTheWholeTextInEitherCase) {
    const struct {
        const char *pattern, *text;
        bool matches;
    } rows[] = {
        {"RPM", "RPM", true},
        {"RPM", "RPM2", false},
        {"RPM", "xRPM", false},
        {"RPM", "RP", false},
        {"", "", true},
        {"", "x", false},
        {"*TEMP*", "Coolant Temperature", true},
        {"coolant*", "COOLANT X", true},
        {"*", "", true},  // a star stands for anything
        {"**", "abc", true},
        {"a*b*c", "a--b--b-c", true},
        {"*ab", "aab", true},
        {"a*b*c", "a--c--b", false},
        {"*x", "abc", false},
        {"B?", "B1", true},  // a question mark for one character
        {"B?", "B", false},
        {"B?", "B12", false},
        {"? C", "\xC2\xB0 C", true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MatchesPattern(row.pattern, row.text), row.matches) << row.pattern << " and " << row.text;
}

TEST(ItemPatternTest, EndsSoonOnManyStars) {
    std::string pattern;
    for (int i = 0; i < 2000; ++i)
        pattern += "*a";
    EXPECT_FALSE(MatchesPattern(pattern + "b", std::string(20000, 'a')));
}

TEST(ItemPatternTest, LooksAtTitleAndIdInTheNarrowCodePageToo) {
    ADXValue value;
    value.SetId("ECT");
    value.SetTitle("Coolant \xB0 C", 11);
    for (const char* pattern : {"oil\nect", "oil,*ant*", "ect,oil", "cool*", "", "coolant \xC2\xB0 c", "coolant ? c"})
        EXPECT_TRUE(ItemMatches(pattern, value)) << pattern;
    for (const char* pattern : {"oil", "oil,\nair", ","})
        EXPECT_FALSE(ItemMatches(pattern, value)) << pattern;
    value.SetTitle("Trim, left", 10);
    EXPECT_TRUE(ItemMatches("trim, *", value));
}

}  // namespace
}  // namespace corvex
