#include <gtest/gtest.h>

#include <filesystem>

#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

std::string Bit(const std::string& id, const std::string& more = "") {
    return "<ADXBITMASK id=\"" + id + "\" title=\"" + id + " bit\"><packetoffset>0x01</packetoffset>" + more +
           "<operand>0x00000001</operand><bitop>AND</bitop><result>0x00000001</result></ADXBITMASK>\n";
}

std::string Parent(const char* hash) {
    return std::string("<parentcmdidhash>") + hash + "</parentcmdidhash>";
}

const char* const kPollText = "0xA6607299";
const char* const kStreamText = "0xFE43497D";

// Decodes to standard output.
ToolResult Decode(const std::string& definition, const LogBytes& log, std::vector<std::string> more = {}) {
    const TempFile adx(definition);
    const LogTempFile xdl(log);
    more.insert(more.begin(), {"decode", "-d", adx.Path(), xdl.Path()});
    const std::string before = ReadFile(xdl.Path());
    const ToolResult result = RunInside(more);
    EXPECT_EQ(ReadFile(xdl.Path()), before);
    return result;
}

LogBytes Polls(const std::vector<Bytes>& packets) {
    LogBytes log = BeginLog({kPollHash});
    std::uint32_t time = 0;
    for (const Bytes& packet : packets) {
        log.Record(0, time, PollReply(packet));
        time += 83;
    }
    return log.MarkEnd();
}

TEST(DecodeCommandTest, WritesARowForEachRecord) {
    const std::string definition =
        DefinitionWith(ValueText("RPM", "X*25", "<units>rpm</units>") + Bit("FAN") + ValueText("SHARE", "X/256"));
    const ToolResult result = Decode(definition, Polls({{10, 1}, {3, 2}}));
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
              "Time (s),RPM title (rpm),FAN bit,SHARE title\n"
              "0.000,250,1,0.0390625\n"
              "0.083,75,0,0.01171875\n");
}

TEST(DecodeCommandTest, GivesTextsAsTheProgramShowsThem) {
    const std::string definition =
        DefinitionWith(ValueText("RPM", "X*25", "<digcount>1</digcount>") +
                       Bit("FAN", "<truestring>on, fast</truestring><falsestring>off</falsestring>"));
    EXPECT_EQ(Decode(definition, Polls({{10, 1}, {3, 2}}), {"--text"}).out,
              "Time (s),RPM title,FAN bit\n0.000,250.0,\"on, fast\"\n0.083,75.0,off\n");
}

TEST(DecodeCommandTest, QuotesTitlesAndUnits) {
    const std::string value =
        "<ADXVALUE id=\"T\" title=\"a, &quot;b&quot;\"><units>\xC2\xB0"
        "C</units><packetoffset>0x00</packetoffset><MATH equation=\"X\" /></ADXVALUE>\n"
        "<ADXVALUE id=\"NONAME\" title=\"\"><units>\xB5s</units><packetoffset>0x00</packetoffset>"
        "<MATH equation=\"X\" /></ADXVALUE>\n";
    EXPECT_EQ(Decode(DefinitionWith(value), Polls({})).out,
              "Time (s),\"a, \"\"b\"\" (\xC2\xB0"
              "C)\",NONAME (\xC2\xB5s)\n");
}

TEST(DecodeCommandTest, WritesTimesAloneForADefinitionWithoutItems) {
    EXPECT_EQ(Decode(DefinitionWith(""), Polls({{1}, {2}})).out, "Time (s)\n0.000\n0.083\n");
}

TEST(DecodeCommandTest, WritesTheHeaderOfAnEmptyLog) {
    const ToolResult result = Decode(DefinitionWith(ValueText("RPM", "X")), BeginLog({kPollHash}).PutWord32(8, 1));
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "Time (s),RPM title\n");
    EXPECT_EQ(result.err, "");
}

