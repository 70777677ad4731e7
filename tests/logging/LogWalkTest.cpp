#include <gtest/gtest.h>

#include "logging/LogWalk.h"
#include "tests/logging/FarFile.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/MemoryFiles.h"

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

class LogWalkTest : public ::testing::Test {
protected:
    Walked Walk(const LogBytes& bytes) {
        files_.Put(kPath, bytes.bytes);
        EXPECT_EQ(0U, log_.Open(kPath, kLogForLooking));
        return WalkAll(log_);
    }

    MemoryFiles files_;
    DataLogEngine log_{files_};
};

TEST_F(LogWalkTest, MeetsAllRecordsInOrder) {
    const Walked walked = Walk(SmallLog(4));
    EXPECT_EQ(7U, walked.result);
    EXPECT_EQ(4U, walked.records);
    EXPECT_EQ(0U, walked.unknown);
    EXPECT_EQ(0U, walked.left);
    EXPECT_FALSE(walked.damaged);
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(2), DataOf(3)}), walked.replies);
    EXPECT_EQ(kSmallDataOffset, walked.offsets[0]);
    EXPECT_EQ(kSmallDataOffset + 45, walked.offsets[3]);
}

TEST_F(LogWalkTest, ShowsTheRecordInHand) {
    files_.Put(kPath, SmallLog(2).bytes);
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    LogWalk walk(log_);
    ASSERT_TRUE(walk.Next());
    ASSERT_TRUE(walk.Next());
    EXPECT_EQ(80U, walk.Record().timeMs);
    EXPECT_EQ(kId, walk.Item().commandId);
    EXPECT_EQ(DataOf(1), Bytes(walk.Packed(), walk.Packed() + 3));
}

TEST_F(LogWalkTest, UnendedLogIsWalkedToItsLastWholeRecord) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Raw({1, 2, 3, 4, 5, 6, 7, 8, 0, 10, 11, 12, 13});
    const Walked walked = Walk(bytes);
    EXPECT_EQ(7U, walked.result);
    EXPECT_EQ(1U, walked.records);
    EXPECT_EQ(13U, walked.left);
    EXPECT_TRUE(walked.damaged);
    const Walked cut = Walk(SmallLogHead().Record(0, 0, DataOf(0)).RecordTo(kSmallDataOffset + 30, 0, 80, {1, 2}));
    EXPECT_EQ(7U, cut.result);
    EXPECT_EQ(14U, cut.left);
    EXPECT_FALSE(cut.damaged);
}

TEST_F(LogWalkTest, RecordThatDoesNotLeadRightBehindItselfIsDamage) {
    const std::uint32_t right = kSmallDataOffset + 30;
    for (const std::uint32_t next : {0U, right - 1, right + 1, right + 15, right ^ 0x80000000U, 0xFFFFFFFFU}) {
        LogBytes bytes = SmallLogHead(3);
        bytes.Record(0, 0, DataOf(0)).RecordTo(next, 0, 80, DataOf(1)).Record(0, 160, DataOf(2));
        const Walked walked = Walk(bytes.MarkEnd());
        EXPECT_EQ(7U, walked.result) << next;
        EXPECT_EQ((std::vector<Bytes>{DataOf(0)}), walked.replies) << next;
        EXPECT_EQ(30U, walked.left);
        EXPECT_TRUE(walked.damaged);
    }
}

TEST_F(LogWalkTest, ZerosAreNoRecords) {
    const Walked walked = Walk(SmallLogHead().Record(0, 0, DataOf(0)).Raw(Bytes(4096, 0)));
    EXPECT_EQ(7U, walked.result);
    EXPECT_EQ(1U, walked.records);
    EXPECT_EQ(4096U, walked.left);
    EXPECT_TRUE(walked.damaged);
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
    FarFiles files(head.bytes, begin, tail.bytes);
    DataLogEngine log(files);
    ASSERT_EQ(0U, log.Open(kPath, kLogForLooking));
    const Walked walked = WalkAll(log);
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(2)}), walked.replies);
    EXPECT_EQ(1U, walked.unknown);
    EXPECT_EQ(15U, walked.left);
}

