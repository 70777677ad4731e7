#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXMonitor.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXMonitor, StartsWithItsDefaults) {
    const ADXMonitor monitor;
    EXPECT_EQ(monitor.GetType(), 0x00000020u);
    EXPECT_EQ(monitor.flags, 0u);
    EXPECT_EQ(monitor.GetEntryCount(), 0u);
    const ADXMONSERIES series;
    EXPECT_EQ(series.flags, 0u);
    EXPECT_EQ(series.linecolor, 0u);
    EXPECT_EQ(series.axiscolor, 0u);
    EXPECT_EQ(series.linewidth, 1u);
    EXPECT_EQ(series.linetype, 0u);
    EXPECT_EQ(series.item, nullptr);
    EXPECT_EQ(series.itemidhash, 0u);
}

TEST(ADXMonitor, WritesItsSeries) {
    ADXBitmask item;
    item.SetId("RPM");
    ADXMonitor monitor;
    monitor.SetId("A");
    monitor.flags = 1;
    ADXMONSERIES series;
    series.flags = 0x12345;
    series.linewidth = 3;
    series.linetype = 2;
    series.linecolor = 0xFF;
    series.axiscolor = 0x12FFFFFF;
    series.item = &item;
    monitor.AddEntry(&series);
    series = ADXMONSERIES();
    series.flags = 0x10000;
    monitor.AddEntry(&series);
    EXPECT_EQ(test::WrittenText(monitor),
              "<ADXMONITOR id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <flags>0x00000001</flags>\n"
              "    <entrycount>2</entrycount>\n"
              "    <ADXMONSERIES flags=\"0x2345\" linewidth=\"3\" linetype=\"2\" linecolor=\"0x0000FF\""
              " axiscolor=\"0x12FFFFFF\" itemidhash=\"0xCD0CD1DB\" />\n"
              "    <ADXMONSERIES linecolor=\"0x000000\" axiscolor=\"0x000000\" />\n"
              "</ADXMONITOR>\n");
}

TEST(ADXMonitor, NeedsAWriter) {
    EXPECT_EQ(ADXMonitor().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
