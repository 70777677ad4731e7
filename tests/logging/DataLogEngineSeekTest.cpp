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

TEST_F(DataLogEngineSeekTest, GoesOverUnknownRecordsAsFarAsTheyLead) {
    const LogBytes one = SmallLogHead().Record(0, 0, DataOf(0));
    const auto leadingTo = [&](std::uint32_t next) {
        return LogBytes(one).RecordTo(next, 7, 80, DataOf(1)).Record(0, 160, DataOf(2)).MarkEnd();
    };
    const struct {
        const char* behaviour;
        LogBytes log;
        std::uint32_t target, result;
    } cases[] = {
        {"one is passed over", LogBytes(one).Record(7, 80, DataOf(1)).Record(0, 160, DataOf(2)).MarkEnd(), 2, 0},
        {"to the begin of the file", leadingTo(0), 2, 4},
        {"to the begin of the data", leadingTo(kSmallDataOffset), 2, 4},
        {"to itself", leadingTo(kSmallDataOffset + 15), 2, 4},
        {"past the file", leadingTo(0xFFFFFFFF), 2, 7},
        {"an enormous record is the end", SmallLog(3).PutWord32(44 + 24, 0xFFFFFFFF), 1, 7},
        {"so is one behind the file", SmallLog(3).PutWord32(4, 0xFFFFFFF0), 1, 7},
    };
    for (const auto& each : cases) {
        OpenTold(each.log);
        EXPECT_EQ(each.result, log_.Seek(each.target, 1)) << each.behaviour;
        if (each.result == 4) {
            EXPECT_EQ(4U, log_.Seek(200, 0x201)) << each.behaviour;
        }
        EXPECT_EQ(each.result == 0 ? 160U : 0U, log_.CurrentTime()) << each.behaviour;
    }
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
