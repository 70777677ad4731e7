#include "logging/LogWalk.h"
#include "tests/logging/FarFile.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

struct Walked {
    std::vector<Bytes> replies;
    std::vector<std::uint64_t> offsets;
    std::uint32_t result = 0, records = 0, unknown = 0;
    std::uint64_t left = 0;
    bool damaged = false;
};

Walked WalkAll(DataLogEngine& log) {
    Walked walked;
    LogWalk walk(log);
    while (walk.Next()) {
        const PacketView reply = walk.Reply();
        walked.replies.emplace_back(reply.Bytes(), reply.Bytes() + reply.Size());
        walked.offsets.push_back(walk.Offset());
    }
    EXPECT_FALSE(walk.Next());
    walked.result = walk.Result();
    walked.records = walk.Records();
    walked.unknown = walk.Unknown();
    walked.left = walk.Left();
    walked.damaged = walk.Damaged();
    return walked;
}

class LogWalkTest : public LogFixture {
protected:
    Walked Walk(const LogBytes& bytes) {
        EXPECT_EQ(0U, Open(bytes, kLogForLooking));
        return WalkAll(log_);
    }
};

// One good record, then one of item `item` that leads to `next`, then one more.
LogBytes Between(std::uint32_t next, std::uint32_t item) {
    return SmallLogHead()
        .Record(0, 0, DataOf(0))
        .RecordTo(next, item, 80, DataOf(1))
        .Record(0, 160, DataOf(2))
        .MarkEnd();
}

constexpr std::uint32_t kSecond = kSmallDataOffset + 15, kThird = kSmallDataOffset + 30;

TEST_F(LogWalkTest, EndsWhereTheLogIsNoMoreWhatItWas) {
    const LogBytes one = SmallLogHead().Record(0, 0, DataOf(0));
    const struct {
        const char* behaviour;
        LogBytes log;
        std::uint32_t result, records, unknown;
        std::uint64_t left;
        bool damaged;
    } cases[] = {
        {"a good log", SmallLog(4), 7, 4, 0, 0, false},
        {"one that was never ended", LogBytes(one).Raw({1, 2, 3, 4, 5, 6, 7, 8, 0, 10, 11, 12, 13}), 7, 1, 0, 13, true},
        {"cut in a record", LogBytes(one).RecordTo(kThird, 0, 80, {1, 2}), 7, 1, 0, 14, false},
        {"zeros are no records", LogBytes(one).Raw(Bytes(4096, 0)), 7, 1, 0, 4096, true},
        {"data behind the end of the file", SmallLog(3).PutWord32(4, 0xFFFFFFFE), 7, 0, 0, 45, true},
        {"an enormous record", SmallLog(3).PutWord32(44 + 24, 0xFFFFFFFF), 7, 0, 0, 45, true},
        // Right is kThird.
        {"a record that leads to 0", Between(0, 0), 7, 1, 0, 30, true},
        {"one byte too short", Between(kThird - 1, 0), 7, 1, 0, 30, true},
        {"one byte too far", Between(kThird + 1, 0), 7, 1, 0, 30, true},
        {"to the next but one", Between(kThird + 15, 0), 7, 1, 0, 30, true},
        {"with a wrong highest bit", Between(kThird ^ 0x80000000U, 0), 7, 1, 0, 30, true},
        {"to the end of all files", Between(0xFFFFFFFF, 0), 7, 1, 0, 30, true},
        {"an unknown record is passed over",
         LogBytes(one).Record(3, 80, {1, 2, 3, 4, 5}).Record(9, 90, {}).Record(0, 160, DataOf(2)).MarkEnd(), 7, 2, 2, 0,
         false},
        {"an unknown one that leads to 0", Between(0, 3), 4, 1, 0, 30, true},
        {"back to the data", Between(kSmallDataOffset, 3), 4, 1, 0, 30, true},
        {"to itself", Between(kSecond, 3), 4, 1, 0, 30, true},
        {"just past the file", Between(kThird + 16, 3), 7, 1, 0, 30, true},
        {"far past the file", Between(0xFFFFFFFF, 3), 7, 1, 0, 30, true},
        // Whole from its twelve bytes to the end of the file.
        {"an unknown one of 11 bytes", SmallLogHead().RecordTo(kSmallDataOffset + 11, 3, 80, {1, 2, 3, 4, 5}), 7, 0, 0,
         17, true},
        {"of 12", SmallLogHead().RecordTo(kSmallDataOffset + 12, 3, 80, {1, 2, 3, 4, 5}), 7, 0, 1, 5, false},
        {"of 17", SmallLogHead().RecordTo(kSmallDataOffset + 17, 3, 80, {1, 2, 3, 4, 5}), 7, 0, 1, 0, false},
        {"of 18", SmallLogHead().RecordTo(kSmallDataOffset + 18, 3, 80, {1, 2, 3, 4, 5}), 7, 0, 0, 17, true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.behaviour);
        const Walked walked = Walk(each.log);
        EXPECT_EQ(Listed(each.result, each.records, each.unknown, each.left, each.damaged),
                  Listed(walked.result, walked.records, walked.unknown, walked.left, walked.damaged));
    }
}

