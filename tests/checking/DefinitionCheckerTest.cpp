#include <gtest/gtest.h>

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
#include "tests/support/AdxText.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

const std::string kExact = "X" + std::string(98, ' ');  // the longest equation that a save keeps

// A send command S of so many bytes, with a reply.
std::string SendOf(int bytes, int replysize, int timeout, int packetsize, const std::string& flags = "flags='0x1'",
                   const std::string& more = "") {
    return "<ADXCSENDCOMMAND id='S' title='S' " + flags + "><bytestring size='" + std::to_string(bytes) + "'>" +
           std::string("1 2 3 4 5 ").substr(0, 2 * static_cast<std::size_t>(bytes)) + "</bytestring>" +
           test::AdxTag("replysize", std::to_string(replysize)) +
           test::AdxTag("replytimeout", std::to_string(timeout)) + more +
           test::AdxTag("packetsize", std::to_string(packetsize)) + "</ADXCSENDCOMMAND>";
}

// The definition that all cases grow out of says nothing, so each case shows just its own findings.
struct FileCase {
    const char* name;
    std::string objects, lines;
};

const FileCase kFileCases[] = {
    {"SoundDefinition", ValueText("RPM", "X*25"), ""},
    {"UnresolvedParent", ValueText("RPM", "X", "<parentcmdidhash>0x12345678</parentcmdidhash>"),
     "error unresolved-link value \"RPM title\" (RPM): parentcmdidhash 0x12345678 names no object of this definition; "
     "no reply ever carries it\n"},
    {"UnresolvedLookup", Object("ADXVALUE", "T", "<MATH equation='X' lookupidhash='0x00000077' />"),
     "error unresolved-link value \"T\" (T): lookupidhash 0x00000077 names no object of this definition; the value is "
     "shown without a table, and the link vanishes at the next save\n"},
    {"LinkToTheWrongKind",
     ValueText("RPM", "X") + Object("ADXVALUE", "T", "<MATH equation='X' lookupidhash='0xCD0CD1DB' />"),
     "error wrong-link value \"T\" (T): lookupidhash 0xCD0CD1DB names the value \"RPM title\" (RPM), which cannot "
     "stand there; the value is shown without a table, and the link vanishes at the next save\n"},
    {"UnresolvedVariable",
     Object("ADXVALUE", "T", "<MATH equation='X+Y'><VAR varID='Y' type='link' linkIDHash='0x99' /></MATH>"),
     "error unresolved-link value \"T\" (T): linkIDHash of Y 0x00000099 names no object of this definition; the letter "
     "reads as the one before it, or 0\n"},
    {"MissingMacroNode", Object("ADXMACRO", "M", "<NODE commandID='NOBODY' />"),
     "error unresolved-link macro \"M\" (M): commandID \"NOBODY\" of node 1: no object has that id; the node is passed "
     "over and vanishes at the next save\n"},
    {"NodeWithALongId",
     Object("ADXCTRIGGER", "ABCDEFGHIJKLMNO") + Object("ADXMACRO", "M", "<NODE commandID='ABCDEFGHIJKLMNO' />"),
     "warning long-id trigger \"ABCDEFGHIJKLMNO\" (ABCDEFGHIJKLMNO): its id has 15 characters: it is hashed whole but "
     "cannot be found by its text, so no macro and no header can name it; use 14 at most\n"
     "error unresolved-link macro \"M\" (M): commandID \"ABCDEFGHIJKLMNO\" of node 1: the trigger \"ABCDEFGHIJKLMNO\" "
     "(ABCDEFGHIJKLMNO) has it, but an id of 15 characters cannot be found by its text; the node is passed over and "
     "vanishes at the next save\n"},
    {"SeriesThatTheLoaderRemoved",
     ValueText("RPM", "X") +
         Object("ADXMONITOR", "C", "<ADXMONSERIES itemidhash='0xCD0CD1DB' /><ADXMONSERIES itemidhash='0x1' />"),
     "error unresolved-link monitor \"C\" (C): itemidhash 0x00000001 of series 2 names no object of this definition; "
     "the series is removed\n"},
    {"EmptyRow", Object("ADXLISTVIEW", "L", "<entrycount>1</entrycount><ADXLVENTRY entrytype='0' itemidhash='0x5' />"),
     "error unresolved-link list view \"L\" (L): itemidhash of row 1 0x00000005 names no object of this definition; "
     "the row shows nothing\n"},
    {"EmptyGauge",
     Object("ADXDASHBOARD", "D",
            "<ADXDGENTRY gaugetype='0' itemidhash='0x6' left='0' top='0' right='50' bottom='50' />"),
     "error unresolved-link dashboard \"D\" (D): itemidhash of gauge 1 0x00000006 names no object of this definition; "
     "the gauge shows nothing, and an unresolved link vanishes at the next save\n"},
    {"DuplicateId", ValueText("RPM", "X") + ValueText("RPM", "X*2"),
     "error duplicate-id value \"RPM title\" (RPM): shares its id and hash 0xCD0CD1DB with the value \"RPM title\" "
     "(RPM), which every link finds instead\n"},
    {"LongIdOfAnItem", ValueText("ABCDEFGHIJKLMNO", "X"),
     "note long-id value \"ABCDEFGHIJKLMNO title\" (ABCDEFGHIJKLMNO): its id has 15 characters: links by hash work, a "
     "search by its text does not\n"},
    {"IdThatJustFits", ValueText("ABCDEFGHIJKLMN", "X"), ""},
    {"CutId", ValueText("ABCDEFGHIJKLMNOPQ", "X"),
     "note long-id value \"ABCDEFGHIJKLMNOPQ title\" (ABCDEFGHIJKLMNO): its id has 15 characters: links by hash work, "
     "a search by its text does not\n"
     "warning cut-id value \"ABCDEFGHIJKLMNOPQ title\" (ABCDEFGHIJKLMNO): the file gives the id \"ABCDEFGHIJKLMNOPQ\"; "
     "only the first 15 characters count\n"},
    {"OpenParenthesis", ValueText("RPM", "(X*2"),
     "error equation value \"RPM title\" (RPM): equation \"(X*2\" does not parse: its parentheses are not balanced; it "
     "always reads 0\n"},
    {"UnknownCharacter", ValueText("RPM", "X$"),
     "error equation value \"RPM title\" (RPM): equation \"X$\" does not parse: it has a character where a number, a "
     "letter or an operator must stand; it always reads 0\n"},
    {"DoubleOperator", ValueText("RPM", "X**3"),
     "error equation value \"RPM title\" (RPM): equation \"X**3\" an operator is short of operands\n"},
    {"LetterUsedTwice", ValueText("RPM", "X*X"),
     "error letter-twice value \"RPM title\" (RPM): equation \"X*X\" uses the letter X more than once, so each use of "
     "it reads 0\n"},
    {"FusedLetters", ValueText("RPM", "2X"),
     "warning fused-letters value \"RPM title\" (RPM): equation \"2X\" has \"2X\": a letter's number is joined to its "
     "neighbours as text\n"},
    {"LinkCycle",
     Object("ADXVALUE", "A", "<MATH equation='Y'><VAR varID='Y' type='link' linkIDHash='0x86F35EDB' /></MATH>") +
         Object("ADXVALUE", "B", "<MATH equation='Y'><VAR varID='Y' type='link' linkIDHash='0x86F344BB' /></MATH>"),
     "error cycle value \"A\" (A): refers to itself: A -> B -> A; it is cut when computed\n"},
    {"MacroThatRunsItself", "<ADXMACRO id='M' title='Loop'><NODE commandID='M' /></ADXMACRO>",
     "error cycle macro \"Loop\" (M): refers to itself: Loop -> Loop; it fails when it is run\n"},
    // A packet of 20 bytes in the 21 that follow the reply's header.
    {"FieldOutsideEveryReply", ValueText("RPM", "X", "<packetoffset>0x14</packetoffset><sizeinbits>16</sizeinbits>"),
     "error outside-packet value \"RPM title\" (RPM): packetoffset 0x14 and 2 bytes fit in the reply of no command\n"},
    {"FieldBeyondEveryPacket", ValueText("RPM", "X", "<packetoffset>0x13</packetoffset><sizeinbits>16</sizeinbits>"),
     "warning beyond-packet value \"RPM title\" (RPM): packetoffset 0x13 and 2 bytes reach beyond the packetsize of "
     "every command; the replies are read all the same\n"},
    {"FieldAtTheEndOfThePacket", ValueText("RPM", "X", "<packetoffset>0x12</packetoffset><sizeinbits>16</sizeinbits>"),
     ""},
    {"FieldOutsideItsReply",
     ValueText("RPM", "X", "<parentcmdidhash>0xA6607299</parentcmdidhash><packetoffset>0x15</packetoffset>"),
     "error outside-packet value \"RPM title\" (RPM): packetoffset 0x15 and 1 byte reach beyond the 21 bytes that the "
     "send command \"Poll\" (POLL) leaves to read\n"},
    {"FieldBeyondItsPacket",
     ValueText("RPM", "X", "<parentcmdidhash>0xA6607299</parentcmdidhash><packetoffset>0x14</packetoffset>"),
     "warning beyond-packet value \"RPM title\" (RPM): packetoffset 0x14 and 1 byte reach beyond the packetsize of 20 "
     "of the send command \"Poll\" (POLL); its reply is read all the same\n"},
    {"FieldTooWide", ValueText("RPM", "X", "<sizeinbits>40</sizeinbits>"),
     "error field-size value \"RPM title\" (RPM): sizeinbits 40 is more than the 32 that a field may have\n"},
    {"FieldOfOddWidth", ValueText("RPM", "X", "<sizeinbits>12</sizeinbits>"),
     "warning field-size value \"RPM title\" (RPM): sizeinbits 12 is no multiple of 8: 1 byte is read\n"},
    {"SignedFieldOfThreeBytes", ValueText("RPM", "X", "<flags>3</flags><sizeinbits>24</sizeinbits>"),
     "error field-size value \"RPM title\" (RPM): a signed field of 24 bits always reads 0\n"},
    {"FieldOfThreeBytes", ValueText("RPM", "X", "<sizeinbits>24</sizeinbits>"),
     "warning field-size value \"RPM title\" (RPM): a field of 3 bytes is never swapped: its first byte counts "
     "least\n"},
    {"FieldOfThreeBytesLowFirst", ValueText("RPM", "X", "<flags>2</flags><sizeinbits>24</sizeinbits>"), ""},
    {"FieldOfTwoBytes", ValueText("RPM", "X", "<sizeinbits>16</sizeinbits>"), ""},
    {"TableRowsOfADroppedType",
     Object("ADXLOOKUPTABLE", "T",
            "<outputtype>1</outputtype><tableentry input='1' output='2' /><tableentry input='2' output='3' />"),
     "error dropped-rows table \"T\" (T): 2 of its 2 rows are dropped on reading: outputtype 1 keeps none; use 3 or 5\n"
     "warning empty-table table \"T\" (T): has no rows: a value shown through it shows 0 or nothing\n"},
    {"ListRowsBeyondTheirCount",
     Object("ADXLISTVIEW", "L",
            "<entrycount>1</entrycount><ADXLVENTRY entrytype='1' title='a' /><ADXLVENTRY entrytype='1' title='b' />"),
     "error dropped-rows list view \"L\" (L): 1 of its 2 rows are dropped on reading: entrycount is 1\n"},
    {"ListRowBeforeTheCount",
     Object("ADXLISTVIEW", "L", "<ADXLVENTRY entrytype='1' title='a' /><entrycount>0</entrycount>"),
     "error row-order list view \"L\" (L): 1 row stands before its entrycount and dropped\n"},
    {"TextsThatASaveDoesNotEscape", ValueText("RPM", "X", "<units>a &amp; b</units>") + ValueText("LESS", "X&lt;5"),
     "error lost-on-save value \"RPM title\" (RPM): units \"a & b\" holds a &, which is saved unescaped: the saved "
     "file cannot be read back as it was\n"
     "error lost-on-save value \"LESS title\" (LESS): equation \"X<5\" holds a <, which is saved unescaped: the saved "
     "file cannot be read back as it was\n"},
    {"EquationThatASaveKeeps", ValueText("RPM", kExact), ""},
    {"EquationThatASaveCuts", ValueText("RPM", kExact + " "),
     "error lost-on-save value \"RPM title\" (RPM): its equation of 100 characters is cut to 99 on save\n"},
    {"PatternShorterThanItsSize", Object("ADXCLISTENCHATTER", "C", "<bytestring size='10'>0x01 0x02 </bytestring>"),
     "error byte-count listen for chatter \"C\" (C): bytestring holds 2 bytes but its size \"10\", read as "
     "hexadecimal, makes it 16: the rest is zeros\n"
     "warning lost-on-save listen for chatter \"C\" (C): a save writes the size 16 in decimal, which reads back as "
     "22\n"},
    // 63 bytes back and 5 out are 83.0 ms at 8192 baud.
    {"TimeoutThatTheLineCannotMeet", SendOf(5, 63, 83, 20),
     "error timeout send command \"S\" (S): replytimeout is 83 ms, but 5 bytes out and 63 back take 83.0 ms at 8192 "
     "baud\n"},
    {"TimeoutThatTheLineCanMeet", SendOf(5, 63, 84, 20), ""},
    // 0 is no limit.
    {"ReplyWithoutALimit", SendOf(1, 3, 0, 3),
     "warning timeout send command \"S\" (S): replytimeout is 0, which is no limit: on a silent line it waits until "
     "the scan is stopped\n"},
    {"NothingToWaitFor", SendOf(1, 0, 0, 0, "flags='0x0'"), ""},
    {"ReplyOfNoBytesWithoutALimit", SendOf(1, 0, 0, 0),
     "warning no-packet send command \"S\" (S): packetsize is 0: pages that read the last packet see none of it\n"},
    {"ChatterWithoutALimit",
     Object("ADXCLISTENCHATTER", "C", "<listentimeout>0</listentimeout><bytestring size='2'>0x01 0x02 </bytestring>"),
     "warning timeout listen for chatter \"C\" (C): listentimeout is 0, which is no limit: on a silent line it waits "
     "until the scan is stopped\n"},
    {"PacketBeyondItsReply", SendOf(1, 10, 200, 8, "flags='0x1'", "<packetoffset>3</packetoffset>"),
     "error packet-place send command \"S\" (S): packetoffset 3 and packetsize 8 reach beyond the reply of 10 bytes\n"},
    {"BitmaskThatIsNeverSet", Object("ADXBITMASK", "B", "<operand>0x01</operand><result>0x02</result>"),
     "error mask bitmask \"B\" (B): result 0x00000002 has bits outside operand 0x00000001 and field: it is never "
     "set\n"},
    {"NameThatMeansNothing", ValueText("RPM", "X", "<packetofset>0x05</packetofset>"),
     "note unknown-name value \"RPM title\" (RPM): <packetofset> means nothing here and is ignored\n"},
    {"TextThatIsCut", ValueText("RPM", "X", "<desc>" + std::string(1500, 'd') + "</desc>"),
     "warning cut-text value \"RPM title\" (RPM): the text of <desc> is too long and is cut on reading\n"},
    {"DelayOfWeeks", Object("ADXCLISTENSILENCE", "D", "<totaltimeout>4294967295</totaltimeout>"),
     "warning long-wait listen for silence \"D\" (D): the delay totaltimeout is 4294967295 ms: it may wait for 49.7 "
     "days\n"},
    {"WaitForHours",
     Object("ADXCLISTENCHATTER", "C", "<listentimeout>7200000</listentimeout><bytestring size='1'>0x01 </bytestring>"),
     "warning long-wait listen for chatter \"C\" (C): listentimeout is 7200000 ms: it may wait for 2.0 hours\n"},
    {"PacketOfGigabytes", Object("ADXCLISTEN160BAUD", "L", "<packetsize>4294967295</packetsize>"),
     "warning huge-size 160-baud listen \"L\" (L): packetsize is 4294967295 bytes, more than any engine sends\n"},
    {"RepeatCountsThatMultiply",
     "<ADXMACRO id='IN' title='IN' repeatcount='2000'><NODE commandID='POLL' repeatcount='1000' "
     "/></ADXMACRO><ADXMACRO id='OUT' title='OUT'><NODE commandID='IN' repeatcount='9' /></ADXMACRO>",
     "warning many-runs macro \"IN\" (IN): runs 2e+06 commands before it ends: its repeat counts multiply\n"},
    {"GridThatNobodySees",
     Object("ADXHISTOGRAM", "H",
            "<rows>4096</rows><cols>100000</cols><xmin>0</xmin><xmax>1</xmax><ymin>0</ymin><ymax>1</ymax>"),
     "warning no-axis histogram \"H\" (H): has not all of x, y and z: it records nothing\n"
     "warning grid histogram \"H\" (H): its grid of 4096 rows and 4096 columns has 16777216 cells: each takes memory, "
     "and nobody sees them all\n"},
    {"BaseFlagsOfACommand", "<ADXCTRIGGER id='T' title='T' baseflags='0x1' />",
     "warning baseflags trigger \"T\" (T): the file gives it baseflags, which are not read on a command and are "
     "lost\n"},
};

