#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"
#include "definition/ADXValue.h"
#include "files/adx/ADXParser.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

TEST(ADXParser, AVersionBelowAHalfIsOutOfDate) {
    ADXDefinition definition;
    const ParseResult result = ParseText("<ADXFORMAT version=\"0.4\"/>", definition);
    EXPECT_EQ(result.ok, 0);
    EXPECT_EQ(result.error, "File version is out of date.");
}

TEST(ADXParser, AHigherVersionAndNothingElseIsAnEmptyDefinition) {
    ADXDefinition definition;
    const ParseResult result = ParseText("<ADXFORMAT version=\"9\"/>", definition);
    EXPECT_EQ(result.ok, 1);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(definition.GetCount(), 0u);
    EXPECT_EQ(definition.connectcmd, nullptr);
}

TEST(ADXParser, VersionsAreComparedAsFloats) {
    ADXDefinition definition;
    EXPECT_EQ(ParseText("<ADXFORMAT version=\"0.5\"/>", definition).ok, 1);
    EXPECT_EQ(ParseText("<ADXFORMAT version=\"0.49999999999\"/>", definition).ok, 1);
    EXPECT_EQ(ParseText("<ADXFORMAT version=\"0.499\"/>", definition).ok, 0);
}

TEST(ADXParser, AVersionThatIsNoNumberIsOutOfDate) {
    for (const char* version : {"new", "", "nan", "-1"}) {
        ADXDefinition definition;
        const ParseResult result = ParseText("<ADXFORMAT version=\"" + std::string(version) + "\"/>", definition);
        EXPECT_EQ(result.ok, 0) << version;
        EXPECT_EQ(result.error, "File version is out of date.") << version;
    }
}

TEST(ADXParser, AFileWithoutAVersionFailsWithoutAMessage) {
    for (const char* text : {"<ADXFORMAT/>", "<ADXVALUE id=\"A\"></ADXVALUE>", "<a/>"}) {
        ADXDefinition definition;
        const ParseResult result = ParseText(text, definition);
        EXPECT_EQ(result.ok, 0) << text;
        EXPECT_EQ(result.error, "") << text;
    }
}

TEST(ADXParser, AnUnclosedRootIsHandledByWhatFollows) {
    ADXDefinition definition;
    EXPECT_EQ(ParseText("<ADXFORMAT version=\"1\"><a/>", definition).ok, 1);
    // Nothing follows, so the element is never handled.
    EXPECT_EQ(ParseText("<ADXFORMAT version=\"1\">", definition).ok, 0);
}

TEST(ADXParser, TheRootIsLookedForBeforeAnythingElseAlone) {
    ADXDefinition definition;
    const ParseResult result = ParseText("<ADXHEADER></ADXHEADER><ADXFORMAT version=\"1\"/>", definition);
    EXPECT_EQ(result.ok, 0);
    EXPECT_EQ(result.error, "");
}

TEST(ADXParser, NamesMatchInAnyCase) {
    ADXDefinition definition;
    const ParseResult result = ParseText(
        "<adxformat VERSION='0.5'/><adxvalue ID='RPM' Title='Speed'><UNITS>rpm</UNITS><Math EQUATION='X'/></AdxValue>",
        definition);
    EXPECT_EQ(result.ok, 1);
    EXPECT_EQ(definition.GetCount(), 1u);
    const auto& value = Get<ADXValue>(definition);
    EXPECT_STREQ(value.Id(), "RPM");
    EXPECT_STREQ(value.Title(), "Speed");
    EXPECT_STREQ(value.Units(), "rpm");
    EXPECT_EQ(value.GetVarCount(), 1u);
}

TEST(ADXParser, UnknownElementsAreIgnoredEverywhere) {
    ADXDefinition definition;
    ParseObjects(
        "<extra a='1'>text<more/></extra>"
        "<ADXVALUE id='A'><colour>red</colour><units>V</units><nested><digcount>4</digcount></nested></ADXVALUE>"
        "<trailer/>",
        definition);
    ASSERT_EQ(definition.GetCount(), 1u);
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "V");
    // Depth is not looked at: a known name counts wherever it stands.
    EXPECT_EQ(Get<ADXValue>(definition).digcount, 4);
}

TEST(ADXParser, AnEndTagDoesNotEmptyWhatItsElementSaid) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'><units>rpm</units><sizeinbits>16</sizeinbits></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "rpm");
    EXPECT_EQ(Get<ADXValue>(definition).sizeinbits, 16u);
}

