#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "checking/DefinitionChecker.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/checking/CheckTestHelper.h"

namespace corvex {
namespace {

// The definition that all cases grow out of says nothing, so each case shows just its own finding.
void ExpectOnly(const std::string& objects, const std::string& lines) {
    EXPECT_EQ(Lines(CheckText(DefinitionWith(objects))), lines);
}

TEST(DefinitionCheckerTest, FindsNothingInASoundDefinition) {
    ExpectOnly(ValueText("RPM", "X*25"), "");
}

TEST(DefinitionCheckerTest, NamesAnUnresolvedParent) {
    ExpectOnly(ValueText("RPM", "X", "<parentcmdidhash>0x12345678</parentcmdidhash>"),
               "error unresolved-link value \"RPM title\" (RPM): parentcmdidhash 0x12345678 names no object of this "
               "definition; no reply ever carries it\n");
}

TEST(DefinitionCheckerTest, NamesAnUnresolvedLookup) {
    const auto findings = OfKind(CheckText(DefinitionWith("<ADXVALUE id=\"T\" title=\"T\"><MATH equation=\"X\" "
                                                          "lookupidhash=\"0x00000077\" /></ADXVALUE>")),
                                 "unresolved-link");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_NE(findings[0].text.find("lookupidhash 0x00000077"), std::string::npos) << findings[0].text;
}

TEST(DefinitionCheckerTest, NamesALinkToAnObjectOfTheWrongKind) {
    // The hash of "RPM", which is a value and no table.
    const auto findings =
        CheckText(DefinitionWith(ValueText("RPM", "X") + "<ADXVALUE id=\"T\" title=\"T\"><MATH equation=\"X\" "
                                                         "lookupidhash=\"0xCD0CD1DB\" /></ADXVALUE>"));
    ASSERT_EQ(OfKind(findings, "wrong-link").size(), 1U) << Lines(findings);
    EXPECT_NE(findings[0].text.find("value \"RPM title\" (RPM)"), std::string::npos);
}

TEST(DefinitionCheckerTest, NamesAnUnresolvedVariable) {
    const auto findings = CheckText(DefinitionWith(
        "<ADXVALUE id=\"T\" title=\"T\"><MATH equation=\"X+Y\"><VAR varID=\"Y\" type=\"link\" linkIDHash=\"0x99\" />"
        "</MATH></ADXVALUE>"));
    ASSERT_EQ(OfKind(findings, "unresolved-link").size(), 1U) << Lines(findings);
    EXPECT_NE(findings[0].text.find("linkIDHash of Y 0x00000099"), std::string::npos) << findings[0].text;
}

TEST(DefinitionCheckerTest, NamesAMissingMacroNode) {
    ExpectOnly("<ADXMACRO id=\"M\" title=\"M\"><NODE commandID=\"NOBODY\" /></ADXMACRO>",
               "error unresolved-link macro \"M\" (M): commandID \"NOBODY\" of node 1: no object has that id; the node "
               "is passed over and vanishes at the next save\n");
}

TEST(DefinitionCheckerTest, ExplainsANodeWhoseCommandHasALongId) {
    const auto findings = CheckText(
        DefinitionWith("<ADXCTRIGGER id=\"ABCDEFGHIJKLMNO\" title=\"T\" /><ADXMACRO id=\"M\" title=\"M\"><NODE "
                       "commandID=\"ABCDEFGHIJKLMNO\" /></ADXMACRO>"));
    ASSERT_EQ(OfKind(findings, "long-id").size(), 1U) << Lines(findings);
    EXPECT_EQ(OfKind(findings, "long-id")[0].severity, Severity::kWarning);
    ASSERT_EQ(OfKind(findings, "unresolved-link").size(), 1U);
    EXPECT_NE(OfKind(findings, "unresolved-link")[0].text.find("15 characters cannot be found by its text"),
              std::string::npos);
}

TEST(DefinitionCheckerTest, NamesHeaderCommandsThatAreMissing) {
    const auto findings =
        CheckText("<ADXFORMAT version=\"0.50\" />\n<ADXHEADER><connectcmd>GONE</connectcmd></ADXHEADER>");
    EXPECT_EQ(Lines(findings),
              "error unresolved-link : connectcmd \"GONE\": no object has that id; it is not run\n"
              "warning no-monitor : there is no monitor command: a scan ends right after connecting\n");
    EXPECT_EQ(findings[0].line, 2U);
}

TEST(DefinitionCheckerTest, NamesSeriesThatTheLoaderRemoved) {
    const auto findings = CheckText(DefinitionWith(
        ValueText("RPM", "X") +
        "<ADXMONITOR id=\"C\" title=\"C\"><ADXMONSERIES itemidhash=\"0xCD0CD1DB\" /><ADXMONSERIES itemidhash=\"0x1\" />"
        "</ADXMONITOR>"));
    ASSERT_EQ(findings.size(), 1U) << Lines(findings);
    EXPECT_EQ(findings[0].text,
              "itemidhash 0x00000001 of series 2 names no object of this definition; the series is removed");
}

TEST(DefinitionCheckerTest, NamesEmptyRowsAndGauges) {
    const auto findings = CheckText(
        DefinitionWith("<ADXLISTVIEW id=\"L\" title=\"L\"><entrycount>1</entrycount><ADXLVENTRY entrytype=\"0\" "
                       "itemidhash=\"0x5\" /></ADXLISTVIEW><ADXDASHBOARD id=\"D\" title=\"D\"><ADXDGENTRY "
                       "gaugetype=\"0\" itemidhash=\"0x6\" left=\"0\" top=\"0\" right=\"50\" bottom=\"50\" />"
                       "</ADXDASHBOARD>"));
    ASSERT_EQ(OfKind(findings, "unresolved-link").size(), 2U) << Lines(findings);
    EXPECT_NE(findings[0].text.find("itemidhash of row 1 0x00000005"), std::string::npos);
    EXPECT_NE(findings[1].text.find("itemidhash of gauge 1 0x00000006"), std::string::npos);
}

TEST(DefinitionCheckerTest, NamesDuplicateIds) {
    ExpectOnly(ValueText("RPM", "X") + ValueText("RPM", "X*2"),
               "error duplicate-id value \"RPM title\" (RPM): shares its id and hash 0xCD0CD1DB with the value \"RPM "
               "title\" (RPM), which every link finds instead\n");
}

TEST(DefinitionCheckerTest, NotesALongIdOfAnItem) {
    const auto findings = CheckText(DefinitionWith(ValueText("ABCDEFGHIJKLMNO", "X")));
    ASSERT_EQ(findings.size(), 1U) << Lines(findings);
    EXPECT_EQ(findings[0].kind, "long-id");
    EXPECT_EQ(findings[0].severity, Severity::kNote);
    EXPECT_EQ(OfKind(CheckText(DefinitionWith(ValueText("ABCDEFGHIJKLMN", "X"))), "long-id").size(), 0U);
}

TEST(DefinitionCheckerTest, SaysThatAnIdIsCut) {
    EXPECT_EQ(OfKind(CheckText(DefinitionWith(ValueText("ABCDEFGHIJKLMNOPQ", "X"))), "cut-id").size(), 1U);
}

TEST(DefinitionCheckerTest, NamesEquationsThatDoNotParse) {
    ExpectOnly(ValueText("RPM", "(X*2"),
               "error equation value \"RPM title\" (RPM): equation \"(X*2\" does not parse: its parentheses are not "
               "balanced; it always reads 0\n");
    EXPECT_EQ(OfKind(CheckText(DefinitionWith(ValueText("RPM", "X$"))), "equation").size(), 1U);
    EXPECT_EQ(OfKind(CheckText(DefinitionWith(ValueText("RPM", "X**3"))), "equation").size(), 1U);
}

TEST(DefinitionCheckerTest, NamesLettersUsedTwice) {
    ExpectOnly(ValueText("RPM", "X*X"),
               "error letter-twice value \"RPM title\" (RPM): equation \"X*X\" uses the letter X more than once, so "
               "each use of it reads 0\n");
}

TEST(DefinitionCheckerTest, WarnsOfLettersThatFuse) {
    const auto findings = CheckText(DefinitionWith(ValueText("RPM", "2X")));
    ASSERT_EQ(findings.size(), 1U) << Lines(findings);
    EXPECT_EQ(findings[0].kind, "fused-letters");
}

TEST(DefinitionCheckerTest, NamesThePathOfALinkCycle) {
    const std::string link = "<VAR varID=\"Y\" type=\"link\" linkIDHash=\"";
    const auto hash = [](const char* id) {
        char text[16];
        std::snprintf(text, sizeof text, "0x%.8X", HashId(id, 1));
        return std::string(text);
    };
    const auto findings =
        CheckText(DefinitionWith("<ADXVALUE id=\"A\" title=\"First\"><MATH equation=\"Y\">" + link + hash("B") +
                                 "\" /></MATH></ADXVALUE><ADXVALUE id=\"B\" title=\"Second\"><MATH equation=\"Y\">" +
                                 link + hash("A") + "\" /></MATH></ADXVALUE>"));
    EXPECT_EQ(Lines(findings),
              "error cycle value \"First\" (A): refers to itself: First -> Second -> First; it is cut when computed\n");
}

TEST(DefinitionCheckerTest, NamesAMacroThatRunsItself) {
    ExpectOnly("<ADXMACRO id=\"M\" title=\"Loop\"><NODE commandID=\"M\" /></ADXMACRO>",
               "error cycle macro \"Loop\" (M): refers to itself: Loop -> Loop; it fails when it is run\n");
}

// A packet of 20 bytes in the 21 that follow the reply's header.
TEST(DefinitionCheckerTest, NamesFieldsOutsideThePacket) {
    ExpectOnly(ValueText("RPM", "X", "<packetoffset>0x14</packetoffset><sizeinbits>16</sizeinbits>"),
               "error outside-packet value \"RPM title\" (RPM): packetoffset 0x14 and 2 bytes fit in the reply of no "
               "command\n");
    ExpectOnly(ValueText("RPM", "X", "<packetoffset>0x13</packetoffset><sizeinbits>16</sizeinbits>"),
               "warning beyond-packet value \"RPM title\" (RPM): packetoffset 0x13 and 2 bytes reach beyond the "
               "packetsize of every command; the replies are read all the same\n");
    ExpectOnly(ValueText("RPM", "X", "<packetoffset>0x12</packetoffset><sizeinbits>16</sizeinbits>"), "");
    char parent[64];
    std::snprintf(parent, sizeof parent, "<parentcmdidhash>0x%.8X</parentcmdidhash>", HashId("POLL", 4));
    ExpectOnly(ValueText("RPM", "X", std::string(parent) + "<packetoffset>0x15</packetoffset>"),
               "error outside-packet value \"RPM title\" (RPM): packetoffset 0x15 and 1 byte reach beyond the 21 bytes "
               "that the send command \"Poll\" (POLL) leaves to read\n");
    ExpectOnly(ValueText("RPM", "X", std::string(parent) + "<packetoffset>0x14</packetoffset>"),
               "warning beyond-packet value \"RPM title\" (RPM): packetoffset 0x14 and 1 byte reach beyond the "
               "packetsize of 20 of the send command \"Poll\" (POLL); its reply is read all the same\n");
}

TEST(DefinitionCheckerTest, NamesFieldsOfIllegalWidth) {
    const auto width = [](const char* bits, const char* flags = "0") {
        const auto findings = CheckText(DefinitionWith(
            ValueText("RPM", "X", std::string("<flags>") + flags + "</flags><sizeinbits>" + bits + "</sizeinbits>")));
        return Lines(OfKind(findings, "field-size"));
    };
    EXPECT_NE(width("40").find("40 is more than the 32"), std::string::npos);
    EXPECT_NE(width("12").find("12 is no multiple of 8: 1 byte is read"), std::string::npos);
    EXPECT_NE(width("24", "1").find("a signed field of 24 bits always reads 0"), std::string::npos);
    EXPECT_NE(width("24").find("never swapped"), std::string::npos);
    EXPECT_EQ(width("24", "2"), "");
    EXPECT_EQ(width("16"), "");
}

TEST(DefinitionCheckerTest, NamesTableRowsThatReadingDrops) {
    ExpectOnly(
        "<ADXLOOKUPTABLE id=\"T\" title=\"T\"><outputtype>1</outputtype><tableentry input=\"1\" output=\"2\" />"
        "<tableentry input=\"2\" output=\"3\" /></ADXLOOKUPTABLE>",
        "error dropped-rows table \"T\" (T): 2 of its 2 rows are dropped on reading: outputtype 1 keeps none; use "
        "3 or 5\nwarning empty-table table \"T\" (T): has no rows: a value shown through it shows 0 or "
        "nothing\n");
}

TEST(DefinitionCheckerTest, ForetellsTableRowsThatASaveLoses) {
    ADXDefinition definition;
    auto table = std::make_unique<ADXLookupTable>();
    table->SetId("T");
    table->AddEntry(1.0F, 2.0F);
    table->SetOutputType(ADXLookupTable::kInteger);
    definition.InsertAt(std::move(table), 0xFFFFFFFF);
    const auto lost = OfKind(CheckDefinition(definition, nullptr), "lost-on-save");
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_TRUE(lost[0].lostonsave);
    EXPECT_NE(lost[0].text.find("its row will be dropped on reading"), std::string::npos) << lost[0].text;
}

TEST(DefinitionCheckerTest, NamesListRowsThatReadingDrops) {
    const auto findings = CheckText(DefinitionWith(
        "<ADXLISTVIEW id=\"L\" title=\"L\"><entrycount>1</entrycount><ADXLVENTRY entrytype=\"1\" title=\"a\" />"
        "<ADXLVENTRY entrytype=\"1\" title=\"b\" /></ADXLISTVIEW>"));
    EXPECT_EQ(Lines(findings),
              "error dropped-rows list view \"L\" (L): 1 of its 2 rows are dropped on reading: entrycount is 1\n");
}

TEST(DefinitionCheckerTest, NamesListRowsBeforeTheirCount) {
    const auto findings = CheckText(
        DefinitionWith("<ADXLISTVIEW id=\"L\" title=\"L\"><ADXLVENTRY entrytype=\"1\" title=\"a\" /><entrycount>0"
                       "</entrycount></ADXLISTVIEW>"));
    EXPECT_EQ(Lines(findings), "error row-order list view \"L\" (L): 1 row stands before its entrycount and dropped\n");
}

TEST(DefinitionCheckerTest, NamesTextsThatASaveDoesNotEscape) {
    const auto findings =
        CheckText(DefinitionWith(ValueText("RPM", "X", "<units>a &amp; b</units>") + ValueText("LESS", "X&lt;5")));
    ASSERT_EQ(OfKind(findings, "lost-on-save").size(), 2U) << Lines(findings);
    EXPECT_EQ(findings[0].severity, Severity::kError);
    EXPECT_TRUE(findings[0].lostonsave);
    EXPECT_NE(findings[0].text.find("units \"a & b\" holds a &"), std::string::npos) << findings[0].text;
    EXPECT_NE(findings[1].text.find("equation \"X<5\" holds a <"), std::string::npos) << findings[1].text;
}

TEST(DefinitionCheckerTest, NamesIdsThatASaveDoesNotEscape) {
    ADXDefinition definition;
    auto silence = std::make_unique<ADXCListenSilence>();
    silence->SetId("A&B");
    ADXMacroNode node;
    node.command = silence.get();
    auto macro = std::make_unique<ADXMacro>();
    macro->SetId("M");
    macro->AddNode(&node);
    definition.connectcmd = silence.get();
    definition.InsertAt(std::move(silence), 0xFFFFFFFF);
    definition.InsertAt(std::move(macro), 0xFFFFFFFF);
    const auto lost = OfKind(CheckDefinition(definition, nullptr), "lost-on-save");
    ASSERT_EQ(lost.size(), 2U) << Lines(lost);
    EXPECT_EQ(lost[0].text.rfind("connectcmd \"A&B\" holds a &", 0), 0U) << lost[0].text;
    EXPECT_EQ(lost[1].text.rfind("commandID of node 1 \"A&B\" holds a &", 0), 0U) << lost[1].text;
}

TEST(DefinitionCheckerTest, NamesBytesThatDoNotComeBackFromASave) {
    ADXDefinition definition;
    auto send = std::make_unique<ADXCSendCommand>();
    send->SetId("S");
    ADXCSendCommand* const stored = send.get();
    definition.InsertAt(std::move(send), 0xFFFFFFFF);
    const std::vector<std::uint8_t> bytes(205, 1);
    stored->SetBytes(bytes.data(), 204);
    EXPECT_EQ(OfKind(CheckDefinition(definition, nullptr), "lost-on-save").size(), 0U);
    stored->SetBytes(bytes.data(), 205);
    EXPECT_EQ(OfKind(CheckDefinition(definition, nullptr), "lost-on-save").size(), 1U);
}

TEST(DefinitionCheckerTest, NamesEquationsThatASaveCuts) {
    const std::string exact = "X" + std::string(49 * 2, ' ');  // 99 characters
    EXPECT_EQ(OfKind(CheckText(DefinitionWith(ValueText("RPM", exact))), "lost-on-save").size(), 0U);
    const auto lost = OfKind(CheckText(DefinitionWith(ValueText("RPM", exact + " "))), "lost-on-save");
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].text, "its equation of 100 characters is cut to 99 on save");
}