TEST(DefinitionCheckerTest, SaysJustWhatAnAuthorMustKnow) {
    for (const FileCase& one : kFileCases)
        EXPECT_EQ(Lines(CheckText(DefinitionWith(one.objects))), one.lines) << one.name;
}

TEST(DefinitionCheckerTest, NamesHeaderCommandsThatAreMissing) {
    const auto findings =
        CheckText("<ADXFORMAT version=\"0.50\" />\n<ADXHEADER><connectcmd>GONE</connectcmd></ADXHEADER>");
    EXPECT_EQ(Lines(findings),
              "error unresolved-link : connectcmd \"GONE\": no object has that id; it is not run\n"
              "warning no-monitor : there is no monitor command: a scan ends right after connecting\n");
    EXPECT_EQ(findings[0].line, 2U);
}

TEST(DefinitionCheckerTest, WarnsOfCommandsThatALogHasNoRoomFor) {
    std::string more;
    for (int i = 1; i < 256; ++i)
        more += Object("ADXCLISTEN160BAUD", "L" + std::to_string(i), "<packetsize>9</packetsize>");
    EXPECT_EQ(Lines(OfKind(CheckText(DefinitionWith(more)), "command-count")), "");
    EXPECT_EQ(
        Lines(OfKind(CheckText(DefinitionWith(more + SendOf(1, 9, 200, 9))), "command-count")),
        "warning command-count : 257 commands bring replies, and a log has room for 256: samples of the others are "
        "not recorded\n");
}

