#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "acquisition/DataAcqStatus.h"
#include "session/diagnosis/ScanSummary.h"

namespace corvex {
namespace {

ReplyEvent At(double t, std::uint32_t code) {
    ReplyEvent event;
    event.t = t;
    event.code = code;
    event.expected = true;
    return event;
}

TEST(ScanSummaryTest, CountsErrorsByCodeAndName) {
    ScanSummary summary;
    for (int i = 0; i < 121; ++i)
        summary.Add(At(i * 0.083, kCodeSuccess));
    summary.Add(At(11.0, kCodeShortReply));
    summary.Add(At(12.0, kCodeShortReply));
    summary.Add(At(13.0, kCodeNoSync));
    EXPECT_EQ(summary.Text(10.0),
              "121 good replies in 10.0 s, 12.05 Hz; 3 errors: 2 times short reply (6), 1 times sync not found (8)");
    EXPECT_EQ(summary.Json(10.0)["codes"]["6"]["count"], 2);
    EXPECT_EQ(summary.Json(10.0)["rate"], 12.048);
}

TEST(ScanSummaryTest, HoldsNoStopAgainstAnybodyAndCountsNoReplyWhereNoneIsExpected) {
    ScanSummary summary;
    ReplyEvent sent = At(0.5, kCodeSuccess);
    sent.expected = false;
    summary.Add(At(0.5, kCodeStopped));
    summary.Add(sent);
    EXPECT_EQ(summary.Text(1.0), "0 good replies in 1.0 s, 0.00 Hz; no errors");
    EXPECT_EQ(summary.Good(), 0U);
    EXPECT_LT(summary.LastGood(), 0.0);
    summary.Add(At(5.0, kCodeSuccess));
    EXPECT_EQ(summary.Rate(), 0.0);  // none before the second reply
    EXPECT_EQ(summary.LastGood(), 5.0);
}

}  // namespace
}  // namespace corvex