TEST(DecodeCommandTest, ChoosesItemsByTitleAndId) {
    const std::string definition =
        DefinitionWith(ValueText("RPM", "X") + Bit("FAN") + ValueText("FAN2", "X+1") + ValueText("TPS", "X+2"));
    const LogBytes log = Polls({{5, 1}});
    EXPECT_EQ(Decode(definition, log, {"--items", "fan*"}).out, "Time (s),FAN bit,FAN2 title\n0.000,1,6\n");
    EXPECT_EQ(Decode(definition, log, {"--items", "*s TITLE"}).out, "Time (s),TPS title\n0.000,7\n");
    const ToolResult none = Decode(definition, log, {"--items", "oil"});
    EXPECT_EQ(none.code, 1);
    EXPECT_EQ(none.out, "");
    EXPECT_NE(none.err.find("no value or bitmask"), std::string::npos) << none.err;
}

TEST(DecodeCommandTest, ItemsOfAnotherCommandKeepTheirRawWord) {
    const std::string other =
        "<ADXCSENDCOMMAND id=\"A\" title=\"Other\" flags=\"0x1\"><bytestring size=\"0x1\">0x01 </bytestring>"
        "<replysize>24</replysize><packetoffset>0</packetoffset><packetsize>24</packetsize></ADXCSENDCOMMAND>\n";
    const std::string definition = DefinitionWith(other + ValueText("P", "X", Parent(kPollText)) +
                                                  ValueText("Q", "X", Parent("0x86F344BB")) + ValueText("ANY", "X"));
    LogBytes log = BeginLog({kPollHash, 0x86F344BB});
    log.Record(1, 0, Bytes(24, 7)).Record(0, 10, PollReply({9})).Record(1, 20, Bytes(24, 8)).MarkEnd();
    EXPECT_EQ(Decode(definition, log).out,
              "Time (s),P title,Q title,ANY title\n0.000,0,7,7\n0.010,9,7,9\n0.020,9,8,8\n");
}

TEST(DecodeCommandTest, LinksReadWhatTheRecordsBeforeLeft) {
    const std::string linked = "<ADXVALUE id=\"L\" title=\"L\">" + Parent(kStreamText) +
                               "<packetoffset>0x00</packetoffset><MATH equation=\"A+100\">"
                               "<VAR varID=\"A\" type=\"link\" linkIDHash=\"0xCD0CD1DB\" /></MATH></ADXVALUE>\n";
    const std::string definition = StreamDefinition(linked + ValueText("RPM", "X", Parent(kPollText)));
    LogBytes log = BeginLog({kPollHash, kStreamHash});
    log.Record(0, 0, PollReply({5})).Record(1, 10, Bytes(24, 50)).Record(0, 20, PollReply({6})).MarkEnd();
    const std::string all = "Time (s),L,RPM title\n0.000,105,5\n0.010,105,5\n0.020,106,6\n";
    EXPECT_EQ(Decode(definition, log).out, all);
    EXPECT_EQ(Decode(definition, log, {"--items", "L"}).out, "Time (s),L\n0.000,105\n0.010,105\n0.020,106\n");
}

// The raw words of a 160-baud packet are taken by whoever looks at it, so what is left out of a table must be looked at
// all the same.
TEST(DecodeCommandTest, WhatIsShownDoesNotDependOnWhatIsLeftOut) {
    const std::string linked = "<ADXVALUE id=\"L\" title=\"L\">" + Parent(kPollText) +
                               "<packetoffset>0x00</packetoffset><MATH equation=\"A+100\">"
                               "<VAR varID=\"A\" type=\"link\" linkIDHash=\"0xCD0CD1DB\" /></MATH></ADXVALUE>\n";
    const std::string definition = StreamDefinition(linked + ValueText("RPM", "X", Parent(kStreamText)));
    LogBytes log = BeginLog({kPollHash, kStreamHash});
    log.Record(1, 0, Bytes(24, 50)).Record(0, 1000, PollReply({6})).MarkEnd();
    EXPECT_EQ(Decode(definition, log).out, "Time (s),L,RPM title\n0.000,100,50\n1.000,150,50\n");
    EXPECT_EQ(Decode(definition, log, {"--items", "L"}).out, "Time (s),L\n0.000,100\n1.000,150\n");
    EXPECT_EQ(Decode(definition, log, {"--from", "1"}).out, "Time (s),L,RPM title\n1.000,150,50\n");
}