TEST_F(LogWalkTest, UnknownRecordIsPassedOver) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Record(3, 80, {1, 2, 3, 4, 5}).Record(9, 90, {}).Record(0, 160, DataOf(2));
    const Walked walked = Walk(bytes.MarkEnd());
    EXPECT_EQ(7U, walked.result);
    EXPECT_EQ(2U, walked.records);
    EXPECT_EQ(2U, walked.unknown);
    EXPECT_EQ(DataOf(2), walked.replies.at(1));
}

TEST_F(LogWalkTest, UnknownRecordThatPointsNoFurtherEndsIt) {
    for (const std::uint32_t next : {0U, kSmallDataOffset, kSmallDataOffset + 15}) {
        LogBytes bytes = SmallLogHead();
        bytes.Record(0, 0, DataOf(0)).RecordTo(next, 3, 80, {1, 2, 3}).Record(0, 160, DataOf(2));
        const Walked walked = Walk(bytes.MarkEnd());
        EXPECT_EQ(4U, walked.result) << next;
        EXPECT_EQ(1U, walked.records);
        EXPECT_EQ(30U, walked.left);
    }
}

TEST_F(LogWalkTest, UnknownRecordThatPointsPastTheFileEndsIt) {
    for (const std::uint32_t next : {kSmallDataOffset + 18, kSmallDataOffset + 1000, 0xFFFFFFFFU}) {
        LogBytes bytes = SmallLogHead();
        const Walked walked = Walk(bytes.RecordTo(next, 3, 80, {1, 2, 3, 4, 5}).MarkEnd());
        EXPECT_EQ(17U, walked.left) << next;
        EXPECT_EQ(0U, walked.unknown);
        EXPECT_EQ(7U, walked.result);
        EXPECT_EQ(0U, walked.records);
    }
}

TEST_F(LogWalkTest, UnknownRecordIsWholeFromItsTwelveBytesToTheEndOfTheFile) {
    for (const std::uint32_t size : {11U, 12U, 17U, 18U}) {
        const Walked walked = Walk(SmallLogHead().RecordTo(kSmallDataOffset + size, 3, 80, {1, 2, 3, 4, 5}));
        EXPECT_EQ(size == 12 || size == 17 ? 1U : 0U, walked.unknown) << size;
        EXPECT_EQ(size == 17 ? 0U : size == 12 ? 5U : 17U, walked.left);
    }
}

TEST_F(LogWalkTest, ReplyIsExpandedByItsMask) {
    LogBytes bytes;
    bytes.Header(44 + 34, 1).ItemCount(1).Item(kId, kTypeSendCommand, 2, 4, Bytes{0x0A});
    const Walked walked = Walk(bytes.Record(0, 0, {5, 6}).MarkEnd());
    EXPECT_EQ((std::vector<Bytes>{{0, 5, 0, 6}}), walked.replies);
}

TEST_F(LogWalkTest, ReplyWithoutBytesIsEmpty) {
    LogBytes bytes;
    bytes.Header(44 + 33, 1).ItemCount(1).Item(kId, kTypeSendCommand, 2, 0, {});
    const Walked walked = Walk(bytes.Record(0, 0, {5, 6}).MarkEnd());
    EXPECT_EQ((std::vector<Bytes>{{}}), walked.replies);
}

TEST_F(LogWalkTest, EnormousSizesAreCutToWhatTheFileJustifies) {
    const Walked packed = Walk(SmallLog(3).PutWord32(44 + 24, 0xFFFFFFFF));
    EXPECT_EQ(7U, packed.result);
    EXPECT_EQ(0U, packed.records);
    EXPECT_EQ(45U, packed.left);
    const Walked full = Walk(SmallLog(3).PutWord32(44 + 28, 0xFFFFFFFF));
    EXPECT_EQ(3U, full.records);
    EXPECT_EQ(65536U, full.replies.at(0).size());
    EXPECT_EQ(DataOf(2), Bytes(full.replies.at(2).begin(), full.replies.at(2).begin() + 3));
    EXPECT_EQ(0, full.replies.at(2).back());
}