TEST(DefinitionCheckerTest, NotesAWrongObjectCount) {
    EXPECT_EQ(Lines(OfKind(CheckText("<ADXFORMAT version=\"0.50\" /><ADXHEADER><objectcount>2</objectcount>"
                                     "<commandcount>1</commandcount></ADXHEADER>"),
                           "object-count")),
              "note object-count : objectcount says 3, the file holds 0 objects\n");
}

TEST(DefinitionCheckerTest, TellsTheLineOfWhatItFinds) {
    const std::string object = "\n\n<ADXVALUE id='A'>\n<unit />\n<MATH equation='X' />";
    const auto findings = CheckText(DefinitionWith(object + "</ADXVALUE>"));
    ASSERT_EQ(Lines(findings), "note unknown-name value (A): <unit> means nothing here and is ignored\n");
    EXPECT_EQ(findings[0].line, 8U);
    // What the end tag of another kind delivers was read all the same.
    const auto other = CheckText(DefinitionWith(object + "</ADXBITMASK>"));
    EXPECT_EQ(Lines(other), Lines(findings));
    EXPECT_EQ(other[0].line, 8U);
    EXPECT_EQ(CheckText(DefinitionWith("\n<ODD />"))[0].line, 6U);
}

TEST(DefinitionCheckerTest, TellsOfNamesOutsideOfHeaderAndObjects) {
    EXPECT_EQ(Lines(CheckText("<what />" + DefinitionWith(ValueText("RPM", "X") + "<units>V</units>"))),
              "note unknown-name : <what> means nothing here and is ignored\n"
              "note unknown-name : <units> means nothing here and is ignored\n");
}

