#include <gtest/gtest.h>

#include "files/adx/ADXParser.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

constexpr const char* kNoError = nullptr;
constexpr const char* kOutOfDate = "File version is out of date.";
constexpr const char* kUnquoted = "Attribute values must be enclosed in quotes";
constexpr const char* kUnknownEntity = "Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)";

std::string Version(const std::string& version) {
    return "<ADXFORMAT version='" + version + "'/>";
}

// A whole file's text: its error (a failure may have an empty one), and what is there then.
struct FileCase {
    const char* behaviour;
    std::string text;
    const char* error;
    std::vector<std::string> lines = {};
};

const FileCase kFiles[] = {
    {"AVersionBelowAHalfIsOutOfDate", Version("0.4"), kOutOfDate},
    {"AHalfIsUpToDate", Version("0.5"), kNoError},
    {"VersionsAreComparedAsFloats", Version("0.49999999999"), kNoError},
    {"AThousandthLessIsOutOfDate", Version("0.499"), kOutOfDate},
    {"AHigherVersionAndNothingElseIsAnEmptyDefinition",
     Version("9"),
     kNoError,
     {"header objects = 0", "header connectcmd = none"}},
    {"AWordIsNoVersion", Version("new"), kOutOfDate},
    {"NothingIsNoVersion", Version(""), kOutOfDate},
    {"WhatIsNoNumberIsNoVersion", Version("nan"), kOutOfDate},
    {"ANegativeNumberIsNoVersion", Version("-1"), kOutOfDate},
    {"ARootWithoutAVersionFailsWithoutAMessage", "<ADXFORMAT/>", ""},
    {"AValueWithoutARootFailsWithoutAMessage", "<ADXVALUE id='A'></ADXVALUE>", ""},
    {"AnotherRootFailsWithoutAMessage", "<a/>", ""},
    {"AnUnclosedRootIsHandledByWhatFollows", "<ADXFORMAT version='1'><a/>", kNoError},
    {"AnUnclosedRootThatNothingFollowsIsNotHandled", "<ADXFORMAT version='1'>", ""},
    {"TheRootIsLookedForBeforeAnythingElseAlone", "<ADXHEADER></ADXHEADER>" + Version("1"), ""},
    {"NamesMatchInAnyCase",
     "<adxformat VERSION='0.5'/><adxvalue ID='RPM' Title='Speed'><UNITS>rpm</UNITS><Math EQUATION='X'/></AdxValue>",
     kNoError,
     {"0 idhash = 3440169435", "0 title = Speed", "0 units = rpm", "0 var = X 0 0"}},
    {"AnErrorOfTheFileDoesNotStopTheParseButLeavesLinksUnresolved",
     Version("0.1") + "<ADXVALUE id='A'></ADXVALUE><ADXLISTVIEW id='L'><entrycount>1</entrycount>"
                      "<ADXLVENTRY itemidhash='0x86F344BB'/></ADXLISTVIEW>",
     kOutOfDate,
     {"header objects = 2", "0 idhash = 2264089787", "1 row item = none"}},
    {"AnErrorBehindAGoodVersionLeavesLinksUnresolvedToo",
     Version("1") + Version("0.1") + "<ADXHEADER><connectcmd>A</connectcmd></ADXHEADER><ADXCTRIGGER id='A'/>",
     kOutOfDate,
     {"header objects = 1", "header connectcmd = none"}},
    {"ALaterErrorReplacesTheText", Version("0.1") + "<a b=c>", kUnquoted},
    {"ASyntaxErrorKeepsWhatWasRead",
     Version("1") + "<ADXVALUE id='A'></ADXVALUE><ADXVALUE id='B'><units>&none;",
     kUnknownEntity,
     {"header objects = 1"}},
};

TEST(ADXParser, EndsFilesAsTold) {
    for (const FileCase& one : kFiles) {
        SCOPED_TRACE(std::string(one.behaviour) + ": " + one.text);
        ADXDefinition definition;
        const ParseResult result = ParseText(one.text, definition);
        EXPECT_EQ(result.ok, one.error == kNoError ? 1 : 0);
        EXPECT_EQ(result.error, one.error == kNoError ? "" : one.error);
        ExpectLines(definition, one.lines);
    }
}

