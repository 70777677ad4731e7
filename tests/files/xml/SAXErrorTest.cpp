#include <gtest/gtest.h>

#include "tests/files/xml/SAXRecorder.h"

namespace corvex {
namespace {

struct Malformed {
    const char* name;
    std::string text;
    const char* message;
    const char* place;
};

std::string Attributes(int count) {
    std::string tag = "<a";
    for (int i = 0; i < count; ++i)
        tag += " b=''";
    return tag;
}

constexpr const char* kEnd = "Unexpected EOF while parsing XML file";
constexpr const char* kEncoding = "Unrecognized encoding (parser does not support UTF-8 language encodings)";
constexpr const char* kSection = "Expecting '<![CDATA['";
constexpr const char* kName = "Names must start with an alphabetic character or _ or :";
constexpr const char* kSize = "Total element tag size may not be more than 2048 characters";
constexpr const char* kHex = "Expected hex digit as part of &#x escape sequence";
constexpr const char* kDecimal = "Expected decimal digit as part of &# escape sequence";
constexpr const char* kUnknown = "Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)";
constexpr const char* kSemicolon = "Expected terminating ; for entity reference";
constexpr const char* kEntity = "Expecting entity name after &";
constexpr const char* kQuotes = "Attribute values must be enclosed in quotes";
constexpr const char* kEquals = "Expecting '=' character after attribute name";

const std::string kLong(2048, 'x');

const Malformed kCases[] = {
    {"EmptyInput", "", kEncoding, "1:0"},
    {"LeadingBlank", " <a/>", kEncoding, "1:0"},
    {"Utf8Mark", "\xEF\xBB\xBF<a/>", kEncoding, "1:0"},
    {"LeadingZero", std::string("\0\0<a/>", 6), kEncoding, "1:0"},
    {"HalfOfAMark", "\xFF", kEncoding, "1:0"},
    {"LessThanAlone", "<a><", kEnd, "1:4"},
    {"EndInName", "<ab", kEnd, "1:3"},
    {"EndAfterSlash", "<a/", kEnd, "1:3"},
    {"EndAfterBlank", "<a ", kEnd, "1:3"},
    {"EndAfterAttributeName", "<a b", kEnd, "1:4"},
    {"EndAfterEquals", "<a b=", kEnd, "1:5"},
    {"EndInValue", "<a b='c", kEnd, "1:7"},
    {"EndAfterValue", "<a b='c'", kEnd, "1:8"},
    {"EndInEndTag", "</", kEnd, "1:2"},
    {"EndAfterEndName", "<a></a ", kEnd, "1:7"},
    {"EndAfterExclamation", "<!", kEnd, "1:2"},
    {"EndAfterOneHyphen", "<!-", kEnd, "1:3"},
    {"EndInComment", "<!-- x --", kEnd, "1:9"},
    {"EndInSectionMark", "<![CDA", kEnd, "1:6"},
    {"EndInSection", "<![CDATA[x]]", kEnd, "1:12"},
    {"EndInInstruction", "<?xml ?", kEnd, "1:7"},
    {"EndAfterAmpersand", "<a>&", kEnd, "1:4"},
    {"EndInEntityName", "<a>&am", kEnd, "1:6"},
    {"EndInDecimal", "<a>&#6", kEnd, "1:6"},
    {"EndInHex", "<a>&#x6", kEnd, "1:7"},
    {"OneHyphen", "<!-x->", "Expecting '-' after '<!-'", "1:4"},
    {"WrongSectionLetter", "<![CDATX[", kSection, "1:8"},
    {"SectionWithoutBracket", "<![CDATA ", kSection, "1:9"},
    {"LowerCaseSection", "<![cdata[", kSection, "1:4"},
    {"Doctype", "<!DOCTYPE a>", kSection, "1:3"},
    {"TextAfterEndName", "<a>\n</a b>", "Expecting '>' after name for closing entity reference", "2:5"},
    {"LessThanAfterEndName", "<a></a<", "Expecting '>' after name for closing entity reference", "1:7"},
    {"Attribute33", Attributes(33), "Elements may not have more than 32 attributes", "1:164"},
    {"MissingEquals", "<a b 'c'>", kEquals, "1:6"},
    {"AttributeWithoutValue", "<a b>", kEquals, "1:5"},
    {"BlankAfterSlash", "<a/ >", "Expecting '>' after '/' in element tag", "1:4"},
    {"AttributeAfterSlash", "<a /b='1'>", "Expecting '>' after '/' in element tag", "1:5"},
    {"DigitBeginsName", "<1a>", kName, "1:2"},
    {"BlankBeginsName", "< a>", kName, "1:2"},
    {"HyphenBeginsName", "<-a>", kName, "1:2"},
    {"TwoLessThan", "<<", kName, "1:2"},
    {"ByteBeginsName", "<\xE9>", kName, "1:2"},
    {"EndTagWithoutName", "</>", kName, "1:3"},
    {"DigitBeginsAttribute", "<a 1='2'>", kName, "1:4"},
    {"ValueWithoutQuotes", "<a b=1>", kQuotes, "1:6"},
    {"LessThanInValue", "<a b='<'>", "Illegal character '<' in element tag", "1:7"},
    {"NameTooLong", "<" + kLong + "x>", kSize, "1:2050"},
    {"EndNameTooLong", "</" + kLong + "x>", kSize, "1:2051"},
    {"AttributeNameTooLong", "<a " + kLong + "='1'>", kSize, "1:2051"},
    {"ValueTooLong", "<a b='" + kLong + "'>", kSize, "1:2053"},
    {"EntityTooMuch", "<a b='" + kLong.substr(2) + "&amp;'>", kSize, "1:2057"},
    {"OneAttributeTooMany", "<" + kLong + " b=''>", kSize, "1:2051"},
    {"NoHexDigit", "<a>&#x4G;", kHex, "1:8"},
    {"NoDecimalDigit", "<a>&#4A;", kDecimal, "1:7"},
    {"UpperCaseX", "<a>&#X41;", kDecimal, "1:6"},
    {"UnknownEntity", "<a>&foo;", kUnknown, "1:8"},
    {"UpperCaseEntity", "<a>&LT;", kUnknown, "1:7"},
    {"EntityLongerThanItsLikeness", "<a>&quotx;", kUnknown, "1:10"},
    {"EntityFarTooLong", "<a>&" + kLong + kLong + ";", kUnknown, "1:4101"},
    {"UnknownEntityWithoutSemicolon", "<a>&foo ", kUnknown, "1:8"},
    {"NoSemicolon", "<a>&amp ", kSemicolon, "1:8"},
    {"PrefixWithoutSemicolon", "<a>&a=b", kSemicolon, "1:6"},
    {"AmpersandAlone", "<a>x & y", kEntity, "1:7"},
    {"EmptyEntity", "<a>&;", kEntity, "1:5"},
    {"DigitForEntity", "<a b='&1;'>", kEntity, "1:8"},
    {"ErrorOnALaterLine", "<a>\r\n\r\n <1>", kName, "3:3"},
};

TEST(SAXError, EndsTheParse) {
    for (const Malformed& malformed : kCases) {
        SCOPED_TRACE(malformed.name);
        SAXRecorder recorder;
        EXPECT_EQ(recorder.Parse(malformed.text), static_cast<std::int32_t>(0x861B0002));
        EXPECT_EQ(recorder.errorcode, static_cast<std::int32_t>(0x861B0002));
        EXPECT_EQ(recorder.message, malformed.message);
        EXPECT_EQ(recorder.events.back(), "error");
        EXPECT_EQ(recorder.places.back(), malformed.place);
    }
}

// When the characters are 16-bit, in either byte order.
TEST(SAXError, IsTheSameInWideInput) {
    for (const auto& [name, text, message, place] : kCases) {
        SCOPED_TRACE(name);
        if (text.empty() || text.front() != '<' || text[1] == '\xE9') continue;
        for (const bool bigendian : {false, true}) {
            SAXRecorder recorder;
            EXPECT_EQ(recorder.Parse(Widened(text, bigendian)), SAXParser::kSyntaxError);
            EXPECT_EQ(recorder.message, message);
            EXPECT_EQ(recorder.places.back(), place);
        }
    }
}

TEST(SAXErrors, CallNothingMoreOfTheElementAtFaultButItsEnd) {
    SAXRecorder recorder, atEnd;
    EXPECT_EQ(recorder.Parse("<a>x<b c='1' d></b>"), SAXParser::kSyntaxError);
    EXPECT_EQ(recorder.events, (Events{"document", "<a", "text0 x", "error"}));
    EXPECT_EQ(atEnd.Parse("<a></a b>"), SAXParser::kSyntaxError) << "called before its tag is known to be whole";
    EXPECT_EQ(atEnd.events, (Events{"document", "<a", "/a", "error"}));
}

TEST(SAXErrors, CutEveryPrefixSafely) {
    const std::string text =
        "<?p?><a b='1&amp;' c=\"&#x41;\"><!-- c -->t&lt;&#66;<d/><![CDATA[x]]y]]></a>\r\n<e f='g'></e >";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        // A copy of the exact size, so that a byte read behind it is seen.
        const std::vector<char> exact(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length));
        SAXRecorder recorder;
        const std::int32_t result = recorder.Parse({exact.data(), exact.size()});
        EXPECT_EQ(recorder.events.back(), result == 0 ? "end" : "error") << length;
        SAXRecorder wide;
        EXPECT_EQ(wide.Parse(Widened(text.substr(0, length))), result) << length;
    }
}

}  // namespace
}  // namespace corvex
