// The places where the writer and the reader of the format do not agree, and what a file cannot hold. Files in use
// depend on each of them.
#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

// What is there when the objects have been read, and what when that was saved and read again.
struct AgainCase {
    const char* behaviour;
    std::string objects;
    std::vector<std::string> lines;
    std::vector<std::string> again = {};
};

const std::string kLongEquation = "X" + std::string(254, ' ');

const AgainCase kAgain[] = {
    {"AnObjectWithoutAnIdComesBackWithTheHashOfTheEmptyText",
     "<ADXCTRIGGER/>",
     {"0 idhash = 0"},
     {"0 idhash = 3694631631"}},
    {"NumbersKeepSixDecimals",
     "<ADXVALUE><range low='0.1' high='1e-7'/></ADXVALUE>",
     {"0 rangelow = 0.100000001", "0 rangehigh = 1.00000001e-07"},
     {"0 rangelow = 0.100000001", "0 rangehigh = 0"}},
    // The second entry of the letter is native and is read into the first.
    {"ALetterUsedTwiceLosesItsLink",
     "<ADXVALUE><MATH equation='X*X'><VAR varID='X' type='link' linkIDHash='0xABC'/></MATH></ADXVALUE>",
     {"0 var = X 1 2748, X 0 0"},
     {"0 var = X 0 0, X 0 0"}},
    {"FlagsOfASeriesKeepTheirLowHalf",
     "<ADXMONITOR><ADXMONSERIES flags='0x12345678' itemidhash='0x86F344BB'/></ADXMONITOR><ADXVALUE id='A'/>",
     {"0 series flags = 305419896"},
     {"0 series flags = 22136"}},
    {"TableKeysThatAgreeInSixDecimalsBecomeOne",
     "<ADXLOOKUPTABLE><outputtype>5</outputtype><tableentry input='1' output='one'/>"
     "<tableentry input='1.0000001' output='two'/></ADXLOOKUPTABLE>",
     {"0 entries = 2"},
     {"0 entries = 1"}},
    {"AChatterPatternOfTenBytesReadsBackAsSixteen",
     "<ADXCLISTENCHATTER><bytestring size='A'>1 2 3 4 5 6 7 8 9 A </bytestring></ADXCLISTENCHATTER>",
     {"0 bytestring = 10: 1 2 3 4 5 6 7 8 9 10"},
     {"0 bytestring = 16: 1 2 3 4 5 6 7 8 9 10 0 0 0 0 0 0"}},
    {"ASendCommandOfTenBytesReadsBackAsTen",
     "<ADXCSENDCOMMAND><bytestring size='A'>1 2 3 4 5 6 7 8 9 A </bytestring></ADXCSENDCOMMAND>",
     {"0 bytestring = 10: 1 2 3 4 5 6 7 8 9 10"},
     {"0 bytestring = 10: 1 2 3 4 5 6 7 8 9 10"}},
    {"AnEquationIsCutAt99CharactersOnSaveAloneAndTheReaderTakes255",
     "<ADXVALUE><MATH equation='" + kLongEquation + "'/></ADXVALUE>",
     {"0 equation = " + kLongEquation},
     {"0 equation = " + kLongEquation.substr(0, 99)}},
    {"AnEquationThatDoesNotParseKeepsItsText",
     "<ADXVALUE id='V'><MATH equation='(X+'/></ADXVALUE>",
     {"0 equation = (X+"},
     {"0 equation = (X+"}},
    {"UnescapedTextsMayReadBackAsOthers",
     "<ADXVALUE><units>a&amp;lt;b</units></ADXVALUE>",
     {"0 units = a&lt;b"},
     {"0 units = a<b"}},
    {"BaseAttributesAndDescriptionsAreEscaped",
     "<ADXVALUE id='&lt;&amp;&gt;&quot;&apos;' title='&quot;&lt;&amp;'><desc>&lt;/desc>&amp;amp;</desc></ADXVALUE>",
     {"0 title = \"<&", "0 desc = </desc>&amp;"},
     {"0 title = \"<&", "0 desc = </desc>&amp;"}},
    {"RowsOfIntegerAndUnformattedTablesAreDropped",
     "<ADXLOOKUPTABLE><outputtype>0</outputtype><tableentry input='1' output='2'/></ADXLOOKUPTABLE>"
     "<ADXLOOKUPTABLE><outputtype>1</outputtype><tableentry input='1' output='2'/></ADXLOOKUPTABLE>"
     "<ADXLOOKUPTABLE><outputtype>2</outputtype><tableentry input='1' output='2'/></ADXLOOKUPTABLE>",
     {"0 entries = 0", "1 entries = 0", "2 entries = 0"},
     {"0 outputtype = 0", "1 outputtype = 1", "2 outputtype = 2"}},
    {"EntryCountIsIgnoredOnTablesDashboardsAndMonitors",
     "<ADXLOOKUPTABLE><outputtype>3</outputtype><entrycount>0</entrycount><tableentry/></ADXLOOKUPTABLE>"
     "<ADXDASHBOARD><entrycount>9</entrycount><ADXDGENTRY/></ADXDASHBOARD>"
     "<ADXMONITOR><entrycount>0</entrycount><ADXMONSERIES itemidhash='0x86F344BB'/></ADXMONITOR><ADXVALUE id='A'/>",
     {"0 entries = 1", "1 entries = 1", "2 entries = 1"}},
    // The row before the count found no slot, and yet took the first place.
    {"AListViewNeedsItsEntryCountFirstAndDropsRowsBeyondIt",
     "<ADXLISTVIEW><ADXLVENTRY color='7'/><entrycount>2</entrycount><ADXLVENTRY color='7'/><ADXLVENTRY color='7'/>"
     "</ADXLISTVIEW>",
     {"0 entries = 2", "0 row color = 0, 7"}},
    {"PacketOffsetIsHexadecimalOnItemsAndDecimalOnCommands",
     "<ADXVALUE><packetoffset>10</packetoffset></ADXVALUE><ADXBITMASK><packetoffset>10</packetoffset></ADXBITMASK>"
     "<ADXCSENDCOMMAND><packetoffset>10</packetoffset></ADXCSENDCOMMAND>",
     {"0 packetoffset = 16", "1 packetoffset = 16", "2 packetoffset = 10"}},
    // Rows and variables are written by their hash and stay.
    {"LinksThatLeadNowhereVanishAtTheNextSave",
     "<ADXVALUE><MATH equation='X' lookupidhash='0x1'/></ADXVALUE>"
     "<ADXHISTOGRAM><xidhash>0x1</xidhash><yidhash>0x1</yidhash><zidhash>0x1</zidhash></ADXHISTOGRAM>"
     "<ADXDASHBOARD><ADXDGENTRY itemidhash='0x1'/></ADXDASHBOARD>"
     "<ADXMONITOR><ADXMONSERIES itemidhash='0x1'/></ADXMONITOR><ADXMACRO><NODE commandID='NONE'/></ADXMACRO>"
     "<ADXLISTVIEW><entrycount>1</entrycount><ADXLVENTRY itemidhash='0x1'/></ADXLISTVIEW>"
     "<ADXVALUE><MATH equation='X'><VAR varID='X' type='link' linkIDHash='0x1'/></MATH></ADXVALUE>",
     {"0 lookupidhash = 1", "1 xidhash = 1", "2 gauge itemidhash = 1", "4 nodes = 1"},
     {"0 lookupidhash = 0", "1 xidhash = 0", "1 yidhash = 0", "1 zidhash = 0", "2 entries = 1",
      "2 gauge itemidhash = 0", "3 entries = 0", "4 nodes = 0", "5 row itemidhash = 1", "6 var = X 1 1"}},
};