TEST(DefinitionCheckerTest, NamesNumbersFinerThanSixDecimals) {
    ADXDefinition definition;
    auto value = std::make_unique<ADXValue>();
    value->SetId("V");
    value->rangelow = 0.0000001F;
    definition.InsertAt(std::move(value), 0xFFFFFFFF);
    const auto lost = OfKind(CheckDefinition(definition, nullptr), "lost-on-save");
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].text, "range low 1e-07 is saved as 0.000000");
}

TEST(DefinitionCheckerTest, NamesHeaderTextsThatShowAsEmpty) {
    ADXDefinition definition;
    definition.SetAuthor(std::string(60, 'a').c_str(), 60);
    EXPECT_EQ(OfKind(CheckDefinition(definition, nullptr), "long-header").size(), 1U);
    definition.SetAuthor(std::string(59, 'a').c_str(), 59);
    EXPECT_EQ(OfKind(CheckDefinition(definition, nullptr), "long-header").size(), 0U);
}

TEST(DefinitionCheckerTest, NamesChatterSizesThatReadBackWrong) {
    ADXDefinition definition;
    auto chatter = std::make_unique<ADXCListenChatter>();
    const std::uint8_t bytes[10] = {};
    chatter->SetId("C");
    chatter->SetBytes(bytes, 10);
    definition.InsertAt(std::move(chatter), 0xFFFFFFFF);
    const auto lost = OfKind(CheckDefinition(definition, nullptr), "lost-on-save");
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].text, "a save writes the size 10 in decimal, which reads back as 16");
}

