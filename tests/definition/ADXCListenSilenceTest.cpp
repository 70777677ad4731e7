#include <gtest/gtest.h>

#include "definition/ADXCListenSilence.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXCListenSilence, StartsWithItsDefaults) {
    const ADXCListenSilence command;
    EXPECT_EQ(command.GetType(), 0x00040000u);
    EXPECT_EQ(command.silencelen, 0u);
    EXPECT_EQ(command.totaltimeout, 400u);
}

TEST(ADXCListenSilence, WritesItself) {
    ADXCListenSilence command;
    command.SetId("RPM");
    command.SetTitle("Quiet", 5);
    command.SetDesc("Wait", 4);
    command.silencelen = 20;
    EXPECT_EQ(test::WrittenText(command),
              "<ADXCLISTENSILENCE id=\"RPM\" idhash=\"0xCD0CD1DB\" title=\"Quiet\">\n"
              "    <desc>Wait</desc>\n"
              "    <silencelen>20</silencelen>\n"
              "    <totaltimeout>400</totaltimeout>\n"
              "</ADXCLISTENSILENCE>\n");
}

TEST(ADXCListenSilence, NeedsAWriter) {
    EXPECT_EQ(ADXCListenSilence().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