TEST(ADXParser, TheFirstAttributeOfANameCounts) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='FIRST' ID='SECOND'></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Id(), "FIRST");
}

TEST(ADXParser, TextIsReplacedByItsLastPiece) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'><units>first<!-- and -->last</units></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "last");
}

TEST(ADXParser, ALongTextKeepsThePieceBehindTheLastFullBuffer) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'><units>" + std::string(2048, 'a') + "tail</units></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "tail");
}

TEST(ADXParser, OverlongFieldsAreCut) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A' title='" + std::string(300, 't') + "'><units>" + std::string(1500, 'u') +
                     "</units></ADXVALUE>",
                 definition);
    EXPECT_EQ(std::string(Get<ADXValue>(definition).Title()), std::string(255, 't'));
    EXPECT_EQ(std::string(Get<ADXValue>(definition).Units()), std::string(1023, 'u'));
}

TEST(ADXParser, OverlongNamesAreCutAndIgnored) {
    ADXDefinition definition;
    const std::string name(1900, 'n');
    ParseObjects("<" + name + "/><ADXVALUE id='A'><range " + std::string(1500, 'l') + "='1' low='3'/></ADXVALUE>",
                 definition);
    EXPECT_EQ(Get<ADXValue>(definition).rangelow, 3.0F);
}

TEST(ADXParser, CDataIsNoText) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'><units><![CDATA[psi]]></units></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "");
}

TEST(ADXParser, AZeroCharacterEndsAText) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A&#0;B'><units>ab&#0;cd</units></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Id(), "A");
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "ab");
}

TEST(ADXParser, BytesOfANarrowFileComeThrough) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A' title='\xE9\x80\xFF'><units>\xB0\x43</units></ADXVALUE>", definition);
    EXPECT_STREQ(Get<ADXValue>(definition).Title(), "\xE9\x80\xFF");
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "\xB0\x43");
}

TEST(ADXParser, ReadsBothOrdersOfAWideFile) {
    const std::string text = std::string(kRoot) + "<ADXVALUE id='A'><units>\xB0\x43</units></ADXVALUE>";
    for (const bool highFirst : {false, true}) {
        std::string wide = highFirst ? "\xFE\xFF" : "\xFF\xFE";
        for (const char c : text)
            wide += highFirst ? std::string{'\0', c} : std::string{c, '\0'};
        ADXDefinition definition;
        EXPECT_EQ(ParseText(wide, definition).ok, 1);
        EXPECT_STREQ(Get<ADXValue>(definition).Units(), "\xB0\x43");
    }
}

TEST(ADXParser, AnErrorOfTheFileDoesNotStopTheParse) {
    ADXDefinition definition;
    const ParseResult result = ParseText(
        "<ADXFORMAT version='0.1'/><ADXVALUE id='A'></ADXVALUE><ADXLISTVIEW id='L'><entrycount>1</entrycount>"
        "<ADXLVENTRY itemidhash='0x86F344BB'/></ADXLISTVIEW>",
        definition);
    EXPECT_EQ(result.ok, 0);
    EXPECT_EQ(result.error, "File version is out of date.");
    ASSERT_EQ(definition.GetCount(), 2u);
    EXPECT_EQ(definition.GetObject(kTypeAny, 0)->GetIdHash(), 0x86F344BBu);
    EXPECT_EQ(Get<ADXListView>(definition, 1).GetEntry(0)->item, nullptr) << "links are left unresolved";
}

TEST(ADXParser, AnErrorBehindAGoodVersionLeavesLinksUnresolvedToo) {
    ADXDefinition definition;
    const ParseResult result = ParseText(
        "<ADXFORMAT version='1'/><ADXFORMAT version='0.1'/><ADXHEADER><connectcmd>A</connectcmd></ADXHEADER>"
        "<ADXCTRIGGER id='A'/>",
        definition);
    EXPECT_EQ(result.ok, 0);
    EXPECT_EQ(result.error, "File version is out of date.");
    EXPECT_EQ(definition.GetCount(), 1u);
    EXPECT_EQ(definition.connectcmd, nullptr);
}

TEST(ADXParser, ALaterErrorReplacesTheText) {
    ADXDefinition definition;
    const ParseResult result = ParseText("<ADXFORMAT version='0.1'/><a b=c>", definition);
    EXPECT_EQ(result.ok, 0);
    EXPECT_EQ(result.error, "Attribute values must be enclosed in quotes");
}