TEST(DecodeCommandTest, KeepsToTheSecondsAskedForAndFollowsFromTheStart) {
    const std::string definition = DefinitionWith(
        "<ADXCSENDCOMMAND id=\"A\" title=\"Other\" flags=\"0x1\"><replysize>24</replysize>"
        "<packetsize>24</packetsize></ADXCSENDCOMMAND>\n" +
        ValueText("P", "X", Parent(kPollText)) + ValueText("Q", "X", Parent("0x86F344BB")));
    LogBytes log = BeginLog({kPollHash, 0x86F344BB});
    log.Record(1, 0, Bytes(24, 7));
    for (std::uint32_t i = 1; i < 6; ++i)
        log.Record(0, i * 500, PollReply({static_cast<std::uint8_t>(i)}));
    log.MarkEnd();
    EXPECT_EQ(Decode(definition, log, {"--from", "1", "--to", "1.5"}).out,
              "Time (s),P title,Q title\n1.000,2,7\n1.500,3,7\n");
    EXPECT_EQ(Decode(definition, log, {"--from", "2.5"}).out, "Time (s),P title,Q title\n2.500,5,7\n");
    EXPECT_EQ(Decode(definition, log, {"--from", "9"}).out, "Time (s),P title,Q title\n");
}

TEST(DecodeCommandTest, Takes160BaudPacketsFromTheirFirstByte) {
    const std::string definition = StreamDefinition(ValueText("RPM", "X", Parent(kStreamText)));
    LogBytes log = BeginLog({kStreamHash});
    Bytes packet(24, 0);
    packet[0] = 42;
    log.Record(0, 0, packet).MarkEnd();
    EXPECT_EQ(Decode(definition, log).out, "Time (s),RPM title\n0.000,42\n");
}

TEST(DecodeCommandTest, CountsCommandsThatTheDefinitionDoesNotHave) {
    LogBytes log = BeginLog({kPollHash, 0x1234, kStreamHash});
    log.Record(1, 0, Bytes(24, 1)).Record(0, 5, PollReply({1})).Record(1, 10, Bytes(24, 1)).Record(2, 20, Bytes(24, 1));
    log.MarkEnd();
    const ToolResult result = Decode(DefinitionWith(ValueText("RPM", "X")), log);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "Time (s),RPM title\n0.005,1\n");
    EXPECT_NE(result.err.find("2 records of command 0x00001234, which the definition does not have\n"),
              std::string::npos)
        << result.err;
    EXPECT_NE(result.err.find("1 record of command 0xFE43497D, which"), std::string::npos) << result.err;
}

TEST(DecodeCommandTest, PassesOverUnknownItems) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, PollReply({1})).Record(9, 5, Bytes(3, 1)).Record(0, 10, PollReply({2})).MarkEnd();
    const ToolResult result = Decode(DefinitionWith(ValueText("RPM", "X")), log);
    EXPECT_EQ(result.out, "Time (s),RPM title\n0.000,1\n0.010,2\n");
    EXPECT_NE(result.err.find("1 record of unknown items passed over"), std::string::npos) << result.err;
}

TEST(DecodeCommandTest, WarnsWhenReadingEndsEarly) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, PollReply({1})).RecordTo(0, 9, 5, Bytes(3, 1)).Record(0, 10, PollReply({2})).MarkEnd();
    const ToolResult result = Decode(DefinitionWith(ValueText("RPM", "X")), log);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "Time (s),RPM title\n0.000,1\n");
    EXPECT_NE(result.err.find("warning: reading ended at byte 128 with error 0x4"), std::string::npos) << result.err;
}

TEST(DecodeCommandTest, MakesNoRowsOfDamage) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, PollReply({1})).Raw(Bytes(72, 0)).Record(0, 249, PollReply({2})).PutWord32(36, 4).MarkEnd();
    const ToolResult result = Decode(DefinitionWith(ValueText("RPM", "X")), log);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "Time (s),RPM title\n0.000,1\n");
    EXPECT_NE(result.err.find(": damaged at byte 128: 108 bytes from there on not read"), std::string::npos);
    EXPECT_NE(result.err.find(": its header counts 4 records, 3 are missing\n"), std::string::npos) << result.err;
}