// Two thousand records of no data could otherwise be made to cost the whole file each.
TEST_F(LogWalkTest, RecordsWithoutDataDoNotCostTheWholeFile) {
    LogBytes bytes;
    bytes.Header(kSmallDataOffset, 0).ItemCount(1).Item(kId, kTypeSendCommand, 0, 0xFFFFFFFF, Bytes(15, 0xFF));
    bytes.RecordTo(bytes.DataOffsetFor({15}) + 12, 0, 0, {}).Raw(Bytes(200'000, 0));
    files_.Put(kPath, bytes.bytes);
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    LogWalk walk(log_);
    ASSERT_TRUE(walk.Next());
    EXPECT_EQ(65536U, walk.Reply().Size());
}

TEST_F(LogWalkTest, BeginsWhereAPlaybackWould) {
    files_.Put(kPath, SmallLog(4).bytes);
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    log_.header.endMark = kSmallDataOffset;  // so that any position is past it
    EXPECT_EQ(4U, WalkAll(log_).records);
    EXPECT_EQ(4U, WalkAll(log_).records);
    LogBytes bytes = SmallLogHead();
    bytes.PutWord32(4, kSmallDataOffset + 15);
    EXPECT_EQ(1U, Walk(bytes.Record(0, 0, DataOf(0)).Record(0, 80, DataOf(1)).MarkEnd()).records);
}

TEST_F(LogWalkTest, DataOffsetPastTheFileIsAnEmptyLog) {
    const Walked walked = Walk(SmallLog(3).PutWord32(4, 0xFFFFFFFE));
    EXPECT_EQ(7U, walked.result);
    EXPECT_EQ(0U, walked.records);
    EXPECT_EQ(45U, walked.left);
    EXPECT_TRUE(walked.damaged);
}

TEST_F(LogWalkTest, TellsOfWhatStandsInFrontOfTheData) {
    files_.Put(kPath, SmallLog(3).PutWord32(4, kSmallDataOffset + 15).bytes);
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    LogWalk walk(log_);
    EXPECT_EQ(15U, walk.Gap());
    while (walk.Next()) {
    }
    EXPECT_EQ(2U, walk.Records());
    EXPECT_EQ(0U, LogWalk(log_).Gap());
}

TEST_F(LogWalkTest, FailedReadIsTold) {
    files_.Put(kPath, SmallLog(6000).bytes);  // longer than what is read ahead
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    LogWalk walk(log_);
    files_.failReads = true;
    while (walk.Next()) {
    }
    EXPECT_EQ(1U, walk.Result());
    EXPECT_LT(1000U, walk.Records());
}

TEST_F(LogWalkTest, AnyFlippedByteComesToAnEnd) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Record(1, 80, {1, 2, 3}).Record(0, 160, DataOf(2)).MarkEnd();
    for (std::size_t at = 0; at < bytes.bytes.size(); ++at) {
        for (const unsigned flip : {0x01U, 0x80U, 0xFFU}) {
            Bytes bad = bytes.bytes;
            bad[at] = static_cast<std::uint8_t>(bad[at] ^ flip);
            files_.Put(kPath, bad);
            if (log_.Open(kPath, kLogForLooking) != 0) continue;
            const Walked walked = WalkAll(log_);
            EXPECT_TRUE(walked.result == 7 || walked.result == 4) << at;
            EXPECT_GE(9U, walked.records) << at;
        }
    }
}

TEST_F(LogWalkTest, LiveRecordingIsWalkedAsFarAsItIs) {
    DataLogEngine recorder(files_);
    ASSERT_EQ(0U, recorder.Open(kPath, kLogForWriting));
    ASSERT_EQ(0U, recorder.AddItem(MakeItem(kId, 3)));
    ASSERT_EQ(0U, recorder.StartRecording());
    for (std::uint32_t i = 0; i < 50; ++i) {
        ASSERT_EQ(0U, recorder.AddSample(kId, DataOf(i).data(), 3));
        ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
        const Walked walked = WalkAll(log_);
        EXPECT_EQ(7U, walked.result);
        ASSERT_EQ(i + 1, walked.records);
        EXPECT_EQ(DataOf(i), walked.replies.back());
        EXPECT_EQ(0U, walked.left);
    }
    // A walk that has begun meets what comes meanwhile.
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    LogWalk walk(log_);
    ASSERT_TRUE(walk.Next());
    ASSERT_EQ(0U, recorder.AddSample(kId, DataOf(50).data(), 3));
    while (walk.Next()) {
    }
    EXPECT_EQ(51U, walk.Records());
}

}  // namespace
}  // namespace corvex::test
