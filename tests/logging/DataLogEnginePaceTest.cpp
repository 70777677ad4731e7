// The pace of a playback, and pauses, stops and jumps while a record waits for its moment. Runs on a virtual clock.
#include "tests/logging/PlaybackFixture.h"

namespace corvex::test {
namespace {

class DataLogEnginePaceTest : public PlaybackFixture {
protected:
    // A callback that is held in its first delivery.
    void HoldTheDelivery() {
        told_.hook = [this](const std::string& word) {
            if (word != "Send 3") return;
            inside_ = true;
            Eventually([this] { return go_.load(); });
        };
    }
    bool IsInside() {
        return Eventually([this] { return inside_.load(); });
    }
    void Pause() {
        EXPECT_EQ(0U, log_.RequestStop());
        ASSERT_TRUE(Ends());
        EXPECT_EQ(kLogReady, log_.State());
    }

    std::atomic<bool> inside_{false}, go_{false};
};

TEST_F(DataLogEnginePaceTest, GapsFollowTheSpeedAndTheFirstRecordComesAtOnce) {
    const std::pair<float, std::int64_t> cases[] = {{1.0F, 100}, {4.0F, 25}, {0.25F, 400}};
    std::size_t delivered = 0;
    for (const auto& [speed, gap] : cases) {
        Play(SmallLog(3, 100), speed);
        ASSERT_TRUE(Waits(delivered + 1)) << speed;
        EXPECT_EQ(DataOf(0), DeliveredData().at(delivered));
        ExpectAfter(gap);
        ExpectAfter(gap);
        ASSERT_TRUE(Ends());
        delivered += 3;
    }
}

TEST_F(DataLogEnginePaceTest, NewSpeedHoldsFromTheNextRecordOn) {
    Play(SmallLog(4, 100));
    ASSERT_TRUE(Waits(1));
    log_.speed = 4.0F;
    ExpectAfter(100);  // was being waited for already
    ExpectAfter(25);
}

TEST_F(DataLogEnginePaceTest, SlowestSpeedsAreNotPaced) {
    for (const float speed : {0.01F, 0.0F, -1.0F}) {
        Play(SmallLog(5, 1'000'000), speed);
        ASSERT_TRUE(Ends());
    }
    EXPECT_EQ(15U, told_.RecordCount());
    Play(SmallLog(5, 1000), 0.011F);
    ASSERT_TRUE(Waits(16));
}

TEST_F(DataLogEnginePaceTest, TimeThatGoesBackIsWaitedForToo) {
    LogBytes bytes = SmallLogHead();
    Play(bytes.Record(0, 0, DataOf(0)).Record(0, 300, DataOf(1)).Record(0, 100, DataOf(2)).MarkEnd());
    ASSERT_TRUE(Waits(1));
    ExpectAfter(300);
    ExpectAfter(200);
    EXPECT_EQ(100U, log_.paceBaseMs);
}

TEST_F(DataLogEnginePaceTest, TimeZeroIsNeverWaitedFor) {
    LogBytes bytes = SmallLogHead();
    Play(bytes.Record(0, 300, DataOf(0)).Record(0, 0, DataOf(1)).Record(0, 50, DataOf(2)).MarkEnd());
    ExpectAfter(300);
    ASSERT_TRUE(Waits(2));
    ExpectAfter(50);
}

// Each wait begins when the record is read: time that a delivery takes is not made up for.
TEST_F(DataLogEnginePaceTest, SlowCallbackMakesTheLogLate) {
    told_.hook = [this](const std::string& word) {
        if (word == "Send 3") clock_.AdvanceMilliseconds(1000);
    };
    Play(SmallLog(3, 100));
    ASSERT_TRUE(Waits(1));
    ExpectAfter(100);
    ExpectAfter(100);
}

TEST_F(DataLogEnginePaceTest, PauseDropsTheAwaitedRecord) {
    Play(SmallLog(5, 100));
    ASSERT_TRUE(Waits(1));
    ExpectAfter(100);
    ASSERT_TRUE(Waits(2));
    EXPECT_EQ(3U, log_.sampleIndex);  // has counted it already
    Pause();
    EXPECT_EQ(2U, told_.RecordCount());
    EXPECT_EQ(0U, told_.CountOf("End"));
    EXPECT_EQ(100U, log_.paceBaseMs);

    clock_.AdvanceMilliseconds(50'000);
    ASSERT_EQ(0U, log_.StartPlayback());
    ExpectAfter(100);  // from the time of the dropped record, 200
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(3)}), DeliveredData());
    EXPECT_EQ(4U, told_.Records().at(2).sampleIndex);
}

TEST_F(DataLogEnginePaceTest, ResumeWhileTheOldThreadEndsIsRefused) {
    HoldTheDelivery();
    Play(SmallLog(3, 100));
    ASSERT_TRUE(IsInside());
    EXPECT_EQ(0U, log_.RequestStop());
    EXPECT_EQ(3U, log_.StartPlayback());
    EXPECT_TRUE(log_.IsPlaying());
    // Opened anew, it is ready at once, and the thread is still there.
    ASSERT_EQ(0U, log_.Open(kPath, kLogForReading));
    EXPECT_EQ(1U, log_.StartPlayback());
    EXPECT_EQ(kLogReady, log_.State());
    go_ = true;
    ASSERT_TRUE(Ends());
    EXPECT_EQ(kLogReady, log_.State());
    EXPECT_EQ(0U, log_.sampleIndex);
    EXPECT_EQ(1U, told_.RecordCount());
    told_.hook = {};  // the next thread outlives what it looks at
    EXPECT_EQ(0U, log_.StartPlayback());
}

