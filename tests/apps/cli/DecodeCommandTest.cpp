#include <gtest/gtest.h>

#include <filesystem>

#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/AdxText.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

constexpr std::uint32_t kOtherHash = 0x86F344BB;  // A

std::string Bit(const std::string& id, const std::string& more = "") {
    return "<ADXBITMASK id=\"" + id + "\" title=\"" + id + " bit\"><packetoffset>0x01</packetoffset>" + more +
           "<operand>0x00000001</operand><bitop>AND</bitop><result>0x00000001</result></ADXBITMASK>\n";
}

std::string ValueOf(const std::string& command, const std::string& id) {
    return ValueText(id, "X", test::AdxParent(command));
}

// RPM + 100, shown for a command's records.
std::string LinkOf(const std::string& command) {
    return "<ADXVALUE id=\"L\" title=\"L\">" + test::AdxParent(command) +
           "<packetoffset>0x00</packetoffset><MATH equation=\"A+100\">"
           "<VAR varID=\"A\" type=\"link\" linkIDHash=\"0xCD0CD1DB\" /></MATH></ADXVALUE>\n";
}

// POLL, and A with a reply that is all packet.
std::string TwoCommandsWith(const std::string& objects) {
    return DefinitionWith(
        "<ADXCSENDCOMMAND id=\"A\" title=\"Other\" flags=\"0x1\"><bytestring size=\"0x1\">0x01 </bytestring>"
        "<replysize>24</replysize><packetoffset>0</packetoffset><packetsize>24</packetsize></ADXCSENDCOMMAND>\n" +
        objects);
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

// `more`: arguments; `err`: parts of what is said besides, none when nothing is.
void ExpectDecodes(const char* behaviour, const std::string& definition, const LogBytes& log, const Words& more,
                   const std::string& out, const Words& err = {}) {
    SCOPED_TRACE(behaviour);
    const TempFile adx(definition);
    const LogTempFile xdl(log);
    Words args{"decode", "-d", adx.Path(), xdl.Path()};
    args.insert(args.end(), more.begin(), more.end());
    const std::string before = ReadFile(xdl.Path());
    const ToolResult result = RunInside(args);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, out);
    EXPECT_EQ(result.err.empty(), err.empty()) << result.err;
    for (const std::string& part : err)
        EXPECT_TRUE(Has(result.err, part));
    EXPECT_EQ(ReadFile(xdl.Path()), before);
}

const std::string kRpm = DefinitionWith(ValueText("RPM", "X")), kRpmTitle = "Time (s),RPM title\n";

TEST(DecodeCommandTest, WritesARowForEachRecord) {
    const LogBytes onePoll = Polls({{5, 1}}), twoPolls = Polls({{10, 1}, {3, 2}});
    ExpectDecodes(
        "values and bits",
        DefinitionWith(ValueText("RPM", "X*25", "<units>rpm</units>") + Bit("FAN") + ValueText("SHARE", "X/256")),
        twoPolls, {}, "Time (s),RPM title (rpm),FAN bit,SHARE title\n0.000,250,1,0.0390625\n0.083,75,0,0.01171875\n");
    ExpectDecodes("texts as the program shows them",
                  DefinitionWith(ValueText("RPM", "X*25", "<digcount>1</digcount>") +
                                 Bit("FAN", "<truestring>on, fast</truestring><falsestring>off</falsestring>")),
                  twoPolls, {"--text"}, "Time (s),RPM title,FAN bit\n0.000,250.0,\"on, fast\"\n0.083,75.0,off\n");
    ExpectDecodes("titles and units in quotes",
                  DefinitionWith("<ADXVALUE id=\"T\" title=\"a, &quot;b&quot;\"><units>\xC2\xB0 C</units></ADXVALUE>\n"
                                 "<ADXVALUE id=\"NONAME\" title=\"\"><units>\xB5s</units></ADXVALUE>\n"),
                  Polls({}), {}, "Time (s),\"a, \"\"b\"\" (\xC2\xB0 C)\",NONAME (\xC2\xB5s)\n");
    ExpectDecodes("times alone without items", DefinitionWith(""), twoPolls, {}, "Time (s)\n0.000\n0.083\n");
    ExpectDecodes("the header of an empty log", kRpm, BeginLog({kPollHash}).PutWord32(8, 1), {}, kRpmTitle);
    ExpectDecodes(
        "items that are chosen by id",
        DefinitionWith(ValueText("RPM", "X") + Bit("FAN") + ValueText("FAN2", "X+1") + ValueText("TPS", "X+2")),
        onePoll, {"--items", "fan*"}, "Time (s),FAN bit,FAN2 title\n0.000,1,6\n");
}