TEST(FormatDifferences, ReadBackAsTold) {
    for (const AgainCase& one : kAgain) {
        SCOPED_TRACE(one.behaviour);
        ADXDefinition definition, loaded;
        ParseObjects(one.objects, definition);
        ExpectLines(definition, one.lines);
        SaveAndLoad(definition, loaded);
        ExpectLines(loaded, one.again);
    }
}

TEST(FormatDifferences, BaseFlagsOfCommandsAreWrittenAndLost) {
    ADXDefinition definition, loaded;
    ParseObjects(
        "<ADXCSENDCOMMAND/><ADXCLISTENSILENCE/><ADXCLISTENCHATTER/><ADXCLISTEN160BAUD/><ADXCTRIGGER/><ADXMACRO/>"
        "<ADXVALUE/><ADXBITMASK/><ADXLOOKUPTABLE/><ADXLISTVIEW/><ADXDASHBOARD/><ADXMONITOR/><ADXHISTOGRAM/>",
        definition);
    for (const auto& object : definition.Objects())
        object->SetBaseFlags(0xABCD);
    const std::string text = SaveText(definition);
    std::uint32_t written = 0;
    for (std::size_t at = 0; (at = text.find("baseflags=\"0x0000ABCD\"", at)) != std::string::npos; ++at)
        ++written;
    EXPECT_EQ(written, 13u);
    SaveAndLoad(definition, loaded);
    ASSERT_EQ(loaded.GetCount(), 13u);
    for (std::uint32_t i = 0; i < 13; ++i)
        EXPECT_EQ(loaded.GetObject(kTypeAny, i)->GetBaseFlags(), i < 6 ? 0u : 0xABCDu) << i;
}