TEST_F(DataLogEnginePaceTest, CloseDoesNotWaitForTheThread) {
    HoldTheDelivery();
    Play(SmallLog(3, 100));
    ASSERT_TRUE(IsInside());
    EXPECT_NE(0U, log_.Close());
    EXPECT_EQ(kLogClosed, log_.State());
    EXPECT_TRUE(log_.IsPlaying());
    go_ = true;
    ASSERT_TRUE(Ends());
    EXPECT_EQ(kLogClosed, log_.State());
    EXPECT_EQ(0U, told_.CountOf("End"));
}

TEST_F(DataLogEnginePaceTest, CloseThatFailsHasStoppedThePlayback) {
    Play(SmallLog(3, 100));
    ASSERT_TRUE(Waits(1));
    files_.FailWriteAfter(0);
    EXPECT_EQ(0U, log_.Close());
    ASSERT_TRUE(Ends());
    EXPECT_EQ(kLogReady, log_.State());
    EXPECT_EQ(1U, told_.RecordCount());
    EXPECT_NE(0U, log_.Close());
}

TEST_F(DataLogEnginePaceTest, RecordInHandOfAClosedLogIsDropped) {
    Play(SmallLog(3, 100));
    ASSERT_TRUE(Waits(1));
    ASSERT_NE(0U, log_.Close());
    ASSERT_EQ(0U, log_.Open(kPath, kLogForReading));
    clock_.AdvanceMilliseconds(10'000);
    ASSERT_TRUE(Ends());
    EXPECT_EQ(1U, told_.RecordCount());
    EXPECT_EQ(0U, log_.paceBaseMs);
}

TEST_F(DataLogEnginePaceTest, DestructorEndsAnEnormousWait) {
    LogBytes bytes = SmallLogHead();
    files_.Put(kPath, bytes.Record(0, 0, DataOf(0)).Record(0, 0xFFFFFFFF, DataOf(1)).MarkEnd().bytes);
    {
        DataLogEngine log(files_);
        ASSERT_EQ(0U, log.Open(kPath, kLogForReading));
        log.SetCallback(&told_);
        log.speed = 0.0101F;
        ASSERT_EQ(0U, log.StartPlayback());
        ASSERT_TRUE(Waits(1));
    }
    EXPECT_EQ(bytes.bytes, files_.Get(kPath));
}

TEST_F(DataLogEnginePaceTest, SeekDropsTheAwaitedRecordAndGoesOnFromThere) {
    Play(SmallLog(60, 100));
    ASSERT_TRUE(Waits(1));
    ASSERT_EQ(0U, log_.Seek(50, 1));  // stands behind record 49, of 4900 ms
    ASSERT_TRUE(Waits(1));
    ExpectAfter(100);
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(50)}), DeliveredData());
    ASSERT_EQ(0U, log_.Seek(0, 1));
    ASSERT_TRUE(Waits(3));  // the first record is never waited for
    EXPECT_EQ(DataOf(0), DeliveredData().at(2));
    ExpectAfter(100);
    EXPECT_EQ(DataOf(1), DeliveredData().at(3));
}

TEST_F(DataLogEnginePaceTest, SeekFreesAPlaybackFromAnEnormousWait) {
    LogBytes bytes = SmallLogHead();
    Play(bytes.Record(0, 0, DataOf(0)).Record(0, 100, DataOf(1)).Record(0, 0xFFFFFFF0, DataOf(2)).MarkEnd());
    ASSERT_TRUE(Waits(1));
    ExpectAfter(100);
    ASSERT_TRUE(Waits(2));
    ASSERT_EQ(0U, log_.Seek(1, 1));
    ExpectAfter(100);
    EXPECT_EQ((std::vector<Bytes>{DataOf(0), DataOf(1), DataOf(1)}), DeliveredData());
}

TEST_F(DataLogEnginePaceTest, SeekPastTheEndEndsThePlayback) {
    Play(SmallLog(20, 100));
    ASSERT_TRUE(Waits(1));
    EXPECT_EQ(7U, log_.Seek(0xFFFFFFF0, 1));
    ASSERT_TRUE(Ends());
    EXPECT_EQ(1U, told_.RecordCount());
    EXPECT_EQ(1U, told_.CountOf("End"));
}

// A jump while a record is being delivered must not leave that record's time as the pace of the new place.
TEST_F(DataLogEnginePaceTest, SeekFromWithinADeliverySetsThePace) {
    told_.hook = [this](const std::string& word) {
        if (word == "Send 3" && told_.RecordCount() == 1) static_cast<void>(log_.Seek(50, 1));
    };
    Play(SmallLog(60, 100));
    ASSERT_TRUE(Waits(1));
    ExpectAfter(100);
    EXPECT_EQ(DataOf(50), DeliveredData().at(1));
}

TEST_F(DataLogEnginePaceTest, StopIsRequestedWithoutWaiting) {
    Play(SmallLog(1));
    ASSERT_TRUE(Ends());
    EXPECT_EQ(0U, log_.RequestStop());
    EXPECT_EQ(kLogReady, log_.State()) << "came too late";
    HoldTheDelivery();
    Play(SmallLog(1));
    ASSERT_TRUE(IsInside());
    EXPECT_EQ(0U, log_.RequestStop());
    EXPECT_EQ(kLogStopRequested, log_.State());
    EXPECT_TRUE(log_.IsPlaying());
    go_ = true;
    ASSERT_TRUE(Ends());
}

}  // namespace
}  // namespace corvex::test