TEST(DecodeCommandTest, DecodesALogThatWasNeverEndedToItsLastWholeRecord) {
    LogBytes log = BeginLog({kPollHash});
    log.Record(0, 0, PollReply({1})).Record(0, 83, PollReply({2}));
    for (std::size_t cut = 1; cut <= 36; ++cut) {
        LogBytes shorter = log;
        shorter.bytes.resize(log.bytes.size() - cut);
        const ToolResult result = Decode(DefinitionWith(ValueText("RPM", "X")), shorter);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.out, "Time (s),RPM title\n0.000,1\n") << cut;
        EXPECT_EQ(result.err.empty(), cut == 36) << cut << result.err;
    }
}

TEST(DecodeCommandTest, NamesNumbersThatAreNone) {
    const std::string definition = DefinitionWith(
        ValueText("BIG", "9#9#9#9#9#X") + ValueText("SMALL", "0-(9#9#9#9#9#X)") + ValueText("NAN", "(0-X)#0.5"));
    const ToolResult result = Decode(definition, Polls({{200}}));
    EXPECT_EQ(result.out, "Time (s),BIG title,SMALL title,NAN title\n0.000,inf,-inf,nan\n");
}

TEST(DecodeCommandTest, WritesAFileInOneStep) {
    const TempFile adx(DefinitionWith(ValueText("RPM", "X")));
    const LogTempFile xdl(Polls({{1}}));
    const TempFile csv("precious", ".csv");
    EXPECT_EQ(RunInside({"decode", "-d", adx.Path(), xdl.Path(), "-o", csv.Path()}).out, "");
    EXPECT_EQ(ReadFile(csv.Path()), "Time (s),RPM title\n0.000,1\n");
}

TEST(DecodeCommandTest, LosesNothingWhenItFails) {
    const TempFile adx(DefinitionWith(ValueText("RPM", "X")));
    const LogTempFile xdl(Polls({{1}}));
    const TempFile csv("precious", ".csv");
    EXPECT_EQ(RunInside({"decode", "-d", adx.Path(), xdl.Path(), "-o", csv.Path(), "--items", "none"}).code, 1);
    EXPECT_EQ(RunInside({"decode", "-d", adx.Path(), adx.Path(), "-o", csv.Path()}).code, 1);
    EXPECT_EQ(ReadFile(csv.Path()), "precious");
    const ToolResult result = RunInside({"decode", "-d", adx.Path(), xdl.Path(), "-o", "no/such/folder/x.csv"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: no/such/folder/x.csv cannot be written\n");
}

TEST(DecodeCommandTest, WritesOverALogOrWhatItReadsOnlyWhenForced) {
    const TempFile adx(DefinitionWith(ValueText("RPM", "X")));
    const LogTempFile xdl(Polls({{1}}));
    const std::string log = ReadFile(xdl.Path());
    const std::string link = xdl.Path() + ".csv";
    std::filesystem::create_hard_link(xdl.Path(), link);
    const LogTempFile other(Polls({{2}}));
    for (const std::string& output : {xdl.Path(), link, adx.Path(), other.Path()}) {
        const ToolResult result = RunInside({"decode", "-d", adx.Path(), xdl.Path(), "-o", output});
        EXPECT_EQ(result.code, 1) << output;
        const char* const why = output == other.Path() ? "is a log" : "is what is read";
        EXPECT_EQ(result.err, "corvex-cli: " + output + ": " + why + "; --force replaces it\n");
    }
    EXPECT_EQ(ReadFile(link), log);
    std::filesystem::remove(link);
    EXPECT_EQ(RunInside({"decode", "-d", adx.Path(), xdl.Path(), "-o", other.Path(), "--force"}).code, 0);
    EXPECT_EQ(ReadFile(other.Path()).substr(0, 8), "Time (s)");
}

TEST(DecodeCommandTest, EndsWithOneOnWhatIsNoLog) {
    const TempFile adx(DefinitionWith(""));
    const ToolResult result = RunInside({"decode", "-d", adx.Path(), "no/such.xdl"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "corvex-cli: no/such.xdl: error 0xC (cannot be opened)\n");
    EXPECT_EQ(result.out, "");
}

}  // namespace
}  // namespace corvex
