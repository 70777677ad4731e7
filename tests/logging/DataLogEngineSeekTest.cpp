// Jumps in a log that stands still; those in a playback are with the playback's tests.
#include <gtest/gtest.h>

#include "tests/logging/LogTestHelper.h"
#include "tests/support/LogCallbackRecorder.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

class DataLogEngineSeekTest : public ::testing::Test {
protected:
    void Open(const LogBytes& bytes) {
        files_.Put(kPath, bytes.bytes);
        ASSERT_EQ(0U, log_.Open(kPath, kLogForReading));
        log_.SetCallback(&told_);
    }
    // Number of the record that would be read next.
    std::uint64_t Next() const { return (log_.Position() - kSmallDataOffset) / 15; }

    LogCallbackRecorder told_;
    MemoryFiles files_;
    DataLogEngine log_{files_};
};

TEST_F(DataLogEngineSeekTest, AbsoluteTargetIsACountOfRecords) {
    Open(SmallLog(20));
    ReadRest(log_);
    ASSERT_EQ(0U, log_.Seek(7, 1));
    EXPECT_EQ(7U, Next());
    EXPECT_EQ(7U, log_.sampleIndex);
    EXPECT_EQ(480U, log_.CurrentTime());
    EXPECT_EQ(480U, log_.paceBaseMs);
    ASSERT_EQ(0U, log_.Seek(20, 1));
    EXPECT_EQ(20U, Next());
    EXPECT_EQ(7U, log_.Seek(21, 1));
    EXPECT_EQ(20U, log_.sampleIndex);
}

TEST_F(DataLogEngineSeekTest, TargetZeroReadsNothing) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(5, 1));
    ASSERT_EQ(0U, log_.Seek(0, 0));
    EXPECT_EQ(5U, Next());
    ASSERT_EQ(0U, log_.Seek(0, 1));
    EXPECT_EQ(0U, Next());
    EXPECT_EQ(0U, log_.sampleIndex);
}

TEST_F(DataLogEngineSeekTest, ForwardByTenGoesToTheTenth) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(4, 1));
    ASSERT_EQ(0U, log_.Seek(10, 0));
    EXPECT_EQ(10U, Next());
}

// Without "from the start" the target is still no distance: the jump key is known for it.
TEST_F(DataLogEngineSeekTest, ForwardByTenPastTheTenthGoesOneOn) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(10, 1));
    ASSERT_EQ(0U, log_.Seek(10, 0));
    EXPECT_EQ(11U, log_.sampleIndex);
    ASSERT_EQ(0U, log_.Seek(10, 0));
    EXPECT_EQ(12U, log_.sampleIndex);
    EXPECT_EQ(12U, Next());
}

TEST_F(DataLogEngineSeekTest, BackwardByTenGoesBack) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(15, 1));
    ASSERT_EQ(0U, log_.Seek(log_.sampleIndex - 10, 1));
    EXPECT_EQ(5U, Next());
}

TEST_F(DataLogEngineSeekTest, BackwardInTheFirstTenRunsToTheEnd) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(5, 1));
    log_.paceBaseMs = 11;
    EXPECT_EQ(7U, log_.Seek(log_.sampleIndex - 10, 1));
    EXPECT_EQ(20U, log_.sampleIndex);
    EXPECT_EQ(20U, Next());
    EXPECT_EQ(11U, log_.paceBaseMs);
}

TEST_F(DataLogEngineSeekTest, TimeStopsBeforeTheFirstLaterRecord) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(400, 0x201));
    EXPECT_EQ(6U, Next());  // the record of 400 itself is not later
    EXPECT_EQ(6U, log_.sampleIndex);
    ASSERT_EQ(0U, log_.Seek(399, 0x201));
    EXPECT_EQ(5U, Next());
    ASSERT_EQ(0U, log_.Seek(800, 0x200));
    EXPECT_EQ(11U, Next());
    EXPECT_EQ(11U, log_.sampleIndex);
}

TEST_F(DataLogEngineSeekTest, TimeBehindMeStaysWithoutTheFlagToStartOver) {
    Open(SmallLog(20));
    ASSERT_EQ(0U, log_.Seek(10, 1));
    ASSERT_EQ(0U, log_.Seek(1, 0x200));
    EXPECT_EQ(10U, Next());
    EXPECT_EQ(10U, log_.sampleIndex);
}

TEST_F(DataLogEngineSeekTest, TimePastTheLastRecordGivesSeven) {
    Open(SmallLog(20));
    EXPECT_EQ(7U, log_.Seek(19 * 80, 0x201));
    EXPECT_EQ(7U, log_.Seek(0xFFFFFFFF, 0x201));
    EXPECT_EQ(20U, log_.sampleIndex);
    EXPECT_EQ(0U, log_.Seek(19 * 80 - 1, 0x201));
}