TEST(DefinitionCheckerTest, NamesAPatternShorterThanItsSize) {
    const auto findings = CheckText(
        DefinitionWith("<ADXCLISTENCHATTER id=\"C\" title=\"C\"><bytestring size=\"10\">0x01 0x02 </bytestring>"
                       "</ADXCLISTENCHATTER>"));
    ASSERT_EQ(OfKind(findings, "byte-count").size(), 1U) << Lines(findings);
    EXPECT_NE(findings[0].text.find("holds 2 bytes but its size \"10\", read as hexadecimal, makes it 16"),
              std::string::npos)
        << findings[0].text;
}

TEST(DefinitionCheckerTest, NamesATimeoutThatTheLineCannotMeet) {
    // 63 bytes back and 5 out are 83.0 ms at 8192 baud.
    const auto send = [](const char* timeout) {
        return std::string(
                   "<ADXCSENDCOMMAND id=\"S\" title=\"S\" flags=\"0x1\"><bytestring size=\"0x5\">1 2 3 4 5 "
                   "</bytestring><replysize>63</replysize><replytimeout>") +
               timeout + "</replytimeout><packetsize>20</packetsize></ADXCSENDCOMMAND>";
    };
    ExpectOnly(
        send("83"),
        "error timeout send command \"S\" (S): replytimeout is 83 ms, but 5 bytes out and 63 back take 83.0 ms at "
        "8192 baud\n");
    ExpectOnly(send("84"), "");
}

