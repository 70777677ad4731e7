// A recording process that is killed at any moment: every sample is accounted for.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <filesystem>
#include <random>

#include "logging/LogWalk.h"
#include "tests/logging/LogTestHelper.h"
#include "tests/support/PeerProcess.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

constexpr int kKills = 200;
// The long ones are more than a page, so that a kill can cut a write in two.
constexpr std::array<std::uint32_t, 5> kSizes = {63, 1, 12, 300, 9000};

std::uint32_t ItemOf(std::uint32_t i) {
    if (i % 16 == 15) return 4;
    return i * 7 % 11 % 4;
}

// Sample i, which begins with its number where it is long enough to hold one.
Bytes SampleOf(std::uint32_t i) {
    Bytes data(kSizes[ItemOf(i)]);
    for (std::size_t at = 0; at < data.size(); ++at)
        data[at] = static_cast<std::uint8_t>(at < 4 ? i >> (8 * at) : i * 13 + at);
    return data;
}

struct Progress {
    std::atomic<std::uint32_t> finished;  // samples that AddSample has returned 0 for
    std::atomic<std::uint32_t> mistakes;
};

bool BeginRecording(DataLogEngine& log, const std::string& path) {
    if (log.Open(path.c_str(), kLogForWriting) != kLogSuccess) return false;
    for (std::uint32_t item = 0; item < kSizes.size(); ++item)
        static_cast<void>(log.AddItem(MakeItem(100 + item, kSizes[item])));
    return log.StartRecording() == kLogSuccess;
}

std::uint32_t Add(DataLogEngine& log, std::uint32_t i) {
    const Bytes sample = SampleOf(i);
    return log.AddSample(100 + ItemOf(i), sample.data(), static_cast<std::uint32_t>(sample.size()));
}

int RecordUntilKilled(const std::string& path, Progress& progress) {
    DataLogEngine log;
    if (!BeginRecording(log, path)) ++progress.mistakes;
    for (std::uint32_t i = 0; progress.mistakes == 0; ++i) {
        if (Add(log, i) != kLogSuccess) ++progress.mistakes;
        progress.finished.store(i + 1);
    }
    return 1;
}

class KillTest : public ::testing::Test {
protected:
    // How many records there are; each must be the sample of its number.
    std::uint32_t CheckRecords() const {
        DataLogEngine log;
        EXPECT_EQ(0U, log.Open(path_.c_str(), kLogForLooking));
        LogWalk walk(log);
        std::uint32_t i = 0, time = 0;
        for (; walk.Next(); ++i) {
            const Bytes expected = SampleOf(i);
            const bool same = walk.Item().packedSize == expected.size() &&
                              std::equal(expected.begin(), expected.end(), walk.Packed());
            EXPECT_TRUE(same) << "record " << i;
            EXPECT_LE(time, walk.Record().timeMs);
            if (!same) break;
            time = walk.Record().timeMs;
        }
        EXPECT_EQ(7U, walk.Result());
        return i;
    }
    const TestFolder folder_;
    const std::string path_ = folder_.Name("drive.xdl");
};

// `delay` in counts of the clock, from the first sample on or from the very beginning.
std::uint32_t RecordAndKill(const std::string& path, std::int64_t delay, bool fromFirstSample) {
    const SharedMemory<Progress> progress;
    IClock& clock = SystemClock();
    PeerProcess peer([&] { return RecordUntilKilled(path, *progress); });
    while (fromFirstSample && progress->finished == 0 && progress->mistakes == 0) {
    }
    SleepUntil(clock.Counter() + delay);
    peer.Kill();
    EXPECT_EQ(0U, progress->mistakes);
    return progress->finished;
}

TEST_F(KillTest, EverySampleOfAKilledRecordingIsReadBack) {
    std::mt19937 random(20260701);
    const std::int64_t frequency = SystemClock().Frequency();
    std::uint64_t samples = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        const bool early = kill % 10 == 0;
        const std::int64_t longest = early ? frequency / 1000 : frequency / 50;
        const std::uint32_t finished =
            RecordAndKill(path_, static_cast<std::int64_t>(random()) % (longest + 1), !early);
        DataLogEngine probe;
        // Without a finished sample there may be no table yet, or no file.
        const bool readable = probe.Open(path_.c_str(), kLogForLooking) == kLogSuccess;
        ASSERT_TRUE(readable || finished == 0) << "kill " << kill;
        if (readable) {
            const std::uint32_t records = CheckRecords();
            ASSERT_LE(finished, records) << "kill " << kill;
            ASSERT_GE(finished + 1, records) << "kill " << kill;
            samples += records;
        }
        std::filesystem::remove(path_);
        ASSERT_FALSE(HasFailure()) << "kill " << kill;
    }
    EXPECT_LT(1000U, samples);
}

}  // namespace
}  // namespace corvex::test