const ObjectsCase kObjects[] = {
    // Depth is not looked at: a known name counts wherever it stands.
    {"UnknownElementsAreIgnoredEverywhere",
     "<extra a='1'>text<more/></extra><ADXVALUE id='A'><colour>red</colour><units>V</units>"
     "<nested><digcount>4</digcount></nested></ADXVALUE><trailer/>",
     {"header objects = 1", "0 units = V", "0 digcount = 4"}},
    {"AnEndTagDoesNotEmptyWhatItsElementSaid",
     "<ADXVALUE id='A'><units>rpm</units><sizeinbits>16</sizeinbits></ADXVALUE>",
     {"0 units = rpm", "0 sizeinbits = 16"}},
    {"TheFirstAttributeOfANameCounts", "<ADXVALUE id='A' ID='SECOND'></ADXVALUE>", {"0 idhash = 2264089787"}},
    {"TextIsReplacedByItsLastPiece", "<ADXVALUE><units>first<!-- and -->last</units></ADXVALUE>", {"0 units = last"}},
    {"ALongTextKeepsThePieceBehindTheLastFullBuffer",
     "<ADXVALUE><units>" + std::string(2048, 'a') + "tail</units></ADXVALUE>",
     {"0 units = tail"}},
    {"OverlongFieldsAreCut",
     "<ADXVALUE title='" + std::string(300, 't') + "'><units>" + std::string(1500, 'u') + "</units></ADXVALUE>",
     {"0 title = " + std::string(255, 't'), "0 units = " + std::string(1023, 'u')}},
    {"OverlongNamesAreCutAndIgnored",
     "<" + std::string(1900, 'n') + "/><ADXVALUE><range " + std::string(1500, 'l') + "='1' low='3'/></ADXVALUE>",
     {"0 rangelow = 3"}},
    {"CDataIsNoText", "<ADXVALUE id='A'><units><![CDATA[psi]]></units></ADXVALUE>", {"0 units = "}},
    {"AZeroCharacterEndsAText",
     "<ADXVALUE id='A&#0;B'><units>ab&#0;cd</units></ADXVALUE>",
     {"0 idhash = 2264089787", "0 units = ab"}},
    {"BytesOfANarrowFileComeThrough",
     "<ADXVALUE title='\xE9\x80\xFF'><units>\xB0\x43</units></ADXVALUE>",
     {"0 title = \xE9\x80\xFF", "0 units = \xB0\x43"}},
    {"AnObjectWithoutAnEndIsThrownAway", "<ADXVALUE id='A'><units>V</units>", {"header objects = 0"}},
    {"AnObjectInsideAnObjectTakesItsPlace",
     "<ADXVALUE id='B'><ADXVALUE id='C'><ADXBITMASK id='A'><operand>0x80</operand></ADXBITMASK>"
     "<units>V</units></ADXVALUE></ADXVALUE>",
     {"header objects = 1", "0 type = 8", "0 idhash = 2264089787", "0 operand = 128"}},
    {"TheEndOfAnotherKindDeliversTheObject",
     "<ADXBITMASK id='A'><operand>1</operand></ADXVALUE><units>V</units><operand>2</operand>",
     {"header objects = 1", "0 type = 8", "0 operand = 1"}},
    {"ChildrenAfterTheEndOfTheirObjectAreIgnored",
     "<ADXVALUE id='A'></ADXVALUE><units>V</units></ADXVALUE>",
     {"header objects = 1", "0 units = "}},
    {"AnEmptyElementIsAnObject", "<ADXVALUE id='A'/><ADXMACRO/>", {"header objects = 2"}},
};

TEST(ADXParser, ReadsObjectsAsTold) {
    ExpectObjects(kObjects);
}

TEST(ADXParser, ReadsBothOrdersOfAWideFile) {
    const std::string text = std::string(kRoot) + "<ADXVALUE id='A'><units>\xB0\x43</units></ADXVALUE>";
    for (const bool highFirst : {false, true}) {
        std::string wide = highFirst ? "\xFE\xFF" : "\xFF\xFE";
        for (const char c : text)
            wide += highFirst ? std::string{'\0', c} : std::string{c, '\0'};
        ADXDefinition definition;
        EXPECT_EQ(ParseText(wide, definition).ok, 1);
        EXPECT_EQ(DescribeMember(definition, "0 units"), "\xB0\x43");
    }
}

TEST(ADXParser, ProgressFollowsHeaderAndObjects) {
    ADXDefinition definition;
    ProgressRecorder progress;
    ParseText(std::string(kRoot) +
                  "<ADXHEADER><objectcount>3</objectcount><commandcount>4</commandcount></ADXHEADER>"
                  "<ADXVALUE/><ADXMACRO></ADXMACRO>",
              definition, &progress);
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"range 7", "position 0", "step", "step", "position 0"}));
}

TEST(ADXParser, ProgressGoesBackAfterAFailureToo) {
    ADXDefinition definition;
    ProgressRecorder progress;
    ParseText("no xml", definition, &progress);
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"position 0"}));
    ADXParser parser;
    EXPECT_EQ(parser.Parse("/no/such/folder/file.adx", definition, &progress), 0);
    EXPECT_STREQ(parser.GetError(), "Error opening file");
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"position 0", "position 0"}));
    EXPECT_EQ(definition.Load(nullptr), 0);
}

TEST(ADXParser, CanBeUsedAgain) {
    ADXParser parser;
    ADXDefinition definition;
    const std::string bad = Version("0.1") + "<ADXHEADER><connectcmd>A</connectcmd></ADXHEADER><ADXVALUE>";
    const std::string good = Version("1") + "<units/></ADXVALUE><ADXCTRIGGER id='A'/>";
    EXPECT_EQ(parser.ParseMemory(bad.data(), bad.size(), definition), 0);
    EXPECT_EQ(parser.ParseMemory(good.data(), good.size(), definition), 1);
    EXPECT_STREQ(parser.GetError(), "");
    ExpectLines(definition, {"header objects = 1", "header connectcmd = none"});
}

TEST(ADXDefinitionLoad, ClearsFirstAndHandsTheMessageOver) {
    const test::TestFolder folder;
    const std::string path = folder.Put("a.adx", Version("0.4") + "<ADXVALUE id='A'/>");
    ADXDefinition definition;
    definition.baud = 1;
    char error[ADXDefinition::kErrorSize] = "old";
    EXPECT_EQ(definition.Load(path.c_str(), error), 0);
    EXPECT_STREQ(error, kOutOfDate);
    EXPECT_EQ(definition.baud, ADXDefinition::kDefaultBaud);
    EXPECT_EQ(definition.GetCount(), 1u) << "what had been read stays";
    EXPECT_EQ(definition.Load(path.c_str()), 0) << "the buffer may be missing";
    EXPECT_EQ(definition.GetCount(), 1u);
    folder.Put("a.adx", kRoot);
    EXPECT_EQ(definition.Load(path.c_str(), error), 1);
    EXPECT_STREQ(error, "");
    EXPECT_EQ(definition.GetCount(), 0u);
}

}  // namespace
}  // namespace corvex