TEST(DecodeCommandTest, ItemsReadWhatTheRecordsBeforeLeft) {
    const std::string shared = TwoCommandsWith(ValueOf("POLL", "P") + ValueOf("A", "Q"));
    const std::string linked = StreamDefinition(LinkOf("STREAM") + ValueOf("POLL", "RPM"));
    const std::string linkedToStream = StreamDefinition(LinkOf("POLL") + ValueOf("STREAM", "RPM"));
    LogBytes stream = BeginLog({kPollHash, kStreamHash}), streamFirst = stream;
    stream.Record(0, 0, PollReply({5})).Record(1, 10, Bytes(24, 50)).Record(0, 20, PollReply({6})).MarkEnd();
    streamFirst.Record(1, 0, Bytes(24, 50)).Record(0, 1000, PollReply({6})).MarkEnd();
    LogBytes mixed = BeginLog({kPollHash, kOtherHash}), halves = mixed;
    mixed.Record(1, 0, Bytes(24, 7)).Record(0, 10, PollReply({9})).Record(1, 20, Bytes(24, 8)).MarkEnd();
    halves.Record(1, 0, Bytes(24, 7));
    for (std::uint32_t i = 1; i < 6; ++i)
        halves.Record(0, i * 500, PollReply({static_cast<std::uint8_t>(i)}));
    halves.MarkEnd();
    ExpectDecodes("items of another command keep their raw word",
                  TwoCommandsWith(ValueOf("POLL", "P") + ValueOf("A", "Q") + ValueText("ANY", "X")), mixed, {},
                  "Time (s),P title,Q title,ANY title\n0.000,0,7,7\n0.010,9,7,9\n0.020,9,8,8\n");
    ExpectDecodes("links", linked, stream, {}, "Time (s),L,RPM title\n0.000,105,5\n0.010,105,5\n0.020,106,6\n");
    ExpectDecodes("links to what is not shown", linked, stream, {"--items", "L"},
                  "Time (s),L\n0.000,105\n0.010,105\n0.020,106\n");
    // The raw words of a 160-baud packet are taken by whoever looks at it, so what is left out of a table must be
    // looked at all the same.
    ExpectDecodes("a stream", linkedToStream, streamFirst, {}, "Time (s),L,RPM title\n0.000,100,50\n1.000,150,50\n");
    ExpectDecodes("a stream that is not shown", linkedToStream, streamFirst, {"--items", "L"},
                  "Time (s),L\n0.000,100\n1.000,150\n");
    ExpectDecodes("a stream before the first second asked for", linkedToStream, streamFirst, {"--from", "1"},
                  "Time (s),L,RPM title\n1.000,150,50\n");
    ExpectDecodes("within the seconds asked for, from the start", shared, halves, {"--from", "1", "--to", "1.5"},
                  "Time (s),P title,Q title\n1.000,2,7\n1.500,3,7\n");
}

