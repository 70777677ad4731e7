#include <gtest/gtest.h>

#include <thread>

#include "definition/ADXCSendCommand.h"
#include "session/base/StopWatch.h"
#include "session/diagnosis/LinkWatch.h"
#include "tests/support/VirtualClock.h"

namespace corvex {
namespace {

class LinkWatchTest : public testing::Test {
protected:
    LinkWatchTest() { command_.flags = 1; }
    void Add(LinkWatch& watch, std::uint32_t source) {
        constexpr std::uint8_t kReply[] = {1, 2};
        DataAcqStatus status;
        status.source = source;
        status.command = &command_;
        watch.Add(status, PacketView(kReply, 2), {false, 8192, 0});
    }

    ADXCSendCommand command_;
};

TEST_F(LinkWatchTest, FollowsTheScanOnItsOwnClock) {
    test::VirtualClock clock;
    const ScopedClock scope(clock);
    LinkWatch watch;
    watch.Begin("COM3", true);
    EXPECT_EQ(watch.State(true).word, "connecting");
    Add(watch, 1);
    EXPECT_EQ(watch.State(true).word, "connecting") << "a log brings nothing of the line";
    clock.AdvanceMilliseconds(1000);
    Add(watch, 0);
    clock.AdvanceMilliseconds(250);
    EXPECT_EQ(watch.State(true).text, "good, last reply 0.25 s ago");
    watch.Vanish("gone");
    EXPECT_EQ(watch.State(true).word, "lost-port");
    watch.Return();
    EXPECT_NE(watch.Report(true).find("8192 baud asked for, not read back"), std::string::npos);
    watch.Refuse("no such port");
    EXPECT_EQ(watch.State(false).word, "no-port");
}

TEST_F(LinkWatchTest, IsToldAndAskedAtOnce) {
    LinkWatch watch;
    watch.Begin("COM3", true);
    std::thread worker([&] {
        for (int i = 0; i < 2000; ++i)
            Add(watch, 0);
    });
    for (int i = 0; i < 200; ++i)
        EXPECT_FALSE(watch.State(true).text.empty());
    worker.join();
    EXPECT_NE(watch.Report(true).find("2000 whole replies"), std::string::npos);
}

}  // namespace
}  // namespace corvex
