#include <gtest/gtest.h>

#include "files/xml/SAXInput.h"
#include "tests/files/xml/SAXRecorder.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

using namespace std::string_literals;

TEST(SAXInput, TakesWideInputInBothByteOrders) {
    const std::string text = "<a b='1'>x</a>";
    const std::pair<std::string, Events> cases[] = {
        {Widened(text), {"<a b=[1]", "text0 x", "/a"}},
        {Widened(text, true), {"<a b=[1]", "text0 x", "/a"}},
        {"\xFF\xFE" + Widened(text), {"<a b=[1]", "text0 x", "/a"}},
        {"\xFE\xFF" + Widened(text, true), {"<a b=[1]", "text0 x", "/a"}},
        // Wide characters stay whole.
        {"\xFF\xFE<\0a\0>\0\xE9\0\x00\x04\xB0\xFF"s, {"<a", "text0 \\u00E9\\u0400\\uFFB0"}},
        {"\xFE\xFF\0<\0a\0>\0\xE9\x04\x00\xFF\xB0"s, {"<a", "text0 \\u00E9\\u0400\\uFFB0"}},
        // A marked document may begin with anything.
        {"\xFF\xFE", {}},
        {"\xFF\xFE" + Widened(" \r\n<a/>"), {"<a", "/a"}},
        {"\xFE\xFF" + Widened("x", true), {"text0 x"}},
        // An odd last byte is a character with a zero.
        {Widened("<a>") + "x", {"<a", "text0 x"}},
        {Widened("<a>", true) + "x", {"<a", "text0 \\u7800"}},
    };
    for (const auto& [bytes, events] : cases)
        EXPECT_EQ(EventsOf(bytes), events);
}

TEST(SAXInput, ReadsAnOddLastByteBehindABlockToo) {
    for (const std::size_t pad : {2038U, 2039U, 2040U, 2041U, 2042U, 2043U}) {
        const std::string narrow = "<a>" + std::string(pad, 'x');
        const Events events = EventsOf(Widened(narrow).substr(0, narrow.size() * 2 - 1));
        EXPECT_EQ(events, (Events{"<a", "text0 " + std::string(pad, 'x')})) << pad;
    }
}

// The rest of a block is dropped behind a zero; the next block is read on.
TEST(SAXInput, DropsTheRestOfABlockBehindAZero) {
    const std::pair<std::string, std::string> cases[] = {
        {"<a>x\0</a><lost/>"s, "z</a>"},
        {Widened("<a>x\0</a>"s), Widened("z</a>")},
        {Widened("<a>x\0</a>"s, true), Widened("z</a>", true)},
    };
    for (auto [block, next] : cases) {
        block.resize(2048, 'y');
        EXPECT_EQ(EventsOf(block + next), (Events{"<a", "text0 xz", "/a"}));
    }
}

TEST(SAXInput, EndsAtABlockThatBeginsWithAZero) {
    std::string text = "<a/>";
    text.resize(2048, ' ');
    EXPECT_EQ(EventsOf(text + "\0<b/>"s), (Events{"<a", "/a"}));
    // Nothing behind it is looked at, not even a whole block further on.
    EXPECT_EQ(EventsOf(text + std::string(2048, '\0') + "<b/>"), (Events{"<a", "/a"}));
    EXPECT_EQ(EventsOf(text + "<b/>"), (Events{"<a", "/a", "<b", "/b"}));
    SAXRecorder recorder;
    text.back() = '<';
    EXPECT_EQ(recorder.Parse(text + "\0<b/>"s), SAXParser::kSyntaxError);
    EXPECT_EQ(recorder.message, "Unexpected EOF while parsing XML file");
}

TEST(SAXInput, JoinsTokensAcrossBlocks) {
    const std::string tag = "<abc def='ghi&amp;jkl'>mno&#x41;pq<!-- r --><![CDATA[st]]></abc>";
    const Events expected{"<abc def=[ghi&jkl]", "text0 mnoApq", "cdata", "data0 st", "endcdata", "/abc"};
    for (std::size_t pad = 2048 - tag.size(); pad <= 2048; ++pad) {
        const std::string text = "<?" + std::string(pad, 'p') + ">" + tag;
        EXPECT_EQ(EventsOf(text), expected) << pad;
        EXPECT_EQ(EventsOf(Widened(text)), expected) << pad;
    }
}

