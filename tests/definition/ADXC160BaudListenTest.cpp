#include <gtest/gtest.h>

#include "definition/ADXC160BaudListen.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXC160BaudListen, StartsWithItsDefaults) {
    const ADXC160BaudListen command;
    EXPECT_EQ(command.GetType(), 0x00100000u);
    EXPECT_EQ(command.flags, 0u);
    EXPECT_EQ(command.packetsize, 0u);
}

TEST(ADXC160BaudListen, WritesItself) {
    ADXC160BaudListen command;
    command.SetId("A");
    command.flags = 0x10;
    command.packetsize = 20;
    EXPECT_EQ(test::WrittenText(command),
              "<ADXCLISTEN160BAUD id=\"A\" idhash=\"0x86F344BB\" title=\"\" flags=\"0x00000010\">\n"
              "    <packetsize>20</packetsize>\n"
              "</ADXCLISTEN160BAUD>\n");
}

TEST(ADXC160BaudListen, NeedsAWriter) {
    EXPECT_EQ(ADXC160BaudListen().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