// 0 is no limit.
TEST(DefinitionCheckerTest, NamesAWaitThatOnlyAStopEnds) {
    const auto send = [](const char* flags, const char* replysize) {
        return std::string("<ADXCSENDCOMMAND id=\"S\" title=\"S\" flags=\"") + flags +
               "\"><bytestring size=\"0x1\">1 </bytestring><replysize>" + replysize +
               "</replysize><replytimeout>0</replytimeout><packetsize>" + replysize + "</packetsize></ADXCSENDCOMMAND>";
    };
    const std::string warning =
        "warning timeout send command \"S\" (S): replytimeout is 0, which is no limit: on a silent line it waits until "
        "the scan is stopped\n";
    ExpectOnly(send("0x1", "3"), warning);
    ExpectOnly(send("0x0", "0"), "");
    const auto findings = CheckText(DefinitionWith(send("0x1", "0")));  // reads nothing
    EXPECT_TRUE(OfKind(findings, "timeout").empty()) << Lines(findings);
    ExpectOnly(
        "<ADXCLISTENCHATTER id=\"C\" title=\"C\"><listentimeout>0</listentimeout><bytestring size=\"2\">0x01 0x02 "
        "</bytestring></ADXCLISTENCHATTER>",
        "warning timeout listen for chatter \"C\" (C): listentimeout is 0, which is no limit: on a silent line it "
        "waits "
        "until the scan is stopped\n");
}

