#include <gtest/gtest.h>

#include "definition/OwnedText.h"

namespace corvex {
namespace {

TEST(TextLength, StopsAtTheLimit) {
    EXPECT_EQ(TextLength("abc", 10), 3u);
    EXPECT_EQ(TextLength("abc", 2), 2u);
    EXPECT_EQ(TextLength(nullptr, 2), 0u);
    const char unterminated[] = {'a', 'b'};
    EXPECT_EQ(TextLength(unterminated, 2), 2u);
}

TEST(OwnedText, TellsNoTextFromAnEmptyOne) {
    OwnedText text;
    EXPECT_FALSE(text.IsSet());
    EXPECT_EQ(text.CStr(), nullptr);
    text.Set("", 0);
    EXPECT_TRUE(text.IsSet());
    EXPECT_STREQ(text.CStr(), "");
    text.Set(nullptr, 5);
    EXPECT_FALSE(text.IsSet());
}

TEST(OwnedText, TakesNoEmptyTextWhereToldSo) {
    OwnedText text;
    text.SetUnlessEmpty("ab\0cd", 5);
    EXPECT_EQ(text.Length(), 2u) << "ends at the first NUL";
    text.SetUnlessEmpty("abc", 2);
    EXPECT_STREQ(text.CStr(), "ab");
    text.SetUnlessEmpty("abc", 0);
    EXPECT_FALSE(text.IsSet());
    text.SetUnlessEmpty("", 5);
    EXPECT_FALSE(text.IsSet());
}

TEST(OwnedText, SurvivesAPieceOfItself) {
    OwnedText text;
    text.Set("a rather long text that lives on the heap", 100);
    text.Set(text.CStr() + 2, 6);
    EXPECT_STREQ(text.CStr(), "rather");
}

TEST(OwnedText, CopiesWithinTheBuffer) {
    OwnedText text;
    text.Set("abcdef", 6);
    char out[4] = "xxx";
    EXPECT_EQ(text.CopyTo(out, 4), 3u);
    EXPECT_STREQ(out, "abc");
    EXPECT_EQ(text.CopyWithTerminator(out, 4), 4u);
    EXPECT_EQ(text.CopyTo(nullptr, 4), 0u);
    EXPECT_EQ(text.CopyTo(out, 0), 0u);
    EXPECT_EQ(text.CopyWithTerminator(out, 0), 1u);
    EXPECT_STREQ(out, "abc");
    text.Clear();
    EXPECT_EQ(text.CopyWithTerminator(out, 4), 1u);
    EXPECT_STREQ(out, "");
}

}  // namespace
}  // namespace corvex
