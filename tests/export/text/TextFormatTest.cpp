#include <gtest/gtest.h>

#include "export/text/TextFormat.h"

namespace corvex {
namespace {

TEST(TextFormatTest, TakesForeignBytesForLatin1) {
    EXPECT_EQ(Utf8Text("\xB0 C"), "\xC2\xB0 C");
    EXPECT_EQ(Utf8Text("\xC2\xB0 C"), "\xC2\xB0 C");
    EXPECT_EQ(Utf8Text("a\xE2\x82"), "a\xC3\xA2 ");
}

TEST(TextFormatTest, KeepsControlCharactersOffTheScreen) {
    EXPECT_EQ(DisplayText("a\x1b[2Jb\n"), "a [2Jb ");
}

TEST(TextFormatTest, CutsByCharacters) {
    EXPECT_EQ(CutToWidth("\xC2\xB0\xC2\xB0\xC2\xB0", 2), "\xC2\xB0~");
    EXPECT_EQ(CutToWidth("abc", 3), "abc");
    EXPECT_EQ(CutToWidth("abc", 0), "");
}

TEST(TextFormatTest, CountsInWords) {
    EXPECT_EQ(Counted(1, "reply"), "1 reply");
    EXPECT_EQ(Counted(2, "reply"), "2 replies");
    EXPECT_EQ(Counted(0, "byte"), "0 bytes");
}

TEST(TextFormatTest, AlignsColumnsWithoutTrailingBlanks) {
    EXPECT_EQ(AlignColumns({{"a", "bb", ""}, {"ccc", "d", ""}}, " "), " a    bb\n ccc  d\n");
}

}  // namespace
}  // namespace corvex
