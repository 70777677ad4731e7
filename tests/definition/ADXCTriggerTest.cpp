#include <gtest/gtest.h>

#include "definition/ADXCTrigger.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXCTrigger, StartsWithItsDefaults) {
    const ADXCTrigger command;
    EXPECT_EQ(command.GetType(), 0x00200000u);
    EXPECT_EQ(command.triggertype, 0u);
    EXPECT_EQ(command.flags, 0u);
}

TEST(ADXCTrigger, WritesItself) {
    ADXCTrigger command;
    command.SetId("A");
    command.flags = 2;
    command.triggertype = 0x1E;
    EXPECT_EQ(test::WrittenText(command),
              "<ADXCTRIGGER id=\"A\" idhash=\"0x86F344BB\" title=\"\" flags=\"0x00000002\">\n"
              "    <triggertype>0x0000001E</triggertype>\n"
              "</ADXCTRIGGER>\n");
}

TEST(ADXCTrigger, NeedsAWriter) {
    EXPECT_EQ(ADXCTrigger().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
