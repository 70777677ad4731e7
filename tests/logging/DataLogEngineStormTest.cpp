// Everything that may happen to a playback at once, a hundred times. Says most under ThreadSanitizer.
#include <thread>

#include "platform/Clock.h"
#include "tests/logging/PlaybackFixture.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kRecords = 400;

class DataLogEngineStormTest : public ::testing::Test {
protected:
    // From a thread of its own, like a slider that is dragged while the keys are pressed.
    void SeekAbout(std::uint32_t seed) {
        while (!done_.load()) {
            seed = seed * 1664525 + 1013904223;
            const std::uint32_t flags = (seed >> 8U & 1U) | (seed >> 9U & 1U) * 0x200U | (seed % 16 == 0 ? 4U : 0U);
            const std::uint32_t result = log_.Seek(seed >> 16U & 0x1FFU, flags);
            EXPECT_TRUE(result == 0 || result == 3 || result == 7 || result == 10) << result;
            ++seeks_;
            // A hand leaves pauses too. Without one the lock is free for no time, and as nothing makes it fair, the
            // playback may never get its turn.
            SleepUntil(SystemClock().Counter() + SystemClock().Frequency() / 5000);
        }
    }
    void StartWhenItCan() {
        ASSERT_TRUE(Eventually([this] { return !log_.IsPlaying(); }));
        if (log_.State() == kLogReady) {
            EXPECT_EQ(0U, log_.StartPlayback());
        }
    }
    void Storm(std::uint32_t number) {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForReading));
        log_.speed = number % 3 == 0 ? 0.0F : 4.0F;
        StartWhenItCan();
        for (std::uint32_t i = 0; i < 3; ++i) {
            const std::uint64_t seeks = seeks_;
            ASSERT_TRUE(Eventually([&] { return seeks_ > seeks; }));
            static_cast<void>(log_.RequestStop());
            static_cast<void>(log_.IsPlaying() ? log_.CurrentTime() : log_.sampleIndex.load());
            StartWhenItCan();
            log_.speed = i % 2 == 0 ? 0.25F : 0.0F;
        }
        if (number % 2 == 0) {
            EXPECT_NE(0U, log_.Close());
        }
    }

    LogCallbackRecorder told_;
    MemoryFiles files_;
    DataLogEngine log_{files_};
    std::atomic<bool> done_{false};
    std::atomic<std::uint64_t> seeks_{0};
};

TEST_F(DataLogEngineStormTest, HundredStormsLeaveTheLogWhole) {
    const Bytes whole = SmallLog(kRecords, 2).bytes;
    files_.Put(kPath, whole);
    ASSERT_EQ(0U, log_.Open(kPath, kLogForReading));
    log_.SetCallback(&told_);
    std::thread seeker([this] { SeekAbout(7); });
    for (std::uint32_t i = 0; i < 100; ++i)
        Storm(i);
    done_ = true;
    seeker.join();
    ASSERT_NE(0U, log_.Close());
    ASSERT_TRUE(Eventually([this] { return !log_.IsPlaying(); }));
    EXPECT_EQ(kLogClosed, log_.State());
    EXPECT_EQ(whole, files_.Get(kPath));
    // Whatever was delivered is a record of the log.
    EXPECT_LT(0U, told_.RecordCount());
    for (const LogCallbackRecorder::Delivered& record : told_.Records()) {
        ASSERT_EQ(3U, record.bytes.size());
        const std::uint32_t i = record.bytes[0] | static_cast<std::uint32_t>(record.bytes[1]) << 8U;
        ASSERT_GT(kRecords, i);
        ASSERT_EQ(DataOf(i), record.bytes);
    }
}

// The main thread stops and closes while the connect thread goes on adding samples.
TEST_F(DataLogEngineStormTest, SamplesInFlightMeetTheCloseWithoutHarm) {
    for (std::uint32_t round = 0; round < 50; ++round) {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
        ASSERT_EQ(0U, log_.AddItem(MakeItem(kId, 3)));
        ASSERT_EQ(0U, log_.StartRecording());
        std::atomic<std::uint32_t> added{0};
        std::thread connect([&] {
            for (;;) {
                const std::uint32_t result = log_.AddSample(kId, DataOf(added).data(), 3);
                if (result == kLogWrongState) return;
                ASSERT_EQ(0U, result);
                ++added;
            }
        });
        ASSERT_TRUE(Eventually([&] { return added > round; }));
        if (round % 2 == 0) {
            EXPECT_EQ(0U, log_.StopRecording());
        }
        EXPECT_NE(0U, log_.Close());
        connect.join();
        DataLogEngine reader(files_);
        ASSERT_EQ(0U, reader.Open(kPath, kLogForLooking));
        EXPECT_EQ(added, reader.header.sampleCount);
        EXPECT_EQ(added, ReadRest(reader).size());
        EXPECT_EQ(files_.Get(kPath).size() + 1, reader.header.endMark);
    }
}

}  // namespace
}  // namespace corvex::test