// What a save would lose of a definition made in memory.
std::string LostOf(const ADXDefinition& definition) {
    std::string text;
    for (const Finding& finding : CheckDefinition(definition, nullptr)) {
        EXPECT_EQ(finding.lostonsave, finding.kind == "lost-on-save") << finding.kind;
        if (finding.lostonsave) text += finding.text + '\n';
    }
    return text;
}

TEST(DefinitionCheckerTest, ForetellsTableRowsThatASaveLoses) {
    ADXDefinition definition;
    auto& table = *test::Add<ADXLookupTable>(definition, "T");
    table.AddEntry(1.0F, 2.0F);
    table.SetOutputType(ADXLookupTable::kInteger);
    EXPECT_EQ(LostOf(definition), "its row will be dropped on reading: outputtype 1 keeps none\n");
}

TEST(DefinitionCheckerTest, NamesIdsThatASaveDoesNotEscape) {
    ADXDefinition definition;
    auto& silence = *test::Add<ADXCListenSilence>(definition, "A&B");
    ADXMacroNode node;
    node.command = &silence;
    test::Add<ADXMacro>(definition, "M")->AddNode(&node);
    definition.connectcmd = &silence;
    const std::string rest =
        " \"A&B\" holds a &, which is saved unescaped: the saved file cannot be read back as it was\n";
    EXPECT_EQ(LostOf(definition), "connectcmd" + rest + "commandID of node 1" + rest);
}

