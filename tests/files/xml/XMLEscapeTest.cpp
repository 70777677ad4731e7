#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

std::string Escaped(const char* text, std::size_t srcmax, std::size_t dstmax) {
    std::string out(dstmax + 16, '#');
    const std::size_t result = XMLWriter::Escape(text, srcmax, out.data(), dstmax);
    if (result == 0) return "refused";
    EXPECT_EQ(result, std::strlen(out.c_str()) + 1);
    EXPECT_EQ(out[result], '#');
    return out.c_str();
}

TEST(XMLEscape, WritesTheFiveEntitiesAndCutsToTheRoom) {
    const struct {
        const char* text;
        std::size_t srcmax, dstmax;
        const char* escaped;
    } cases[] = {
        {"a\"b&c'd<e>f", 1000, 1000, "a&quot;b&amp;c&apos;d&lt;e&gt;f"},
        {"&amp;", 1000, 1000, "&amp;amp;"},
        {"", 1000, 1000, ""},
        {"\xE9\x01\r\n\t\x7F\xFF;", 1000, 1000, "\xE9\x01\r\n\t\x7F\xFF;"},
        {"abcdef", 3, 1000, "abc"},
        {"<<<", 2, 1000, "&lt;&lt;"},
        {"abc", 0, 1000, ""},
        {"abcdef", 1000, 7, "abcdef"},
        {"abcdef", 1000, 6, "abcde"},
        {"abcdef", 1000, 1, ""},
        {"\"", 1000, 1, ""},
        // Two bytes of room let one more character in, and the terminator goes behind it.
        {"abc\"\"", 1000, 5, "abc&quot;"},
        {"abcd\"", 1000, 5, "abcd"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Escaped(one.text, one.srcmax, one.dstmax), one.escaped);
}

TEST(XMLEscape, PassesTheRoomByAtMostFiveBytesWithTheLastExpansion) {
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