TEST(ADXParser, ASyntaxErrorKeepsWhatWasRead) {
    ADXDefinition definition;
    const ParseResult result =
        ParseText(std::string(kRoot) + "<ADXVALUE id='A'></ADXVALUE><ADXVALUE id='B'><units>&none;", definition);
    EXPECT_EQ(result.ok, 0);
    EXPECT_EQ(result.error, "Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)");
    EXPECT_EQ(definition.GetCount(), 1u);
}

TEST(ADXParser, AnObjectWithoutAnEndIsThrownAway) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'><units>V</units>", definition);
    EXPECT_EQ(definition.GetCount(), 0u);
}

TEST(ADXParser, AnObjectInsideAnObjectTakesItsPlace) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXVALUE id='A'><ADXVALUE id='B'><ADXBITMASK id='C'><operand>0x80</operand></ADXBITMASK>"
        "<units>V</units></ADXVALUE></ADXVALUE>",
        definition);
    ASSERT_EQ(definition.GetCount(), 1u);
    EXPECT_STREQ(Get<ADXBitmask>(definition).Id(), "C");
    EXPECT_EQ(Get<ADXBitmask>(definition).operand, 0x80u);
}

TEST(ADXParser, TheEndOfAnotherKindDeliversTheObject) {
    ADXDefinition definition;
    ParseObjects("<ADXBITMASK id='A'><operand>1</operand></ADXVALUE><units>V</units><operand>2</operand>", definition);
    ASSERT_EQ(definition.GetCount(), 1u);
    EXPECT_EQ(Get<ADXBitmask>(definition).operand, 1u);
}

TEST(ADXParser, ChildrenAfterTheEndOfTheirObjectAreIgnored) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'></ADXVALUE><units>V</units></ADXVALUE>", definition);
    ASSERT_EQ(definition.GetCount(), 1u);
    EXPECT_STREQ(Get<ADXValue>(definition).Units(), "");
}

TEST(ADXParser, AnEmptyElementIsAnObject) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='A'/><ADXMACRO/>", definition);
    EXPECT_EQ(definition.GetCount(), 2u);
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
}

TEST(ADXParser, CanBeUsedAgain) {
    ADXParser parser;
    ADXDefinition definition;
    const std::string bad = "<ADXFORMAT version='0.1'/><ADXHEADER><connectcmd>A</connectcmd></ADXHEADER><ADXVALUE>";
    const std::string good = std::string(kRoot) + "<units/></ADXVALUE><ADXCTRIGGER id='A'/>";
    EXPECT_EQ(parser.ParseMemory(bad.data(), bad.size(), definition), 0);
    EXPECT_EQ(parser.ParseMemory(good.data(), good.size(), definition), 1);
    EXPECT_STREQ(parser.GetError(), "");
    EXPECT_EQ(definition.GetCount(), 1u);
    EXPECT_EQ(definition.connectcmd, nullptr);
}

TEST(ADXDefinitionLoad, ClearsFirstAndHandsTheMessageOver) {
    const TempFile file;
    file.Write("<ADXFORMAT version='0.4'/><ADXVALUE id='A'/>");
    ADXDefinition definition;
    definition.baud = 1;
    char error[ADXDefinition::kErrorSize] = "old";
    EXPECT_EQ(definition.Load(file.Path(), error), 0);
    EXPECT_STREQ(error, "File version is out of date.");
    EXPECT_EQ(definition.baud, ADXDefinition::kDefaultBaud);
    EXPECT_EQ(definition.GetCount(), 1u) << "what had been read stays";
    EXPECT_EQ(definition.Load(file.Path()), 0) << "the buffer may be missing";
    EXPECT_EQ(definition.GetCount(), 1u);
    file.Write(kRoot);
    EXPECT_EQ(definition.Load(file.Path(), error), 1);
    EXPECT_STREQ(error, "");
    EXPECT_EQ(definition.GetCount(), 0u);
}

TEST(ADXDefinitionLoad, AFileThatCannotBeOpenedIsNamedAsSuch) {
    const TempFile file;
    ADXDefinition definition;
    char error[ADXDefinition::kErrorSize] = "";
    EXPECT_EQ(definition.Load(file.Path(), error), 0);
    EXPECT_STREQ(error, "Error opening file");
}

TEST(ADXDefinitionLoad, NoPathIsNoFile) {
    ADXDefinition definition;
    char error[ADXDefinition::kErrorSize] = "";
    EXPECT_EQ(definition.Load(nullptr, error), 0);
    EXPECT_STREQ(error, "Error opening file");
}

}  // namespace
}  // namespace corvex