TEST(DecodeCommandTest, TellsWhatIsInNoRow) {
    LogBytes foreign = BeginLog({kPollHash, 0x1234, kStreamHash});
    foreign.Record(1, 0, Bytes(24, 1)).Record(0, 5, PollReply({1})).Record(1, 10, Bytes(24, 1));
    foreign.Record(2, 20, Bytes(24, 1)).MarkEnd();
    LogBytes unknown = BeginLog({kPollHash}), astray = unknown, zeros = unknown;
    unknown.Record(0, 0, PollReply({1})).Record(9, 5, Bytes(3, 1)).Record(0, 10, PollReply({2})).MarkEnd();
    astray.Record(0, 0, PollReply({1})).RecordTo(0, 9, 5, Bytes(3, 1)).Record(0, 10, PollReply({2})).MarkEnd();
    zeros.Record(0, 0, PollReply({1})).Raw(Bytes(72, 0)).Record(0, 249, PollReply({2})).PutWord32(36, 4).MarkEnd();
    ExpectDecodes("commands that the definition does not have", kRpm, foreign, {}, kRpmTitle + "0.005,1\n",
                  {"2 records of command 0x00001234, which the definition does not have\n",
                   "1 record of command 0xFE43497D, which"});
    ExpectDecodes("unknown items", kRpm, unknown, {}, kRpmTitle + "0.000,1\n0.010,2\n",
                  {"1 record of unknown items passed over"});
    ExpectDecodes("an end ahead of the file's", kRpm, astray, {}, kRpmTitle + "0.000,1\n",
                  {"warning: reading ended at byte 128: a record of an unknown item leads nowhere"});
    ExpectDecodes(
        "damage", kRpm, zeros, {}, kRpmTitle + "0.000,1\n",
        {": damaged at byte 128: 108 bytes from there on not read", ": its header counts 4 records, 3 are missing\n"});
}

TEST(DecodeCommandTest, WritesTimesAndDigitsAsAsked) {
    const LogBytes late =
        BeginLog({kPollHash}).Record(0, 43'503'211, PollReply({7})).Record(0, 43'503'300, PollReply({8}));
    const std::string third = DefinitionWith(ValueText("A", "X/3", "<digcount>1</digcount>") +
                                             ValueText("B", "X/3", "<outputtype>1</outputtype>"));
    ExpectDecodes("since the first row", kRpm, late, {"--time", "zero"}, kRpmTitle + "0.000,7\n0.089,8\n");
    ExpectDecodes("since the first row asked for", kRpm, late, {"--time", "zero", "--from", "43503.25"},
                  kRpmTitle + "0.000,8\n");
    ExpectDecodes("into the next day", kRpm, late, {"--time", "absolute"},
                  "Time,RPM title\n2026-07-02T00:40:00.000,7\n2026-07-02T00:40:00.089,8\n");
    ExpectDecodes("as many digits as are shown", third, late, {"--round"},
                  "Time (s),A title,B title\n43503.211,2.3,2\n43503.300,2.7,2\n");
}

TEST(DecodeCommandTest, WritesSeveralLogsEachFromItsOwnBegin) {
    const TempFile adx(TwoCommandsWith(ValueOf("POLL", "P") + ValueOf("A", "Q")));
    LogBytes other = BeginLog({kOtherHash});
    const LogTempFile first(Polls({{5}})), second(other.Record(0, 0, Bytes(24, 7)));
    const ToolResult result = RunInside({"decode", "-d", adx.Path(), first.Path(), second.Path()});
    EXPECT_EQ(result.code, 0);
    // The second knows nothing of what the first has left.
    EXPECT_EQ(result.out,
              "Log,Time (s),P title,Q title\n" + first.Path() + ",0.000,5,0\n" + second.Path() + ",0.000,0,7\n");
}

