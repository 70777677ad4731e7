// Jumps in a log that stands still; those in a playback are with the playback's tests.
#include "tests/logging/LogTestHelper.h"
#include "tests/support/LogCallbackRecorder.h"

namespace corvex::test {
namespace {

class DataLogEngineSeekTest : public LogFixture {
protected:
    void OpenTold(const LogBytes& bytes) {
        ASSERT_EQ(0U, Open(bytes));
        log_.SetCallback(&told_);
    }
    // Number of the record that would be read next.
    std::uint64_t Next() const { return (log_.Position() - kSmallDataOffset) / 15; }

    LogCallbackRecorder told_;
};

TEST_F(DataLogEngineSeekTest, GoesWhereItIsAskedTo) {
    struct Jump {
        std::uint32_t target, flags, result, next;
    };
    const struct {
        const char* behaviour;
        std::vector<Jump> jumps;
    } cases[] = {
        {"an absolute target is a count of records", {{7, 1, 0, 7}, {20, 1, 0, 20}, {21, 1, 7, 20}}},
        {"a target of zero reads nothing", {{5, 1, 0, 5}, {0, 0, 0, 5}, {0, 1, 0, 0}}},
        {"forward by ten goes to the tenth", {{4, 1, 0, 4}, {10, 0, 0, 10}}},
        // Without "from the start" the target is still no distance: the jump key is known for it.
        {"forward by ten past the tenth goes one on", {{10, 1, 0, 10}, {10, 0, 0, 11}, {10, 0, 0, 12}}},
        {"backward by ten goes back", {{15, 1, 0, 15}, {15 - 10, 1, 0, 5}}},
        {"backward in the first ten runs to the end", {{5, 1, 0, 5}, {5U - 10U, 1, 7, 20}}},
        // The record of 400 ms itself is not later.
        {"a time stops before the first later record", {{400, 0x201, 0, 6}, {399, 0x201, 0, 5}, {800, 0x200, 0, 11}}},
        {"a time behind me stays without the flag to start over", {{10, 1, 0, 10}, {1, 0x200, 0, 10}}},
        {"a time past the last record gives seven",
         {{19 * 80, 0x201, 7, 20}, {0xFFFFFFFF, 0x201, 7, 20}, {19 * 80 - 1, 0x201, 0, 19}}},
    };
    for (const auto& one : cases) {
        OpenTold(SmallLog(20));
        const std::uint64_t writes = files_.writes;
        for (const Jump& jump : one.jumps) {
            SCOPED_TRACE(testing::Message() << one.behaviour << ", to " << jump.target);
            EXPECT_EQ(jump.result, log_.Seek(jump.target, jump.flags));
            EXPECT_EQ(jump.next, Next());
            EXPECT_EQ(jump.next, log_.sampleIndex);
            EXPECT_EQ(writes, files_.writes);
        }
    }
}

TEST_F(DataLogEngineSeekTest, SetsTheTimeAndWhereItArrivesThePace) {
    OpenTold(SmallLog(20));
    ReadRest(log_);
    ASSERT_EQ(0U, log_.Seek(7, 1));
    EXPECT_EQ(480U, log_.CurrentTime());
    EXPECT_EQ(480U, log_.paceBaseMs);
    EXPECT_EQ(7U, log_.Seek(21, 1));
    EXPECT_EQ(480U, log_.paceBaseMs);
}

TEST_F(DataLogEngineSeekTest, FlagFourIsNotSupported) {
    OpenTold(SmallLog(20));
    for (const std::uint32_t flags : {4U, 5U, 0x204U, 0xFFFFFFFFU})
        EXPECT_EQ(10U, log_.Seek(3, flags));
    EXPECT_EQ(0U, Next());
    EXPECT_EQ((std::vector<std::string>(4, "SeekEnd")), told_.Words());
}

TEST_F(DataLogEngineSeekTest, CallbackMayRefuse) {
    OpenTold(SmallLog(20));
    told_.seekAnswer = -1;
    EXPECT_EQ(11U, log_.Seek(3, 1));
    EXPECT_EQ(0U, Next());
    EXPECT_EQ((std::vector<std::string>{"SeekBegin 3 1", "SeekEnd"}), told_.Words());
    told_.seekAnswer = 1;
    EXPECT_EQ(0U, log_.Seek(3, 1));
}

TEST_F(DataLogEngineSeekTest, EverySeekEndsForTheCallback) {
    log_.SetCallback(&told_);
    EXPECT_EQ(3U, log_.Seek(3, 1));
    OpenTold(SmallLog(20));
    EXPECT_EQ(0U, log_.Seek(3, 0x201));
    EXPECT_EQ(7U, log_.Seek(30, 1));
    EXPECT_EQ((std::vector<std::string>{"SeekEnd", "SeekBegin 3 513", "SeekEnd", "SeekBegin 30 1", "SeekEnd"}),
              told_.Words());
}

TEST_F(DataLogEngineSeekTest, OnlyAnOpenLogThatDoesNotRecordCanSeek) {
    EXPECT_EQ(3U, log_.Seek(1, 1));
    ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
    EXPECT_EQ(3U, log_.Seek(1, 1));
    BeginRecording();
    EXPECT_EQ(3U, log_.Seek(1, 1));
    ASSERT_EQ(0U, AddRecord(0));
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(0U, log_.Seek(1, 1));
}

TEST_F(DataLogEngineSeekTest, NobodyNeedBeTold) {
    OpenTold(SmallLog(20));
    log_.SetCallback(nullptr);
    EXPECT_EQ(0U, log_.Seek(3, 1));
    EXPECT_EQ(3U, Next());
}

TEST_F(DataLogEngineSeekTest, UnknownRecordIsPassedOver) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Record(7, 80, DataOf(1)).Record(0, 160, DataOf(2)).Record(0, 240, DataOf(3));
    OpenTold(bytes.MarkEnd());
    EXPECT_EQ(0U, log_.Seek(2, 1));
    EXPECT_EQ(160U, log_.CurrentTime());
    EXPECT_EQ(3U, Next());
}

TEST_F(DataLogEngineSeekTest, UnknownRecordThatPointsNoFurtherEndsIt) {
    for (const std::uint32_t next : {0U, kSmallDataOffset, kSmallDataOffset + 15}) {
        LogBytes bytes = SmallLogHead();
        bytes.Record(0, 0, DataOf(0)).RecordTo(next, 7, 80, DataOf(1)).Record(0, 160, DataOf(2));
        OpenTold(bytes.MarkEnd());
        EXPECT_EQ(4U, log_.Seek(2, 1)) << next;
        EXPECT_EQ(4U, log_.Seek(200, 0x201)) << next;
    }
}

TEST_F(DataLogEngineSeekTest, UnknownRecordThatPointsPastTheFileIsTheEnd) {
    LogBytes bytes = SmallLogHead();
    OpenTold(bytes.RecordTo(0xFFFFFFFF, 7, 80, DataOf(1)).MarkEnd());
    EXPECT_EQ(7U, log_.Seek(1, 1));
}

TEST_F(DataLogEngineSeekTest, EnormousRecordIsTheEnd) {
    OpenTold(SmallLog(3).PutWord32(44 + 24, 0xFFFFFFFF));
    EXPECT_EQ(7U, log_.Seek(1, 1));
    OpenTold(SmallLog(3).PutWord32(4, 0xFFFFFFF0));
    EXPECT_EQ(7U, log_.Seek(1, 1));
}

TEST_F(DataLogEngineSeekTest, FailedReadEndsIt) {
    OpenTold(SmallLog(6000));
    files_.failReads = true;
    EXPECT_EQ(1U, log_.Seek(5999, 1));
    files_.failReads = false;
    EXPECT_EQ(0U, log_.Seek(5999, 1));
    EXPECT_EQ(5999U, Next());
}

}  // namespace
}  // namespace corvex::test