TEST_F(LogWalkTest, MeetsAllRecordsInOrder) {
    const Walked walked = Walk(SmallLog(4));
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(2), DataOf(3)}), walked.replies);
    EXPECT_EQ(kSmallDataOffset, walked.offsets[0]);
    EXPECT_EQ(kSmallDataOffset + 45, walked.offsets[3]);
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(2)}), Walk(Between(kThird, 3)).replies) << "but for unknown ones";
    ASSERT_EQ(0U, Open(SmallLog(2).PutWord32(4, kSecond), kLogForLooking));
    LogWalk walk(log_);
    EXPECT_EQ(15U, walk.Gap()) << "what stands in front of the data is told";
    ASSERT_TRUE(walk.Next());
    EXPECT_EQ(80U, walk.Record().timeMs);
    EXPECT_EQ(kId, walk.Item().commandId);
    EXPECT_EQ(DataOf(1), Bytes(walk.Packed(), walk.Packed() + 3));
    EXPECT_FALSE(walk.Next());
    EXPECT_EQ(0U, LogWalk(log_).Gap());
}

// A hole that begins behind a record's nextOffset leaves a record of zeros with a time of zero.
TEST_F(LogWalkTest, RecordThatGoesBackInTimeInFrontOfDamageIsDamageItself) {
    const std::uint32_t right = kSmallDataOffset + 45;
    const LogBytes good = SmallLogHead().Record(0, 80, DataOf(0)).Record(0, 160, DataOf(1));
    LogBytes hole = good;
    EXPECT_EQ(2U, Walk(hole.RecordTo(right, 0, 0, {0, 0, 0}).Raw(Bytes(30, 0))).records);
    // In front of another record, and at the end of the file, it is what the log says.
    LogBytes back = good;
    EXPECT_EQ(4U, Walk(back.Record(0, 0, DataOf(2)).Record(0, 5, DataOf(3))).records);
    LogBytes unknown = good;
    EXPECT_EQ(4U, Walk(unknown.Record(0, 0, DataOf(2)).Record(9, 5, DataOf(3)).Record(0, 6, DataOf(4))).records);
    // One damaged time does not make those behind it go back.
    LogBytes late = good;
    late.Record(0, 0x80000000, DataOf(2)).Record(0, 320, DataOf(3)).Raw(Bytes(12, 0xEE));
    EXPECT_EQ(4U, Walk(late).records);
}

TEST_F(LogWalkTest, OffsetsWrapIn32Bits) {
    const std::uint64_t begin = 0x100000000 - 20;
    LogBytes head = SmallLogHead().PutWord32(4, static_cast<std::uint32_t>(begin)), tail;
    tail.RecordTo(0xFFFFFFFB, 0, 0, DataOf(0)).RecordTo(10, 0, 80, DataOf(1)).RecordTo(25, 9, 90, {1, 2, 3});
    tail.RecordTo(40, 0, 160, DataOf(2)).RecordTo(54, 0, 240, DataOf(3));
    FarFiles files(FarFile(head.bytes, begin, tail.bytes));
    DataLogEngine log(files);
    ASSERT_EQ(0U, log.Open(kPath, kLogForLooking));
    const Walked walked = WalkAll(log);
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(2)}), walked.replies);
    EXPECT_EQ(1U, walked.unknown);
    EXPECT_EQ(15U, walked.left);
}

TEST_F(LogWalkTest, ReplyIsExpandedByItsMask) {
    LogBytes bytes;
    bytes.Header(44 + 34 + 33, 2).ItemCount(2);
    bytes.Item(kId, kTypeSendCommand, 2, 4, Bytes{0x0A}).Item(kId, kTypeSendCommand, 2, 0, {});
    const Walked walked = Walk(bytes.Record(0, 0, {5, 6}).Record(1, 0, {5, 6}).MarkEnd());
    EXPECT_EQ((std::vector<Bytes>{{0, 5, 0, 6}, {}}), walked.replies);
}

TEST_F(LogWalkTest, EnormousReplyIsCutToWhatTheFileJustifies) {
    const Walked full = Walk(SmallLog(3).PutWord32(44 + 28, 0xFFFFFFFF));
    EXPECT_EQ(3U, full.records);
    EXPECT_EQ(65536U, full.replies.at(0).size());
    EXPECT_EQ(DataOf(2), Bytes(full.replies.at(2).begin(), full.replies.at(2).begin() + 3));
    EXPECT_EQ(0, full.replies.at(2).back());
}

TEST_F(LogWalkTest, BeginsWhereAPlaybackWould) {
    ASSERT_EQ(0U, Open(SmallLog(4), kLogForLooking));
    log_.header.endMark = kSmallDataOffset;  // so that any position is past it
    EXPECT_EQ(4U, WalkAll(log_).records);
    EXPECT_EQ(4U, WalkAll(log_).records);
}

TEST_F(LogWalkTest, FailedReadIsTold) {
    ASSERT_EQ(0U, Open(SmallLog(6000), kLogForLooking));  // longer than what is read ahead
    LogWalk walk(log_);
    files_.failReads = true;
    while (walk.Next()) {
    }
    EXPECT_EQ(1U, walk.Result());
    EXPECT_LT(1000U, walk.Records());
}

}  // namespace
}  // namespace corvex::test
