#include <gtest/gtest.h>

#include "files/xml/SAXParser.h"
#include "tests/files/xml/SAXRecorder.h"

namespace corvex {
namespace {

std::string Times(std::size_t count, char character) {
    return std::string(count, character);
}

TEST(SAXParser, CallsStartAndEndForAnEmptyElement) {
    EXPECT_EQ(EventsOf("<a/>"), (Events{"<a", "/a"}));
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
}

TEST(SAXParser, StartsTheDocumentBeforeItLooksAtTheInput) {
    SAXRecorder recorder;
    EXPECT_EQ(recorder.Parse("x"), SAXParser::kSyntaxError);
    EXPECT_EQ(recorder.events, (Events{"document", "error"}));
}

TEST(SAXParser, DeliversRepeatedAttributes) {
    EXPECT_EQ(EventsOf("<a b='1' b='2'/>"), (Events{"<a b=[1] b=[2]", "/a"}));
}

TEST(SAXParser, MatchesNoEndTags) {
    EXPECT_EQ(EventsOf("<a></b>"), (Events{"<a", "/b"}));
    EXPECT_EQ(EventsOf("<a></b></c><d>"), (Events{"<a", "/b", "/c", "<d"}));
}

TEST(SAXParser, TakesAttributesWithBlanksOrWithout) {
    EXPECT_EQ(EventsOf("<a\r\n\tb = \"1\"c='2'\n/>"), (Events{"<a b=[1] c=[2]", "/a"}));
    EXPECT_EQ(EventsOf("<a b='1' >"), (Events{"<a b=[1]"}));
}

TEST(SAXParser, TakesTheOtherQuoteAndGreaterThanInsideAValue) {
    EXPECT_EQ(EventsOf("<a b='x>\"y' c=\"it's\" d=''/>"), (Events{"<a b=[x>\"y] c=[it's] d=[]", "/a"}));
}

TEST(SAXParser, TakesNamesOfEveryAllowedCharacter) {
    EXPECT_EQ(EventsOf("<_a-1.b:C/><:x/></Zz >"), (Events{"<_a-1.b:C", "/_a-1.b:C", "<:x", "/:x", "/Zz"}));
}

TEST(SAXParser, KeepsBlanksAroundText) {
    EXPECT_EQ(EventsOf("<a> x\t\r\n</a>"), (Events{"<a", "text0  x\\u0009\\u000D\\u000A", "/a"}));
}

TEST(SAXParser, LeavesOutTextOfBlanksOnly) {
    EXPECT_EQ(EventsOf("<a> \t\r\n<b/>&#32;&#10;</a>\r\n "), (Events{"<a", "<b", "/b", "/a"}));
}

TEST(SAXParser, LeavesOutBlanksLongerThanBlockAndTokenBuffer) {
    for (const std::size_t length : {2045U, 2046U, 2047U, 2048U, 2049U, 5000U}) {
        EXPECT_EQ(EventsOf("<a>" + Times(length, ' ') + "</a>"), (Events{"<a", "/a"})) << length;
    }
}

TEST(SAXParser, DeliversTextOutsideElements) {
    EXPECT_EQ(EventsOf("<a/>x<b/>y"), (Events{"<a", "/a", "text0 x", "<b", "/b", "text0 y"}));
}

TEST(SAXParser, SplitsTextAtMarkupOfAnyKind) {
    EXPECT_EQ(EventsOf("<a>x<!--c-->y<?p?>z<![CDATA[d]]>w"),
              (Events{"<a", "text0 x", "text0 y", "text0 z", "cdata", "data0 d", "endcdata", "text0 w"}));
}

TEST(SAXParser, DeliversTextOf3000CharactersInTwoCalls) {
    EXPECT_EQ(EventsOf("<a>" + Times(3000, 'x') + "</a>"),
              (Events{"<a", "text1 " + Times(2048, 'x'), "text0 " + Times(952, 'x'), "/a"}));
}

TEST(SAXParser, FillsTheTextBufferExactly) {
    EXPECT_EQ(EventsOf("<a>" + Times(2047, 'x') + "<b>"), (Events{"<a", "text0 " + Times(2047, 'x'), "<b"}));
    // The full buffer was delivered with more set, and nothing followed.
    EXPECT_EQ(EventsOf("<a>" + Times(2048, 'x') + "<b>"), (Events{"<a", "text1 " + Times(2048, 'x'), "<b"}));
    EXPECT_EQ(EventsOf("<a>" + Times(2049, 'x') + "<b>"), (Events{"<a", "text1 " + Times(2048, 'x'), "text0 x", "<b"}));
    EXPECT_EQ(EventsOf("<a>" + Times(4096, 'x')),
              (Events{"<a", "text1 " + Times(2048, 'x'), "text1 " + Times(2048, 'x')}));
}

TEST(SAXParser, JudgesEachPieceOfTextByItself) {
    EXPECT_EQ(EventsOf("<a>" + Times(2048, 'x') + "  <b>"), (Events{"<a", "text1 " + Times(2048, 'x'), "<b"}));
    EXPECT_EQ(EventsOf("<a>" + Times(2048, ' ') + "x<b>"), (Events{"<a", "text0 x", "<b"}));
    EXPECT_EQ(EventsOf("<a>" + Times(2047, ' ') + "x<b>"), (Events{"<a", "text1 " + Times(2047, ' ') + "x", "<b"}));
}

TEST(SAXParser, CountsAnEntityAsOneCharacterOfTheBuffer) {
    EXPECT_EQ(EventsOf("<a>" + Times(2047, 'x') + "&amp;y"),
              (Events{"<a", "text1 " + Times(2047, 'x') + "&", "text0 y"}));
    EXPECT_EQ(EventsOf("<a b='" + Times(2045, 'x') + "&#x41;'/>").front().size(), 6 + 2046 + 1U);
}

TEST(SAXParser, ResolvesNumericEntities) {
    EXPECT_EQ(EventsOf("<a>&#65;&#x41;&#x6a;&#x6A;</a>"), (Events{"<a", "text0 AAjj", "/a"}));
    EXPECT_EQ(EventsOf("<a b='&#65;&#x41;'>"), (Events{"<a b=[AA]"}));
}

TEST(SAXParser, GivesCharacterZeroForAnEntityWithoutDigits) {
    EXPECT_EQ(EventsOf("<a>&#;</a>"), (Events{"<a", "text0 \\u0000", "/a"}));
    EXPECT_EQ(EventsOf("<a>&#x;</a>"), (Events{"<a", "text0 \\u0000", "/a"}));
}

TEST(SAXParser, KeepsNumericEntitiesIn16Bits) {
    EXPECT_EQ(EventsOf("<a>&#65535;&#65536;&#65601;</a>"), (Events{"<a", "text0 \\uFFFF\\u0000A", "/a"}));
    EXPECT_EQ(EventsOf("<a>&#x10041;&#x" + Times(5000, 'F') + "0042;</a>"), (Events{"<a", "text0 AB", "/a"}));
    EXPECT_EQ(EventsOf("<a>&#" + Times(5000, '0') + "65;</a>"), (Events{"<a", "text0 A", "/a"}));
}

TEST(SAXParser, ResolvesNamedEntities) {
    EXPECT_EQ(EventsOf("<a>&lt;&gt;&amp;&apos;&quot;</a>"), (Events{"<a", "text0 <>&'\"", "/a"}));
    EXPECT_EQ(EventsOf("<a b='&lt;&gt;&amp;&apos;&quot;'>"), (Events{"<a b=[<>&'\"]"}));
}

TEST(SAXParser, TakesAPrefixForAnEntityName) {
    EXPECT_EQ(EventsOf("<a>&l;&g;&a;&am;&ap;&apo;&q;&qu;&quo;</a>"), (Events{"<a", "text0 <>&&''\"\"\"", "/a"}));
}

TEST(SAXParser, WidensBytesWithTheirSign) {
    EXPECT_EQ(EventsOf("<a b='\xE9'>\xE9\x80\xFF\x7F</a>"),
              (Events{"<a b=[\\uFFE9]", "text0 \\uFFE9\\uFF80\\uFFFF\\u007F", "/a"}));
}

TEST(SAXParser, SkipsCommentsAndInstructions) {
    EXPECT_EQ(EventsOf("<?xml version=\"1.0\"?><!-- <b> & - -- \r\n --><a/><!----><!-- x ---><?>"),
              (Events{"<a", "/a"}));
}

TEST(SAXParser, EndsACommentAtHyphensBeforeGreaterThanOnly) {
    EXPECT_EQ(EventsOf("<!-->--x-> -- > ---><a/>"), (Events{"<a", "/a"}));
}

TEST(SAXParser, DeliversCDATA) {
    EXPECT_EQ(EventsOf("<a><![CDATA[<b>&amp;\r\n]]></a>"),
              (Events{"<a", "cdata", "data0 <b>&amp;\\u000D\\u000A", "endcdata", "/a"}));
    EXPECT_EQ(EventsOf("<![CDATA[]]>"), (Events{"cdata", "data0 ", "endcdata"}));
    EXPECT_EQ(EventsOf("<![CDATA[  ]]>"), (Events{"cdata", "data0   ", "endcdata"}));
}

TEST(SAXParser, EndsCDATAAtTwoBracketsAndGreaterThanOnly) {
    EXPECT_EQ(EventsOf("<![CDATA[]>]x]>x]] >]]]>"), (Events{"cdata", "data0 ]>]x]>x]] >]", "endcdata"}));
}

TEST(SAXParser, FillsTheCDATABufferExactly) {
    for (const std::size_t length : {2044U, 2045U}) {
        EXPECT_EQ(EventsOf("<![CDATA[" + Times(length, 'x') + "]]>"),
                  (Events{"cdata", "data0 " + Times(length, 'x'), "endcdata"}));
    }
    // The closing brackets fill the buffer: they stay behind and are never delivered.
    for (const std::size_t length : {2046U, 2047U, 2048U}) {
        EXPECT_EQ(EventsOf("<![CDATA[" + Times(length, 'x') + "]]>"),
                  (Events{"cdata", "data1 " + Times(length, 'x'), "data0 ", "endcdata"}));
    }
    EXPECT_EQ(EventsOf("<![CDATA[" + Times(2049, 'x') + "]]>"),
              (Events{"cdata", "data1 " + Times(2048, 'x'), "data0 x", "endcdata"}));
}

TEST(SAXParser, DeliversBracketsThatDoNotEndCDATA) {
    EXPECT_EQ(EventsOf("<![CDATA[" + Times(2046, 'x') + "]]y]]>"),
              (Events{"cdata", "data1 " + Times(2046, 'x'), "data0 ]]y", "endcdata"}));
    std::string all;
    for (const std::string& event : EventsOf("<![CDATA[" + Times(5000, ']') + "]]>")) {
        if (event.starts_with("data")) all += event.substr(6);
    }
    EXPECT_EQ(all, Times(5000, ']'));
}

TEST(SAXParser, FitsATagOf2048Characters) {
    // One character of name, one of attribute name, the rest value.
    EXPECT_EQ(EventsOf("<a b='" + Times(2045, 'x') + "'/>"), (Events{"<a b=[" + Times(2045, 'x') + "]", "/a"}));
    EXPECT_EQ(EventsOf("<a b='" + Times(2046, 'x') + "'/>"), (Events{"<a b=[" + Times(2046, 'x') + "]", "/a"}));
    EXPECT_EQ(EventsOf("<" + Times(2047, 'n') + ">"), (Events{"<" + Times(2047, 'n')}));
    EXPECT_EQ(EventsOf("</" + Times(2048, 'n') + ">"), (Events{"/" + Times(2048, 'n')}));
    EXPECT_EQ(EventsOf("<" + Times(2047, 'n') + " b=''>"), (Events{"<" + Times(2047, 'n') + " b=[]"}));
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
    for (const char* refused : {"document", "<a", "text0", "/a", "cdata", "data0", "endcdata", "end"}) {
        SAXRecorder recorder;
        recorder.refuse = refused;
        EXPECT_EQ(recorder.Parse("<a>x<![CDATA[y]]></a>"), static_cast<std::int32_t>(0x80004004)) << refused;
        EXPECT_EQ(recorder.events.back().rfind(refused, 0), 0U) << refused;
        EXPECT_EQ(recorder.message, "");
    }
}

TEST(SAXParser, StopsWhenTheReceiverRefusesAFullBuffer) {
    for (const char* refused : {"text1", "data1"}) {
        SAXRecorder recorder;
        recorder.refuse = refused;
        EXPECT_EQ(recorder.Parse("<a>" + Times(refused[0] == 't' ? 9000 : 0, 'x') + "<![CDATA[" + Times(9000, 'y')),
                  SAXParser::kRefused);
        EXPECT_EQ(recorder.events.back().substr(0, 5), refused);
    }
}

TEST(SAXParser, GoesOnAfterAPositiveAnswer) {
    SAXRecorder recorder;
    recorder.answer = 1;
    EXPECT_EQ(recorder.Parse("<a>x</a>"), 0);
    EXPECT_EQ(recorder.events.back(), "end");
}

TEST(SAXParser, KeepsItsCodeWhateverErrorAnswers) {
    SAXRecorder recorder;
    recorder.refuse = "error";
    EXPECT_EQ(recorder.Parse("<1"), SAXParser::kSyntaxError);
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
