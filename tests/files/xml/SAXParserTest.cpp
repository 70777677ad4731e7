#include <gtest/gtest.h>

#include "files/xml/SAXParser.h"
#include "tests/files/xml/SAXRecorder.h"

namespace corvex {
namespace {

std::string Times(std::size_t count, char character) {
    return std::string(count, character);
}

struct EventsCase {
    const char* behaviour;
    std::string text;
    Events events;
};

std::string Section(const std::string& text) {
    return "<![CDATA[" + text + "]]>";
}

const EventsCase kEvents[] = {
    {"StartAndEndOfAnEmptyElement", "<a/>", {"<a", "/a"}},
    {"RepeatedAttributes", "<a b='1' b='2'/>", {"<a b=[1] b=[2]", "/a"}},
    {"AnEndTagThatMatchesNothing", "<a></b></c><d>", {"<a", "/b", "/c", "<d"}},
    {"AttributesWithBlanksOrWithout", "<a\r\n\tb = \"1\"c='2'\n/>", {"<a b=[1] c=[2]", "/a"}},
    {"ABlankBehindTheLastValue", "<a b='1' >", {"<a b=[1]"}},
    {"TheOtherQuoteAndGreaterThanInsideAValue", "<a b='x>\"y' c=\"it's\" d=''/>", {"<a b=[x>\"y] c=[it's] d=[]", "/a"}},
    {"NamesOfEveryAllowedCharacter", "<_a-1.b:C/><:x/></Zz >", {"<_a-1.b:C", "/_a-1.b:C", "<:x", "/:x", "/Zz"}},
    {"BlanksAroundTextAreKept", "<a> x\t\r\n</a>", {"<a", "text0  x\\u0009\\u000D\\u000A", "/a"}},
    {"TextOfBlanksOnlyIsLeftOut", "<a> \t\r\n<b/>&#32;&#10;</a>\r\n ", {"<a", "<b", "/b", "/a"}},
    {"TextOutsideElements", "<a/>x<b/>y", {"<a", "/a", "text0 x", "<b", "/b", "text0 y"}},
    {"TextIsSplitAtMarkupOfAnyKind",
     "<a>x<!--c-->y<?p?>z<![CDATA[d]]>w",
     {"<a", "text0 x", "text0 y", "text0 z", "cdata", "data0 d", "endcdata", "text0 w"}},
    {"TextOf3000CharactersComesInTwoCalls",
     "<a>" + Times(3000, 'x') + "</a>",
     {"<a", "text1 " + Times(2048, 'x'), "text0 " + Times(952, 'x'), "/a"}},
    {"TextThatAlmostFillsItsBuffer", "<a>" + Times(2047, 'x') + "<b>", {"<a", "text0 " + Times(2047, 'x'), "<b"}},
    // The full buffer was delivered with more set, and nothing followed.
    {"TextThatFillsItsBuffer", "<a>" + Times(2048, 'x') + "<b>", {"<a", "text1 " + Times(2048, 'x'), "<b"}},
    {"TextOfOneCharacterMore", "<a>" + Times(2049, 'x') + "<b>", {"<a", "text1 " + Times(2048, 'x'), "text0 x", "<b"}},
    {"TextThatFillsItsBufferTwice",
     "<a>" + Times(4096, 'x'),
     {"<a", "text1 " + Times(2048, 'x'), "text1 " + Times(2048, 'x')}},
    {"EachPieceIsJudgedByItself",
     "<a>" + Times(2048, 'x') + "  <b>" + Times(2048, ' ') + "x<c>" + Times(2047, ' ') + "x<d>",
     {"<a", "text1 " + Times(2048, 'x'), "<b", "text0 x", "<c", "text1 " + Times(2047, ' ') + "x", "<d"}},
    {"AnEntityIsOneCharacterOfTheBuffer",
     "<a>" + Times(2047, 'x') + "&amp;y",
     {"<a", "text1 " + Times(2047, 'x') + "&", "text0 y"}},
    {"AnEntityIsOneCharacterOfATag", "<a b='" + Times(2045, 'x') + "&#x41;'>", {"<a b=[" + Times(2045, 'x') + "A]"}},
    {"NumericEntities", "<a b='&#65;&#x41;'>&#65;&#x41;&#x6a;&#x6A;", {"<a b=[AA]", "text0 AAjj"}},
    {"ANumericEntityWithoutDigitsIsZero", "<a>&#;&#x;</a>", {"<a", "text0 \\u0000\\u0000", "/a"}},
    {"NumericEntitiesKeep16Bits", "<a>&#65535;&#65536;&#65601;", {"<a", "text0 \\uFFFF\\u0000A"}},
    {"NumericEntitiesOfAnyLength",
     "<a>&#x10041;&#x" + Times(5000, 'F') + "0042;&#" + Times(5000, '0') + "67;",
     {"<a", "text0 ABC"}},
    {"NamedEntities", "<a b='&lt;&gt;&amp;&apos;&quot;'>&lt;&gt;&amp;&apos;&quot;", {"<a b=[<>&'\"]", "text0 <>&'\""}},
    {"APrefixIsTakenForAnEntityName", "<a>&l;&g;&a;&am;&ap;&apo;&q;&qu;&quo;</a>", {"<a", "text0 <>&&''\"\"\"", "/a"}},
    {"BytesAreWidenedWithTheirSign",
     "<a b='\xE9'>\xE9\x80\xFF\x7F</a>",
     {"<a b=[\\uFFE9]", "text0 \\uFFE9\\uFF80\\uFFFF\\u007F", "/a"}},
    {"CommentsAndInstructionsAreSkipped",
     "<?xml version=\"1.0\"?><!-- <b> & - -- \r\n --><a/><!----><!-- x ---><?>",
     {"<a", "/a"}},
    {"ACommentEndsAtHyphensBeforeGreaterThanOnly", "<!-->--x-> -- > ---><a/>", {"<a", "/a"}},
    {"CDATA", "<a><![CDATA[<b>&amp;\r\n]]></a>", {"<a", "cdata", "data0 <b>&amp;\\u000D\\u000A", "endcdata", "/a"}},
    {"CDATAOfNothing", Section(""), {"cdata", "data0 ", "endcdata"}},
    {"CDATAOfBlanks", Section("  "), {"cdata", "data0   ", "endcdata"}},
    {"CDATAEndsAtTwoBracketsAndGreaterThanOnly", Section("]>]x]>x]] >]"), {"cdata", "data0 ]>]x]>x]] >]", "endcdata"}},
    {"CDATAThatAlmostFillsItsBuffer", Section(Times(2045, 'x')), {"cdata", "data0 " + Times(2045, 'x'), "endcdata"}},
    // The closing brackets fill the buffer: they stay behind and are never delivered.
    {"CDATAWhoseFirstBracketFillsItsBuffer",
     Section(Times(2046, 'x')),
     {"cdata", "data1 " + Times(2046, 'x'), "data0 ", "endcdata"}},
    {"CDATAWhoseSecondBracketFillsItsBuffer",
     Section(Times(2047, 'x')),
     {"cdata", "data1 " + Times(2047, 'x'), "data0 ", "endcdata"}},
    {"CDATAThatFillsItsBuffer",
     Section(Times(2048, 'x')),
     {"cdata", "data1 " + Times(2048, 'x'), "data0 ", "endcdata"}},
    {"CDATAOfOneCharacterMore",
     Section(Times(2049, 'x')),
     {"cdata", "data1 " + Times(2048, 'x'), "data0 x", "endcdata"}},
    {"BracketsThatDoNotEndCDATA",
     Section(Times(2046, 'x') + "]]y"),
     {"cdata", "data1 " + Times(2046, 'x'), "data0 ]]y", "endcdata"}},
    // One character of name, one of attribute name, the rest value.
    {"ATagOf2047Characters", "<a b='" + Times(2045, 'x') + "'/>", {"<a b=[" + Times(2045, 'x') + "]", "/a"}},
    {"ATagOf2048Characters", "<a b='" + Times(2046, 'x') + "'/>", {"<a b=[" + Times(2046, 'x') + "]", "/a"}},
    {"ANameOf2047Characters", "<" + Times(2047, 'n') + ">", {"<" + Times(2047, 'n')}},
    {"AnEndTagOf2048Characters", "</" + Times(2048, 'n') + ">", {"/" + Times(2048, 'n')}},
    {"AnEmptyAttributeBehindALongName", "<" + Times(2047, 'n') + " b=''>", {"<" + Times(2047, 'n') + " b=[]"}},
};

TEST(SAXParser, TellsOfEachText) {
    for (const EventsCase& one : kEvents)
        EXPECT_EQ(EventsOf(one.text), one.events) << one.behaviour;
}

TEST(SAXParser, AsksForACallback) {
    SAXParser parser;
    EXPECT_EQ(parser.ParseMemory("<a/>", 4), static_cast<std::int32_t>(0x80004002));
    EXPECT_EQ(parser.ParseFile("nowhere"), static_cast<std::int32_t>(0x80004002));
}

TEST(SAXParser, TellsTheDocumentsStartAndEnd) {
    SAXRecorder recorder;
    EXPECT_EQ(recorder.Parse("<a>x</a>"), 0);
    EXPECT_EQ(recorder.events, (Events{"document", "<a", "text0 x", "/a", "end"}));
    SAXRecorder before;
    EXPECT_EQ(before.Parse("x"), SAXParser::kSyntaxError);
    EXPECT_EQ(before.events, (Events{"document", "error"})) << "before it looks at the input";
}

TEST(SAXParser, LeavesOutBlanksLongerThanBlockAndTokenBuffer) {
    for (const std::size_t length : {2045U, 2046U, 2047U, 2048U, 2049U, 5000U}) {
        EXPECT_EQ(EventsOf("<a>" + Times(length, ' ') + "</a>"), (Events{"<a", "/a"})) << length;
    }
}

TEST(SAXParser, DeliversEveryBracketOfCDATA) {
    std::string all;
    for (const std::string& event : EventsOf(Section(Times(5000, ']')))) {
        if (event.starts_with("data")) all += event.substr(6);
    }
    EXPECT_EQ(all, Times(5000, ']'));
}

TEST(SAXParser, Takes32Attributes) {
    std::string tag = "<a";
    std::string event = "<a";
    for (int i = 0; i < 32; ++i) {
        tag += " b='" + std::to_string(i) + "'";
        event += " b=[" + std::to_string(i) + "]";
        EXPECT_EQ(EventsOf(tag + ">"), (Events{event}));
    }
}

TEST(SAXParser, StopsWhenTheReceiverRefuses) {
    for (const std::string refused :
         {"document", "<a", "text0", "/a", "cdata", "data0", "endcdata", "end", "text1", "data1"}) {
        const bool isFull = refused.ends_with('1');  // of a buffer
        SAXRecorder recorder;
        recorder.refuse = refused;
        EXPECT_EQ(recorder.Parse("<a>" + Times(isFull && refused[0] == 't' ? 9000 : 1, 'x') +
                                 Section(Times(isFull ? 9000 : 1, 'y')) + "</a>"),
                  static_cast<std::int32_t>(0x80004004))
            << refused;
        EXPECT_EQ(recorder.events.back().rfind(refused, 0), 0U) << refused;
        EXPECT_EQ(recorder.message, "");
    }
}

TEST(SAXParser, GoesOnAfterAPositiveAnswerAndKeepsItsCodeWhateverErrorAnswers) {
    SAXRecorder positive, refusing;
    positive.answer = 1;
    EXPECT_EQ(positive.Parse("<a>x</a>"), 0);
    EXPECT_EQ(positive.events.back(), "end");
    refusing.refuse = "error";
    EXPECT_EQ(refusing.Parse("<1"), SAXParser::kSyntaxError);
}

TEST(SAXParser, ParsesAgainAfterAnError) {
    SAXRecorder recorder;
    SAXParser parser;
    parser.SetCallback(&recorder);
    EXPECT_EQ(parser.ParseMemory("<\0a\0 \0", 6), SAXParser::kSyntaxError);
    EXPECT_EQ(parser.ParseMemory("<a>b", 4), 0);
    EXPECT_EQ(recorder.events, (Events{"document", "error", "document", "<a", "text0 b", "end"}));
}

}  // namespace
}  // namespace corvex
