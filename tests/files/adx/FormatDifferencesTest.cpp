// The places where the writer and the reader of the format do not agree. Files in use depend on each of them.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/DefinitionCompare.h"

namespace corvex {
namespace {

TEST(FormatDifferences, CommandCountIsReadAndNeverWritten) {
    ADXDefinition definition;
    ProgressRecorder progress;
    const std::string header = "<ADXHEADER><objectcount>2</objectcount><commandcount>5</commandcount></ADXHEADER>";
    ParseText(kRoot + header, definition, &progress);
    EXPECT_EQ(progress.calls.front(), "range 7");
    EXPECT_FALSE(Contains(SaveText(definition), "commandcount"));
}

TEST(FormatDifferences, TheHashIsWrittenAndNeverRead) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='RPM' idhash='0x12345678'><digcount>2</digcount><outputtype>3</outputtype></ADXVALUE>",
                 definition);
    EXPECT_EQ(Get<ADXValue>(definition).GetIdHash(), 0xCD0CD1DBu);
    EXPECT_TRUE(Contains(SaveText(definition), "id=\"RPM\" idhash=\"0xCD0CD1DB\""));
    ADXDefinition again;
    SaveAndLoad(definition, again);
    EXPECT_EQ(FirstDifference(definition, again), "");
}

TEST(FormatDifferences, BaseFlagsOfCommandsAreWrittenAndLost) {
    ADXDefinition definition;
    Add<ADXCSendCommand>(definition, "A");
    Add<ADXCListenSilence>(definition, "B");
    Add<ADXCListenChatter>(definition, "C");
    Add<ADXC160BaudListen>(definition, "D");
    Add<ADXCTrigger>(definition, "E");
    Add<ADXMacro>(definition, "F");
    const std::uint32_t commands = definition.GetCount();
    Add<ADXValue>(definition, "G");
    Add<ADXBitmask>(definition, "H");
    Add<ADXLookupTable>(definition, "I");
    Add<ADXListView>(definition, "J");
    Add<ADXDashboard>(definition, "K");
    Add<ADXMonitor>(definition, "L");
    Add<ADXHistogram>(definition, "M");
    for (const auto& object : definition.Objects())
        object->SetBaseFlags(0xABCD);
    const std::string text = SaveText(definition);
    std::size_t written = 0;
    for (std::size_t at = 0; (at = text.find("baseflags=\"0x0000ABCD\"", at)) != std::string::npos; ++at)
        ++written;
    EXPECT_EQ(written, definition.GetCount());
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    ASSERT_EQ(loaded.GetCount(), definition.GetCount());
    for (std::uint32_t i = 0; i < loaded.GetCount(); ++i) {
        EXPECT_EQ(loaded.GetObject(kTypeAny, i)->GetBaseFlags(), i < commands ? 0u : 0xABCDu) << i;
    }
}

TEST(FormatDifferences, EntryCountIsIgnoredOnTablesDashboardsAndMonitors) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXLOOKUPTABLE><outputtype>3</outputtype><entrycount>0</entrycount><tableentry/></ADXLOOKUPTABLE>"
        "<ADXDASHBOARD><entrycount>0</entrycount><ADXDGENTRY/></ADXDASHBOARD>"
        "<ADXMONITOR><entrycount>0</entrycount><ADXMONSERIES itemidhash='0x86F344BB'/></ADXMONITOR><ADXVALUE id='A'/>",
        definition);
    EXPECT_EQ(Get<ADXLookupTable>(definition, 0).GetEntryCount(), 1u);
    EXPECT_EQ(Get<ADXDashboard>(definition, 1).GetEntryCount(), 1u);
    EXPECT_EQ(Get<ADXMonitor>(definition, 2).GetEntryCount(), 1u);
}

