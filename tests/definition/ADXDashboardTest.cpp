#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXDashboard.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXDashboard, StartsWithItsDefaults) {
    const ADXDashboard dash;
    EXPECT_EQ(dash.GetType(), 0x00000010u);
    EXPECT_EQ(dash.flags, 0u);
    EXPECT_EQ(dash.GetEntryCount(), 0u);
}

TEST(ADXDashboard, CoversTheWholePageWithANewGauge) {
    ADXDashboard dash;
    dash.SetEntryCount(1);
    const ADXDGENTRY& gauge = *dash.GetEntry(0);
    EXPECT_EQ(gauge.top, 0u);
    EXPECT_EQ(gauge.left, 0u);
    EXPECT_EQ(gauge.bottom, 100u);
    EXPECT_EQ(gauge.right, 100u);
    EXPECT_EQ(gauge.gaugetype, 0u);
    EXPECT_EQ(gauge.item, nullptr);
    EXPECT_EQ(gauge.itemidhash, 0u);
}

TEST(ADXDashboard, WritesItsGauges) {
    ADXBitmask item;
    item.SetId("RPM");
    ADXDashboard dash;
    dash.SetId("A");
    dash.flags = 0x20;
    ADXDGENTRY gauge;
    gauge.gaugetype = 2;
    gauge.flags = 4;
    gauge.left = 10;
    gauge.top = 20;
    gauge.right = 30;
    gauge.bottom = 40;
    gauge.item = &item;
    dash.AddEntry(&gauge);
    // A link that leads nowhere is not saved.
    gauge = ADXDGENTRY();
    gauge.itemidhash = 0x99;
    dash.AddEntry(&gauge);
    EXPECT_EQ(test::WrittenText(dash),
              "<ADXDASHBOARD id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <flags>0x00000020</flags>\n"
              "    <entrycount>2</entrycount>\n"
              "    <ADXDGENTRY gaugetype=\"2\" flags=\"0x00000004\" itemidhash=\"0xCD0CD1DB\" left=\"10\" top=\"20\""
              " right=\"30\" bottom=\"40\" />\n"
              "    <ADXDGENTRY gaugetype=\"0\" left=\"0\" top=\"0\" right=\"100\" bottom=\"100\" />\n"
              "</ADXDASHBOARD>\n");
}

TEST(ADXDashboard, NeedsAWriter) {
    EXPECT_EQ(ADXDashboard().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