TEST(SAXInput, TellsThePlaceOfEachEvent) {
    SAXRecorder recorder;
    recorder.line = 77;
    recorder.column = 88;
    EXPECT_EQ(recorder.Parse("<a b='1'>\r\n  <b\n>x\ty</b>\r\r\n<c/>\n\n</a\n>"), 0);
    EXPECT_EQ(recorder.events,
              (Events{"document", "<a b=[1]", "<b", "text0 x\\u0009y", "/b", "<c", "/c", "/a", "end"}));
    // The character behind an end tag's name is already read when the receiver hears of it.
    EXPECT_EQ(recorder.places, (Events{"1:0", "1:9", "3:1", "3:5", "3:8", "4:4", "4:4", "7:0", "7:1"}));
}

TEST(SAXInput, TellsTheSamePlacesForWideInput) {
    const std::string text = "<a b='1&lt;2\n3'>\r\n  <b\n>x\n\ty</b><!--\n\n - --><c/><![CDATA[\n\n]]>\n\n</a\n>";
    SAXRecorder narrow, wide, big;
    EXPECT_EQ(narrow.Parse(text), 0);
    EXPECT_EQ(wide.Parse("\xFF\xFE" + Widened(text)), 0);
    EXPECT_EQ(big.Parse(Widened(text, true)), 0);
    EXPECT_EQ(narrow.events, wide.events);
    EXPECT_EQ(narrow.places, wide.places);
    EXPECT_EQ(narrow.places, big.places);
}

std::int32_t ParseFile(SAXRecorder& recorder, const std::string& path) {
    SAXParser parser;
    parser.SetCallback(&recorder);
    return parser.ParseFile(path.c_str());
}

TEST(SAXInput, ReadsAFileAsItReadsMemoryAndNamesItDuringTheParse) {
    const test::TestFolder folder;
    std::string text = "<a>";
    for (int i = 0; i < 3000; ++i)
        text += "<b c='" + std::to_string(i) + "'>" + std::to_string(i * i) + "</b>\n";
    text[9000] = '\0';
    const std::string path = folder.Put("b.adx", text);
    SAXRecorder file, memory;
    EXPECT_EQ(memory.Parse(text), ParseFile(file, path));
    EXPECT_EQ(memory.events, file.events);
    EXPECT_EQ(memory.places, file.places);
    EXPECT_EQ(file.file, path);
    EXPECT_STREQ(file.filename, "");
}

TEST(SAXInput, ClosesTheFileInEveryCase) {
    const test::TestFolder folder;
    for (const char* text : {"<a/>", "<1/>", "<refused/>", "nothing"}) {
        const std::string path = folder.Put("c.adx", text);
        SAXRecorder recorder;
        recorder.refuse = "<refused";
        EXPECT_EQ(ParseFile(recorder, path) == 0, text == "<a/>"s);
        // An open file is not removed on Windows.
        EXPECT_TRUE(std::filesystem::remove(path)) << text;
    }
}

TEST(SAXInput, TellsAFileThatDoesNotOpenOrIsEmpty) {
    const test::TestFolder folder;
    SAXRecorder missing, itself, empty;
    EXPECT_EQ(ParseFile(missing, folder.Name("missing.adx")), static_cast<std::int32_t>(0x861B0001));
    EXPECT_EQ(missing.errorcode, static_cast<std::int32_t>(0x861B0001));
    EXPECT_EQ(missing.message, "Error opening file");
    EXPECT_EQ(missing.events, Events{"error"});
    EXPECT_EQ(ParseFile(itself, folder.Name("")), SAXParser::kOpenError) << "a folder is no file";
    EXPECT_EQ(itself.message, "Error opening file");
    EXPECT_EQ(ParseFile(empty, folder.Put("empty.adx", "")), SAXParser::kSyntaxError);
}

}  // namespace
}  // namespace corvex