TEST(FormatDifferences, AListViewNeedsItsEntryCountFirstAndDropsRowsBeyondIt) {
    ADXDefinition definition;
    const std::string row = "<ADXLVENTRY color='7'/>";
    ParseObjects("<ADXLISTVIEW>" + row + "<entrycount>2</entrycount>" + row + row + "</ADXLISTVIEW>", definition);
    const auto& view = Get<ADXListView>(definition);
    ASSERT_EQ(view.GetEntryCount(), 2u);
    // The row before the count found no slot, and yet took the first place.
    EXPECT_EQ(view.GetEntry(0)->color, 0u);
    EXPECT_EQ(view.GetEntry(1)->color, 7u);
}

TEST(FormatDifferences, AChatterPatternOfTenBytesReadsBackAsSixteen) {
    const std::uint8_t bytes[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    ADXDefinition definition;
    Add<ADXCListenChatter>(definition, "C").SetBytes(bytes, 10);
    EXPECT_TRUE(Contains(SaveText(definition), "<bytestring size=\"10\">"));
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    const auto& chatter = Get<ADXCListenChatter>(loaded);
    ASSERT_EQ(chatter.size(), 16u);
    for (std::uint32_t i = 0; i < 16; ++i)
        EXPECT_EQ(chatter.bytestring()[i], i < 10 ? i + 1 : 0) << i;
}

TEST(FormatDifferences, ASendCommandOfTenBytesReadsBackAsTen) {
    const std::uint8_t bytes[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    ADXDefinition definition;
    Add<ADXCSendCommand>(definition, "S").SetBytes(bytes, 10);
    EXPECT_TRUE(Contains(SaveText(definition), "<bytestring size=\"0xA\">"));
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(FirstDifference(definition, loaded), "");
}

TEST(FormatDifferences, RowsOfIntegerAndUnformattedTablesAreWrittenAndDropped) {
    for (const std::uint32_t type : {0u, 1u, 2u}) {
        ADXDefinition definition;
        auto& table = Add<ADXLookupTable>(definition, "T");
        table.SetOutputType(type);
        table.AddEntry(1.0F, 2.0F);
        EXPECT_TRUE(Contains(SaveText(definition), "<tableentry input=\"1.000000\" output=\"2.000000\" />"));
        ADXDefinition loaded;
        SaveAndLoad(definition, loaded);
        EXPECT_EQ(Get<ADXLookupTable>(loaded).GetOutputType(), type);
        EXPECT_EQ(Get<ADXLookupTable>(loaded).GetEntryCount(), 0u) << type;
    }
}

TEST(FormatDifferences, AnEquationIsCutAt99CharactersOnSaveAloneAndTheReaderTakes255) {
    ADXDefinition definition;
    const std::string equation = "X" + std::string(254, ' ');
    ParseObjects("<ADXVALUE><MATH equation='" + equation + "'/></ADXVALUE>", definition);
    char text[512];
    EXPECT_EQ(Get<ADXValue>(definition).GetEquation(text, sizeof text), 256u);
    EXPECT_EQ(text, equation);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    Get<ADXValue>(loaded).GetEquation(text, sizeof text);
    EXPECT_EQ(text, equation.substr(0, 99));
}

// Each of these texts stands unescaped in the file.
using TextSetter = void (*)(ADXDefinition&, const char*, std::uint32_t);
struct PlainTextCase {
    const char* name;
    TextSetter set;
};
constexpr PlainTextCase kElementTexts[] = {
    {"units", [](ADXDefinition& d, const char* t, std::uint32_t n) { Add<ADXValue>(d, "V").SetUnits(t, n); }},
    {"truestring",
     [](ADXDefinition& d, const char* t, std::uint32_t n) { Add<ADXBitmask>(d, "B").SetTrueString(t, n); }},
    {"falsestring",
     [](ADXDefinition& d, const char* t, std::uint32_t n) { Add<ADXBitmask>(d, "B").SetFalseString(t, n); }},
    {"author", [](ADXDefinition& d, const char* t, std::uint32_t n) { d.SetAuthor(t, n); }},
    {"userversion", [](ADXDefinition& d, const char* t, std::uint32_t n) { d.SetUserVersion(t, n); }},
    {"desc", [](ADXDefinition& d, const char* t, std::uint32_t n) { d.SetDesc(t, n); }},
    {"connectcmd", [](ADXDefinition& d, const char* t, std::uint32_t) { d.connectcmd = &Add<ADXCTrigger>(d, t); }},
};
constexpr PlainTextCase kAttributeTexts[] = {
    {"equation", [](ADXDefinition& d, const char* t, std::uint32_t n) { Add<ADXValue>(d, "V").SetEquation(t, n); }},
    {"table output",
     [](ADXDefinition& d, const char* t, std::uint32_t n) {
         auto& table = Add<ADXLookupTable>(d, "T");
         table.SetOutputType(5);
         table.AddEntryText(1.0F, t, n);
     }},
};

std::string LoadErrorOf(TextSetter set, const char* text, std::uint32_t length) {
    ADXDefinition definition;
    set(definition, text, length);
    const TempFile file;
    EXPECT_EQ(definition.Save(file.Path()), 1);
    ADXDefinition loaded;
    char error[ADXDefinition::kErrorSize] = "";
    const bool ok = loaded.Load(file.Path(), error) == 1;
    EXPECT_EQ(ok, *error == '\0');
    return error;
}

TEST(FormatDifferences, UnescapedTextsMustNotHoldMarkup) {
    for (const PlainTextCase& text : kElementTexts) {
        EXPECT_EQ(LoadErrorOf(text.set, "a&b", 3),
                  "Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)")
            << text.name;
        EXPECT_EQ(LoadErrorOf(text.set, "a<1", 3), "Names must start with an alphabetic character or _ or :")
            << text.name;
        EXPECT_EQ(LoadErrorOf(text.set, "a\"b", 3), "") << text.name;
        EXPECT_EQ(LoadErrorOf(text.set, "a>b'", 4), "") << text.name;
    }
    for (const PlainTextCase& text : kAttributeTexts) {
        EXPECT_EQ(LoadErrorOf(text.set, "a&b", 3),
                  "Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)")
            << text.name;
        EXPECT_EQ(LoadErrorOf(text.set, "a<1", 3), "Illegal character '<' in element tag") << text.name;
        EXPECT_EQ(LoadErrorOf(text.set, "a\"1", 3), "Names must start with an alphabetic character or _ or :")
            << text.name;
    }
}

TEST(FormatDifferences, UnescapedTextsMayReadBackAsOthers) {
    ADXDefinition definition;
    Add<ADXValue>(definition, "V").SetUnits("a&lt;b", 6);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_STREQ(Get<ADXValue>(loaded).Units(), "a<b");
}

TEST(FormatDifferences, BaseAttributesAndDescriptionsAreEscaped) {
    ADXDefinition definition;
    auto& value = Add<ADXValue>(definition, "<&>\"'");
    value.SetTitle("\"<&>'\"", 6);
    value.SetDesc("</desc>&amp;", 12);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(FirstDifference(definition, loaded), "");
}

TEST(FormatDifferences, AChatterPatternIsWrittenUpTo51Bytes) {
    const std::vector<std::uint8_t> bytes(60, 0x11);
    ADXDefinition definition;
    Add<ADXCListenChatter>(definition, "C").SetBytes(bytes.data(), 60);
    std::string expected = "<bytestring size=\"60\">";
    for (int i = 0; i < 51; ++i)
        expected += "0x11 ";
    EXPECT_TRUE(Contains(SaveText(definition), expected + "</bytestring>"));
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    const auto& chatter = Get<ADXCListenChatter>(loaded);
    ASSERT_EQ(chatter.size(), 0x60u);
    EXPECT_EQ(chatter.bytestring()[50], 0x11);
    EXPECT_EQ(chatter.bytestring()[51], 0);
}

TEST(FormatDifferences, ASendCommandIsWrittenUpTo409BytesAndReadUpTo204) {
    const std::vector<std::uint8_t> bytes(420, 0x11);
    ADXDefinition definition;
    Add<ADXCSendCommand>(definition, "S").SetBytes(bytes.data(), 420);
    std::string expected = "<bytestring size=\"0x1A4\">";
    for (int i = 0; i < 409; ++i)
        expected += "0x11 ";
    EXPECT_TRUE(Contains(SaveText(definition), expected));
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    const auto& send = Get<ADXCSendCommand>(loaded);
    ASSERT_EQ(send.size(), 420u) << "the size is told apart from the bytes";
    EXPECT_EQ(send.bytestring()[203], 0x11);
    EXPECT_EQ(send.bytestring()[204], 0x1) << "the text is cut at 1023 characters";
    EXPECT_EQ(send.bytestring()[205], 0);
}

TEST(FormatDifferences, PacketOffsetIsHexadecimalOnItemsAndDecimalOnCommands) {
    ADXDefinition definition;
    const std::string offset = "<packetoffset>10</packetoffset>";
    ParseObjects("<ADXVALUE>" + offset + "</ADXVALUE><ADXBITMASK>" + offset + "</ADXBITMASK><ADXCSENDCOMMAND>" +
                     offset + "</ADXCSENDCOMMAND>",
                 definition);
    EXPECT_EQ(Get<ADXValue>(definition, 0).packetoffset, 16u);
    EXPECT_EQ(Get<ADXBitmask>(definition, 1).packetoffset, 16u);
    EXPECT_EQ(Get<ADXCSendCommand>(definition, 2).packetoffset, 10u);
}

TEST(FormatDifferences, LinksThatLeadNowhereVanishAtTheNextSave) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXVALUE><MATH equation='X' lookupidhash='0x1'/></ADXVALUE>"
        "<ADXHISTOGRAM><xidhash>0x1</xidhash><yidhash>0x1</yidhash><zidhash>0x1</zidhash></ADXHISTOGRAM>"
        "<ADXDASHBOARD><ADXDGENTRY itemidhash='0x1'/></ADXDASHBOARD>"
        "<ADXMONITOR><ADXMONSERIES itemidhash='0x1'/></ADXMONITOR>"
        "<ADXMACRO><NODE commandID='NONE'/></ADXMACRO>"
        "<ADXLISTVIEW><entrycount>1</entrycount><ADXLVENTRY itemidhash='0x1'/></ADXLISTVIEW>"
        "<ADXVALUE><MATH equation='X'><VAR varID='X' type='link' linkIDHash='0x1'/></MATH></ADXVALUE>",
        definition);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(Get<ADXValue>(loaded, 0).lookupidhash, 0u);
    EXPECT_EQ(Get<ADXHistogram>(loaded, 1).xidhash, 0u);
    EXPECT_EQ(Get<ADXHistogram>(loaded, 1).yidhash, 0u);
    EXPECT_EQ(Get<ADXHistogram>(loaded, 1).zidhash, 0u);
    EXPECT_EQ(Get<ADXDashboard>(loaded, 2).GetEntryCount(), 1u);
    EXPECT_EQ(Get<ADXDashboard>(loaded, 2).GetEntry(0)->itemidhash, 0u);
    EXPECT_EQ(Get<ADXMonitor>(loaded, 3).GetEntryCount(), 0u);
    EXPECT_EQ(Get<ADXMacro>(loaded, 4).GetNodeCount(), 0u);
    // Rows and variables are written by their hash and stay.
    EXPECT_EQ(Get<ADXListView>(loaded, 5).GetEntry(0)->itemidhash, 1u);
    ADXVar var;
    Get<ADXValue>(loaded, 6).GetVar(0, &var);
    EXPECT_EQ(var.linkidhash, 1u);
}

TEST(FormatDifferences, CommentsAndInstructionsAreSkippedAndNotKept) {
    ADXDefinition definition;
    const ParseResult result = ParseText("<?xml version='1.0'?><!-- Written 01/01/2001 00:00:00 --><!-- own note -->" +
                                             std::string(kRoot) + "<ADXVALUE id='A'/>",
                                         definition);
    EXPECT_EQ(result.ok, 1) << result.error;
    const std::string text = SaveText(definition);
    EXPECT_FALSE(Contains(text, "2001"));
    EXPECT_FALSE(Contains(text, "own note"));
    EXPECT_FALSE(Contains(text, "<?"));
}

}  // namespace
}  // namespace corvex