TEST_F(DataLogEngineSeekTest, FlagFourIsNotSupported) {
    Open(SmallLog(20));
    for (const std::uint32_t flags : {4U, 5U, 0x204U, 0xFFFFFFFFU})
        EXPECT_EQ(10U, log_.Seek(3, flags));
    EXPECT_EQ(0U, Next());
    EXPECT_EQ((std::vector<std::string>(4, "SeekEnd")), told_.Words());
}

TEST_F(DataLogEngineSeekTest, CallbackMayRefuse) {
    Open(SmallLog(20));
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
    Open(SmallLog(20));
    EXPECT_EQ(0U, log_.Seek(3, 0x201));
    EXPECT_EQ(7U, log_.Seek(30, 1));
    EXPECT_EQ((std::vector<std::string>{"SeekEnd", "SeekBegin 3 513", "SeekEnd", "SeekBegin 30 1", "SeekEnd"}),
              told_.Words());
}

TEST_F(DataLogEngineSeekTest, OnlyAnOpenLogThatDoesNotRecordCanSeek) {
    EXPECT_EQ(3U, log_.Seek(1, 1));
    ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
    EXPECT_EQ(3U, log_.Seek(1, 1));
    ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 3)));
    ASSERT_EQ(0U, log_.StartRecording());
    EXPECT_EQ(3U, log_.Seek(1, 1));
    ASSERT_EQ(0U, log_.AddSample(kId, DataOf(0).data(), 3));
    ASSERT_EQ(0U, log_.StopRecording());
    EXPECT_EQ(0U, log_.Seek(1, 1));
}

TEST_F(DataLogEngineSeekTest, NobodyNeedBeTold) {
    Open(SmallLog(20));
    log_.SetCallback(nullptr);
    EXPECT_EQ(0U, log_.Seek(3, 1));
    EXPECT_EQ(3U, Next());
}

TEST_F(DataLogEngineSeekTest, UnknownRecordIsPassedOver) {
    LogBytes bytes = SmallLogHead();
    bytes.Record(0, 0, DataOf(0)).Record(7, 80, DataOf(1)).Record(0, 160, DataOf(2)).Record(0, 240, DataOf(3));
    Open(bytes.MarkEnd());
    EXPECT_EQ(0U, log_.Seek(2, 1));
    EXPECT_EQ(160U, log_.CurrentTime());
    EXPECT_EQ(3U, Next());
}

TEST_F(DataLogEngineSeekTest, UnknownRecordThatPointsNoFurtherEndsIt) {
    for (const std::uint32_t next : {0U, kSmallDataOffset, kSmallDataOffset + 15}) {
        LogBytes bytes = SmallLogHead();
        bytes.Record(0, 0, DataOf(0)).RecordTo(next, 7, 80, DataOf(1)).Record(0, 160, DataOf(2));
        Open(bytes.MarkEnd());
        EXPECT_EQ(4U, log_.Seek(2, 1)) << next;
        EXPECT_EQ(4U, log_.Seek(200, 0x201)) << next;
    }
}

TEST_F(DataLogEngineSeekTest, UnknownRecordThatPointsPastTheFileIsTheEnd) {
    LogBytes bytes = SmallLogHead();
    Open(bytes.RecordTo(0xFFFFFFFF, 7, 80, DataOf(1)).MarkEnd());
    EXPECT_EQ(7U, log_.Seek(1, 1));
}

TEST_F(DataLogEngineSeekTest, EnormousRecordIsTheEnd) {
    Open(SmallLog(3).PutWord32(44 + 24, 0xFFFFFFFF));
    EXPECT_EQ(7U, log_.Seek(1, 1));
    Open(SmallLog(3).PutWord32(4, 0xFFFFFFF0));
    EXPECT_EQ(7U, log_.Seek(1, 1));
}

TEST_F(DataLogEngineSeekTest, FailedReadEndsIt) {
    Open(SmallLog(6000));
    files_.failReads = true;
    EXPECT_EQ(1U, log_.Seek(5999, 1));
    files_.failReads = false;
    EXPECT_EQ(0U, log_.Seek(5999, 1));
    EXPECT_EQ(5999U, Next());
}

TEST_F(DataLogEngineSeekTest, SeekWritesNothing) {
    Open(SmallLog(20));
    EXPECT_EQ(0U, log_.Seek(3, 1));
    EXPECT_EQ(7U, log_.Seek(99, 1));
    EXPECT_EQ(0U, files_.writes);
}

}  // namespace
}  // namespace corvex::test
