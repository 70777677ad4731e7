#include <gtest/gtest.h>

#include "apps/sim/LineFaults.h"
#include "apps/sim/PaceMeter.h"
#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;

TEST(LineFaults, LeavesRepliesAloneUnlessAsked) {
    LineFaults faults(SimOptions{});
    SimStats stats;
    for (int i = 0; i < 100; ++i) {
        Bytes reply{1, 2, 3};
        ASSERT_TRUE(faults.Pass(reply, stats));
        ASSERT_EQ(reply, (Bytes{1, 2, 3}));
    }
    EXPECT_EQ(stats.drops + stats.noise, 0U);
}

TEST(LineFaults, DamagesExactlyOneByteOfEveryReplyItCounts) {
    SimOptions options;
    options.noise = 1.0;
    LineFaults faults(options);
    SimStats stats;
    int lost = 0;
    for (int i = 0; i < 1000; ++i) {
        const Bytes whole{10, 20, 30, 40, 50};
        Bytes reply = whole;
        ASSERT_TRUE(faults.Pass(reply, stats));
        if (reply.size() == 4) {
            ++lost;
            continue;
        }
        int changed = 0;
        for (std::size_t j = 0; j < whole.size(); ++j)
            changed += reply[j] != whole[j] ? 1 : 0;
        ASSERT_EQ(changed, 1);
    }
    EXPECT_EQ(stats.noise, 1000U);
    EXPECT_EQ(stats.cut, static_cast<std::uint64_t>(lost));
    EXPECT_NEAR(lost, 500, 80);
}

TEST(LineFaults, DropsEverythingAtProbabilityOneUntilSoManyReplies) {
    SimOptions options;
    options.drop = options.noise = 1.0;
    options.faultyReplies = 50;
    LineFaults faults(options);
    SimStats stats;
    Bytes reply{1};
    for (int i = 0; i < 60; ++i)
        EXPECT_EQ(faults.Pass(reply, stats), i >= 50) << i;
    EXPECT_EQ(stats.drops, 50U);
    EXPECT_EQ(stats.noise, 0U);
    EXPECT_EQ(reply, Bytes{1});
}

TEST(PaceMeter, ReportsMeanErrorAndNinetyNinthPercentile) {
    PaceMeter meter;
    SimStats stats;
    meter.Report(stats);
    EXPECT_EQ(stats.pacedReplies, 0U);
    for (int i = 1; i <= 200; ++i)
        meter.Add(0.101, 0.1, i / 1000.0);
    meter.Report(stats);
    EXPECT_EQ(stats.pacedReplies, 200U);
    EXPECT_NEAR(stats.meanErrorPercent, 1.0, 1e-9);
    EXPECT_NEAR(stats.lateness99Ms, 198.0, 1e-9);
    EXPECT_NEAR(stats.latenessMaxMs, 200.0, 1e-9);
}

TEST(SimStats, AreTextAndJson) {
    SimStats stats;
    stats.requests = 9;
    stats.replies = 7;
    stats.drops = 2;
    stats.noise = 1;
    EXPECT_EQ(Describe(stats), "requests: 9 replies: 7 drops: 2 noise: 1 cut: 0 packets: 0 frames: 0 unread: 0");
    EXPECT_EQ(DescribeAsJson(stats),
              R"({"requests":9,"replies":7,"drops":2,"noise":1,"cut":0,"packets":0,"frames":0,"unread":0})");
    stats.pacedReplies = 7;
    EXPECT_NE(Describe(stats).find("\npaced replies: 7 mean error: +0.0000 %"), std::string::npos);
}

}  // namespace
}  // namespace corvex