TEST(FormatDifferences, UnescapedTextsMustNotHoldMarkup) {
    const test::TestFolder folder;
    const std::string path = folder.Name("a.adx");
    const struct {
        const char *units, *equation, *error;
    } cases[] = {
        {"a\">b'", "X", ""},
        {"a&b", "X", "Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)"},
        {"a<1", "X", "Names must start with an alphabetic character or _ or :"},
        {"", "X&15", "Expecting entity name after &"},
        {"", "X<1", "Illegal character '<' in element tag"},
        {"", "X\"1", "Names must start with an alphabetic character or _ or :"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(std::string(one.units) + " " + one.equation);
        ADXDefinition definition, loaded;
        ADXValue* const value = test::AddValue(definition, "V", one.equation);
        value->SetUnits(one.units, test::Length(one.units));
        EXPECT_EQ(definition.Save(path.c_str()), 1);
        char error[ADXDefinition::kErrorSize] = "";
        EXPECT_EQ(loaded.Load(path.c_str(), error), *one.error == '\0' ? 1 : 0);
        EXPECT_STREQ(error, one.error);
    }
}

TEST(FormatDifferences, TextsOfBlanksAloneAreLost) {
    ADXDefinition definition, loaded;
    ADXValue* const value = test::AddValue(definition, "V", "X");
    value->SetUnits("  ", 2);
    value->SetDesc(" \t\r\n", 4);
    value->SetTitle("  ", 2);
    SaveAndLoad(definition, loaded);
    // An attribute keeps its blanks.
    ExpectLines(loaded, {"0 units = ", "0 desc = ", "0 title =   "});
}

TEST(FormatDifferences, AnUnknownOperationOfABitmaskReadsBackAsAnd) {
    ADXDefinition definition, loaded;
    test::Add<ADXBitmask>(definition, "B")->bitop = 7;
    SaveAndLoad(definition, loaded);
    ExpectLines(loaded, {"0 bitop = 0"});
}

TEST(FormatDifferences, CommentsAndInstructionsAreSkippedAndNotKept) {
    ADXDefinition definition;
    const ParseResult result = ParseText("<?xml version='1.0'?><!-- Written 01/01/2001 00:00:00 --><!-- own note -->" +
                                             std::string(kRoot) + "<ADXVALUE id='A'/>",
                                         definition);
    EXPECT_EQ(result.ok, 1) << result.error;
    const std::string text = SaveText(definition);
    for (const char* lost : {"2001", "own note", "<?"})
        EXPECT_EQ(text.find(lost), std::string::npos) << lost;
}

}  // namespace
}  // namespace corvex
