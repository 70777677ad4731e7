// An engine that goes away and comes back on its link, while a session scans and records it.
#include <gtest/gtest.h>

#include <filesystem>

#include "apps/sim/SimulatorSession.h"
#include "logging/LogWalk.h"
#include "session/SessionState.h"
#include "tests/support/AttackRounds.h"
#include "tests/support/Eventually.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

using OutageBytes = std::vector<std::uint8_t>;

std::ptrdiff_t OpenFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

// What was shown, in order; each once it had been shown.
struct Shown {
    std::mutex lock;
    std::vector<OutageBytes> replies;
    std::atomic<std::size_t> count{0};
    std::atomic<unsigned> goings{0}, comings{0};

    SessionCalls Calls() {
        SessionCalls calls;
        calls.replyEnded = [this](const DataAcqStatus& status, PacketView reply) {
            if (status.code != kCodeSuccess || !reply) return;
            const std::lock_guard guard(lock);
            replies.emplace_back(reply.Bytes(), reply.Bytes() + reply.Size());
            ++count;
        };
        calls.deviceVanished = [this](const std::string&) { ++goings; };
        calls.deviceBack = [this] { ++comings; };
        return calls;
    }
};

TEST(OutageTest, EveryReplyThatWasShownIsInTheOneLog) {
    const unsigned rounds = AttackRounds(10);
    const TestFolder folder;
    FixedProgramPlace place(folder);
    const ScopedProgramPlace scope(place);
    Shown shown;
    SessionState session(shown.Calls());
    char error[ADXDefinition::kErrorSize] = {};
    ASSERT_NE(session.definition.Load(CORVEX_SOURCE_DIR "/examples/harrier-8192.adx", error), 0) << error;
    const std::string link = folder.Name("line");
    std::snprintf(session.settings.comport, sizeof session.settings.comport, "%s", link.c_str());
    session.RecordCommand();
    SimulatorSession engine;
    std::string why;
    engine.Start(session.definition, {}, OpenTerminalLine(link, why));
    session.ToggleScan();
    std::ptrdiff_t files = 0;
    for (unsigned round = 0;; ++round) {
        const std::size_t before = shown.count;
        ASSERT_TRUE(Eventually([&] { return shown.count > before + 20; })) << "round " << round;
        if (round == 1) files = OpenFiles();
        if (round == rounds) break;
        engine.Stop();
        ASSERT_TRUE(Eventually([&] { return shown.goings == round + 1; }));
        engine.Start(session.definition, {}, OpenTerminalLine(link, why));
    }
    EXPECT_EQ(files, OpenFiles());
    EXPECT_EQ(rounds, shown.comings);
    session.StartStopThread(kStopScan);
    ASSERT_TRUE(session.WaitForThreads(std::chrono::seconds(60)));
    EXPECT_EQ(kLogSuccess, session.log.StopRecording());
    EXPECT_NE(0U, session.log.Close());

    DataLogEngine log;
    ASSERT_EQ(kLogSuccess, log.Open(folder.Name("temp.xdl").c_str(), kLogForLooking));
    EXPECT_EQ(shown.replies.size(), log.header.sampleCount);
    std::size_t records = 0, gaps = 0;
    std::uint32_t last = 0;
    for (LogWalk walk(log); walk.Next() && records < shown.replies.size(); ++records) {
        ASSERT_EQ(shown.replies[records], OutageBytes(walk.Packed(), walk.Packed() + walk.Item().packedSize));
        ASSERT_GE(walk.Record().timeMs, last);
        gaps += walk.Record().timeMs - last >= 1000 ? 1 : 0;
        last = walk.Record().timeMs;
    }
    EXPECT_EQ(shown.replies.size(), records);
    EXPECT_EQ(rounds, gaps);
    std::printf("%u outages, %zu replies, %u errors\n", rounds, records, session.errorCount.load());
}

}  // namespace
}  // namespace corvex::test
