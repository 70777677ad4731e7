#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "controls/datachart/DataChartModel.h"
#include "views/MonitorScrollModel.h"
#include "views/MonitorTimeModel.h"

namespace corvex {
namespace {

std::string Label(float seconds, std::uint32_t capacity = 30) {
    DataChartModel chart;
    char text[31] = "";
    std::uint32_t length = capacity;
    FormatMonitorTime(nullptr, *chart.AddAxis(), seconds, text, &length);
    return {text, length};
}

TEST(MonitorTimeModelTest, LabelsAreMinutesAndSeconds) {
    const std::pair<float, const char*> kCases[] = {{0, "0:00"},     {59, "0:59"},   {59.9f, "0:59"}, {60, "1:00"},
                                                    {3599, "59:59"}, {3600, "0:00"}, {3661, "1:01"},  {-0.5f, "-0:00"},
                                                    {-5, "-0:05"},   {-65, "-1:05"}, {-3600, "-0:00"}};
    for (const auto& [seconds, label] : kCases)
        EXPECT_EQ(Label(seconds), label) << seconds;
}

TEST(MonitorTimeModelTest, NoTimeIsTooFar) {
    for (const float odd : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(), 3e38f,
                            std::numeric_limits<float>::quiet_NaN()})
        EXPECT_LE(Label(odd).size(), 6u) << odd;
}

TEST(MonitorTimeModelTest, WhatDoesNotFitHasNoLength) {
    EXPECT_EQ(Label(60, 5), "1:00");
    EXPECT_EQ(Label(60, 4), "") << "the terminator counts";
    EXPECT_EQ(Label(60, 1), "");
}

TEST(MonitorScrollModelTest, IsNeededWhenATimeIsNoLongerOnShow) {
    EXPECT_FALSE(NeedsMonitorScroll({0, 20, 0, 20}));
    EXPECT_TRUE(NeedsMonitorScroll({4, 24, 0, 24}));
    EXPECT_TRUE(NeedsMonitorScroll({0, 20, 0, 24}));
}

TEST(MonitorScrollModelTest, TheNumbersMixMillisecondsAndSeconds) {
    const MonitorScroll scroll = MonitorScrollOf({4.5f, 24.9f, 0, 24.9f});
    EXPECT_EQ(scroll.maximum, 24000 - 20);
    EXPECT_EQ(scroll.page, 20000);
    EXPECT_EQ(scroll.position, 24000);
    EXPECT_EQ(MonitorTimeAt(24500), 24.5f);
}

TEST(MonitorScrollModelTest, NumbersTooLargeAreCut) {
    const MonitorScroll scroll = MonitorScrollOf({0, 4294968, 0, 4294968});
    EXPECT_EQ(scroll.position, 704) << "4294968000 in 32 bits";
    for (const float odd : {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN(), 3e38f})
        EXPECT_EQ(MonitorScrollOf({0, odd, 0, odd}).maximum, 0);
}

}  // namespace
}  // namespace corvex