TEST(DecodeCommandTest, FailsWithASentenceWhenNothingCanBeShown) {
    const LogTempFile polls(Polls({{1}})), foreign(BeginLog({0x1234}).Record(0, 0, Bytes(24, 1)));
    const LogTempFile undated(BeginLog({kPollHash}).PutWord32(12, 0xFFFF0000));
    const TempFile adx(kRpm), csv("precious", ".csv");
    const struct {
        const std::string& log;
        Words more;
        const char* err;
    } rows[] = {{foreign.Path(), {}, ": none of its records is of a command of "},
                {polls.Path(), {"--from", "9"}, ": no record lies in the seconds asked for; "},
                {undated.Path(), {"--time", "absolute"}, ": its header has no date"},
                {polls.Path(), {"--items", "a,b", "--items", "c"}, " matches \"a,b,c\"; corvex-cli list "}};
    for (const auto& row : rows) {
        Words args{"decode", "-d", adx.Path(), row.log, "-o", csv.Path()};
        args.insert(args.end(), row.more.begin(), row.more.end());
        const ToolResult result = RunInside(args);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(LinesOf(result.err).size(), 1U) << result.err;
        EXPECT_TRUE(Has(result.err, row.err));
        EXPECT_EQ(ReadFile(csv.Path()), "precious");
    }
    const ToolResult played = RunInside({"play", "--speed", "0", "-d", adx.Path(), foreign.Path()});
    EXPECT_EQ(played.code, 1);
    EXPECT_TRUE(Has(played.err, rows[0].err));
}

TEST(DecodeCommandTest, NamesItemsThatLieBeyondThePacket) {
    // 21 bytes of the reply can be read.
    ExpectDecodes("one of three",
                  DefinitionWith(ValueText("RPM", "X") + ValueText("FAR", "X", "<packetoffset>0x15</packetoffset>") +
                                 ValueText("NONE", "7", "<packetoffset>0x99</packetoffset>")),
                  Polls({{1}, {2}}), {}, "Time (s),RPM title,FAR title,NONE title\n0.000,1,0,7\n0.083,2,0,7\n",
                  {": 1 item lies beyond the packet, so each shows what was read before, at first 0: FAR title; "});
}

class DecodeToFileTest : public ::testing::Test {
protected:
    ToolResult Decode(const std::string& log, Words more) const {
        more.insert(more.begin(), {"decode", "-d", adx.Path(), log});
        return RunInside(more);
    }

    const TempFile adx{DefinitionWith(ValueText("RPM", "X"))};
    const LogTempFile xdl{Polls({{1}})};
    const TempFile csv{"precious", ".csv"};
};

TEST_F(DecodeToFileTest, LosesNothingWhenItFails) {
    const ToolResult none = Decode(xdl.Path(), {"-o", csv.Path(), "--items", "none"});
    EXPECT_EQ(none.code, 1);
    EXPECT_NE(none.err.find("no value or bitmask"), std::string::npos) << none.err;
    EXPECT_EQ(Decode(adx.Path(), {"-o", csv.Path()}).code, 1);
    EXPECT_EQ(ReadFile(csv.Path()), "precious");
    const ToolResult folder = Decode(xdl.Path(), {"-o", "no/such/folder/x.csv"});
    EXPECT_EQ(folder.code, 1);
    EXPECT_EQ(folder.err, "corvex-cli: no/such/folder/x.csv cannot be written: its folder is not there\n");
}

TEST_F(DecodeToFileTest, WritesOverALogOrWhatItReadsOnlyWhenForced) {
    const std::string log = ReadFile(xdl.Path()), link = xdl.Path() + ".csv";
    std::filesystem::create_hard_link(xdl.Path(), link);
    const LogTempFile other(Polls({{2}}));
    for (const std::string& output : {xdl.Path(), link, adx.Path(), other.Path()}) {
        const ToolResult result = Decode(xdl.Path(), {"-o", output});
        EXPECT_EQ(result.code, 1) << output;
        const char* const why = output == other.Path() ? "is a log" : "is what is read";
        EXPECT_EQ(result.err, "corvex-cli: " + output + ": " + why + "; --force replaces it\n");
    }
    EXPECT_EQ(ReadFile(link), log);
    std::filesystem::remove(link);
    EXPECT_EQ(Decode(xdl.Path(), {"-o", other.Path(), "--force"}).code, 0);
    EXPECT_EQ(ReadFile(other.Path()).substr(0, 8), "Time (s)");
}

}  // namespace
}  // namespace corvex