TEST(DefinitionCheckerTest, NamesAPacketBeyondItsReply) {
    ExpectOnly(
        "<ADXCSENDCOMMAND id=\"S\" title=\"S\" flags=\"0x1\"><bytestring size=\"0x1\">1 </bytestring><replysize>"
        "10</replysize><packetoffset>3</packetoffset><packetsize>8</packetsize></ADXCSENDCOMMAND>",
        "error packet-place send command \"S\" (S): packetoffset 3 and packetsize 8 reach beyond the reply of 10 "
        "bytes\n");
}

TEST(DefinitionCheckerTest, NamesBitmasksThatAreNeverSet) {
    ExpectOnly("<ADXBITMASK id=\"B\" title=\"B\"><operand>0x01</operand><result>0x02</result></ADXBITMASK>",
               "error mask bitmask \"B\" (B): result 0x00000002 has bits outside operand 0x00000001 and field: it is "
               "never set\n");
}

TEST(DefinitionCheckerTest, NotesNamesThatMeanNothing) {
    const auto findings = CheckText(DefinitionWith(ValueText("RPM", "X", "<packetofset>0x05</packetofset>")));
    EXPECT_EQ(Lines(findings),
              "note unknown-name value \"RPM title\" (RPM): <packetofset> means nothing here and is ignored\n");
    EXPECT_EQ(findings[0].line, 5U);
}

TEST(DefinitionCheckerTest, SaysThatALongTextIsCut) {
    const auto findings =
        CheckText(DefinitionWith(ValueText("RPM", "X", "<desc>" + std::string(1500, 'd') + "</desc>")));
    ASSERT_EQ(OfKind(findings, "cut-text").size(), 1U) << Lines(findings);
    EXPECT_NE(findings[0].text.find("<desc>"), std::string::npos);
}

TEST(DefinitionCheckerTest, NotesAWrongObjectCount) {
    const auto findings =
        CheckText("<ADXFORMAT version=\"0.50\" /><ADXHEADER><objectcount>2</objectcount></ADXHEADER>");
    EXPECT_EQ(OfKind(findings, "object-count").size(), 1U) << Lines(findings);
}

TEST(DefinitionCheckerTest, SaysThatBaseFlagsOfACommandAreLost) {
    EXPECT_EQ(
        OfKind(CheckText(DefinitionWith("<ADXCTRIGGER id=\"T\" title=\"T\" baseflags=\"0x1\" />")), "baseflags").size(),
        1U);
}

}  // namespace
}  // namespace corvex
