// How a recording gets to the disk while it goes on.
#include <gtest/gtest.h>

#include "logging/RecordingSync.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/Eventually.h"
#include "tests/support/HeldSyncs.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

class RecordingSyncTest : public ::testing::Test {
protected:
    ~RecordingSyncTest() override { files_.Release(); }

    void Begin() {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
        ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 3)));
        ASSERT_EQ(0U, log_.StartRecording());
    }
    std::uint32_t Add() { return log_.AddSample(kId, DataOf(1).data(), 3); }
    // As long as another one, with something new all the time, takes for two syncs.
    static void AwaitTwoSyncs() {
        MemoryFiles memory;
        HeldSyncs files(memory);
        files.Release();
        WorkerThreads workers;
        const auto sync = std::make_shared<RecordingSync>(files.Open(kPath, FileAccess::kCreate)->OpenSync());
        ASSERT_TRUE(sync->Begin(workers));
        EXPECT_TRUE(Eventually([&] {
            sync->Note();
            return files.Begun() >= 2;
        }));
        sync->End();
        workers.Wait();
    }

    MemoryFiles memory_;
    HeldSyncs files_{memory_};
    DataLogEngine log_{files_};
};

// A disk that takes its time must not hold the one who polls, nor a sample that came after the sync had begun.
TEST_F(RecordingSyncTest, SyncThatTakesLongHoldsNobody) {
    Begin();
    for (unsigned begun = 1; begun <= 3; ++begun) {
        ASSERT_EQ(0U, Add());
        ASSERT_TRUE(Eventually([&] { return files_.Begun() == begun; }));
    }
    EXPECT_EQ(0U, files_.Done());
    EXPECT_EQ(0U, log_.StopRecording());
    EXPECT_NE(0U, log_.Close());
    EXPECT_TRUE(log_.IsSyncing());
    files_.Release();
    log_.WaitForSync();
    EXPECT_FALSE(log_.IsSyncing());
    EXPECT_EQ(4U, files_.Done());  // the end of the recording as well
    EXPECT_FALSE(log_.SyncFailed());
}

TEST_F(RecordingSyncTest, NothingNewIsNotSynced) {
    files_.Release();
    Begin();
    AwaitTwoSyncs();
    EXPECT_EQ(0U, files_.Begun());
}

TEST_F(RecordingSyncTest, SaysWhatTheDiskDidNotTake) {
    files_.fails = true;
    files_.Release();
    Begin();
    ASSERT_EQ(0U, Add());
    EXPECT_FALSE(log_.SyncFailed());
    EXPECT_TRUE(Eventually([&] { return log_.SyncFailed(); }));
    ASSERT_EQ(0U, log_.Open(kPath, kLogForLooking));
    EXPECT_FALSE(log_.SyncFailed());
}

// The thread must not be waited for in vain.
TEST_F(RecordingSyncTest, RecordingThatCannotBeEndedIsSyncedAllTheSame) {
    files_.Release();
    Begin();
    ASSERT_EQ(0U, Add());
    memory_.failSize = true;
    EXPECT_EQ(kLogFileError, log_.StopRecording());
    log_.WaitForSync();
    EXPECT_EQ(1U, files_.Done());
    memory_.failSize = false;
}

TEST_F(RecordingSyncTest, DiskThatIsFarBehindGetsNoMore) {
    WorkerThreads workers;
    const auto sync = std::make_shared<RecordingSync>(files_.Open(kPath, FileAccess::kCreate)->OpenSync());
    ASSERT_TRUE(sync->Begin(workers));
    ASSERT_TRUE(Eventually([&] {
        sync->Note();
        return files_.Begun() == RecordingSync::kMostAtOnce;
    }));
    AwaitTwoSyncs();
    EXPECT_EQ(RecordingSync::kMostAtOnce, files_.Begun());
    files_.Release();
    EXPECT_TRUE(Eventually([&] { return files_.Begun() == RecordingSync::kMostAtOnce + 1; }));
    sync->End();
    workers.Wait();
}

}  // namespace
}  // namespace corvex::test
