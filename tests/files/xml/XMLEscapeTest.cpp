#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

std::string Escaped(const char* text, std::size_t srcmax = 1000, std::size_t dstmax = 1000) {
    std::string out(dstmax + 16, '#');
    const std::size_t result = XMLWriter::Escape(text, srcmax, out.data(), dstmax);
    if (result == 0) return "refused";
    EXPECT_EQ(result, std::strlen(out.c_str()) + 1);
    EXPECT_EQ(out[result], '#');
    return out.c_str();
}

TEST(XMLEscape, WritesTheFiveEntities) {
    EXPECT_EQ(Escaped("a\"b&c'd<e>f"), "a&quot;b&amp;c&apos;d&lt;e&gt;f");
    EXPECT_EQ(Escaped("&amp;"), "&amp;amp;");
    EXPECT_EQ(Escaped(""), "");
}

TEST(XMLEscape, PassesOtherBytes) {
    EXPECT_EQ(Escaped("\xE9\x01\r\n\t\x7F\xFF;"), "\xE9\x01\r\n\t\x7F\xFF;");
}

TEST(XMLEscape, ReturnsTheLengthPlusOne) {
    char out[32];
    EXPECT_EQ(XMLWriter::Escape("a<b", 3, out, sizeof out), 7U);
    EXPECT_STREQ(out, "a&lt;b");
    EXPECT_EQ(XMLWriter::Escape("abc", 0, out, sizeof out), 1U);
    EXPECT_STREQ(out, "");
}

TEST(XMLEscape, StopsAfterSrcmaxCharacters) {
    EXPECT_EQ(Escaped("abcdef", 3), "abc");
    EXPECT_EQ(Escaped("<<<", 2), "&lt;&lt;");
}

TEST(XMLEscape, CutsPlainTextToTheRoom) {
    EXPECT_EQ(Escaped("abcdef", 1000, 7), "abcdef");
    EXPECT_EQ(Escaped("abcdef", 1000, 6), "abcde");
    EXPECT_EQ(Escaped("abcdef", 1000, 1), "");
    EXPECT_EQ(Escaped("\"", 1000, 1), "");
}

TEST(XMLEscape, PassesTheRoomByAtMostFiveBytesWithTheLastExpansion) {
    // Two bytes of room let one more character in, and the terminator goes behind it.
    EXPECT_EQ(Escaped("abc\"\"", 1000, 5), "abc&quot;");
    EXPECT_EQ(Escaped("abcd\"", 1000, 5), "abcd");
    for (std::size_t room = 1; room < 40; ++room) {
        std::string out(room + 16, '#');
        const std::size_t used = XMLWriter::Escape("\"\"\"\"\"\"\"\"\"\"", 10, out.data(), room);
        EXPECT_LE(used, room + 5) << room;
        EXPECT_EQ(out.find_last_not_of('#') + 1, used) << room;
    }
}

TEST(XMLEscape, RefusesBadArguments) {
    char out[8] = "keep";
    EXPECT_EQ(XMLWriter::Escape(nullptr, 1, out, sizeof out), 0U);
    EXPECT_EQ(XMLWriter::Escape("a", 1, nullptr, 8), 0U);
    EXPECT_EQ(XMLWriter::Escape("a", 1, out, 0), 0U);
    EXPECT_STREQ(out, "keep");
}

}  // namespace
}  // namespace corvex