TEST(DefinitionCheckerTest, NamesBytesThatDoNotComeBackFromASave) {
    ADXDefinition definition;
    auto& send = *test::Add<ADXCSendCommand>(definition, "S");
    const std::vector<std::uint8_t> bytes(205, 1);
    send.SetBytes(bytes.data(), 204);
    EXPECT_EQ(LostOf(definition), "");
    send.SetBytes(bytes.data(), 205);
    EXPECT_EQ(LostOf(definition), "only 204 of its 205 bytes are read back after a save\n");
}

TEST(DefinitionCheckerTest, NamesNumbersFinerThanSixDecimals) {
    ADXDefinition definition;
    test::Add<ADXValue>(definition, "V")->rangelow = 0.0000001F;
    EXPECT_EQ(LostOf(definition), "range low 1e-07 is saved as 0.000000\n");
}

TEST(DefinitionCheckerTest, NamesChatterSizesThatReadBackWrong) {
    ADXDefinition definition;
    const std::uint8_t bytes[10] = {};
    test::Add<ADXCListenChatter>(definition, "C")->SetBytes(bytes, 10);
    EXPECT_EQ(LostOf(definition), "a save writes the size 10 in decimal, which reads back as 16\n");
}

TEST(DefinitionCheckerTest, NamesHeaderTextsThatShowAsEmpty) {
    ADXDefinition definition;
    for (const std::uint32_t length : {59U, 60U}) {
        definition.SetAuthor(std::string(length, 'a').c_str(), length);
        EXPECT_EQ(OfKind(CheckDefinition(definition, nullptr), "long-header").size(), length - 59);
    }
}

}  // namespace
}  // namespace corvex
