#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "definition/ADXCListenChatter.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXCListenChatter, StartsWithItsDefaults) {
    const ADXCListenChatter command;
    EXPECT_EQ(command.GetType(), 0x00080000u);
    EXPECT_EQ(command.listentimeout, 400u);
    EXPECT_EQ(command.bytestring(), nullptr);
    EXPECT_EQ(command.size(), 0u);
    EXPECT_EQ(command.flags, 0u);
}

TEST(ADXCListenChatter, WritesItsPatternWithADecimalSize) {
    ADXCListenChatter command;
    command.SetId("A");
    const std::vector<std::uint8_t> bytes(10, 0x0F);
    command.SetBytes(bytes.data(), 10);
    command.flags = 0x80000000;
    EXPECT_EQ(test::WrittenText(command),
              "<ADXCLISTENCHATTER id=\"A\" idhash=\"0x86F344BB\" title=\"\" flags=\"0x80000000\">\n"
              "    <listentimeout>400</listentimeout>\n"
              "    <bytestring size=\"10\">0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F </bytestring>\n"
              "</ADXCLISTENCHATTER>\n");
}

TEST(ADXCListenChatter, WritesAtMost51Bytes) {
    ADXCListenChatter command;
    const std::vector<std::uint8_t> bytes(60, 0x55);
    command.SetBytes(bytes.data(), 51);
    EXPECT_EQ(test::Count(test::WrittenText(command), "0x55 "), 51u);
    command.SetBytes(bytes.data(), 60);
    EXPECT_EQ(test::Count(test::WrittenText(command), "0x55 "), 51u);
    EXPECT_EQ(test::Count(test::WrittenText(command), "0x55 </bytestring>"), 1u);
}

TEST(ADXCListenChatter, WritesAnEmptyPattern) {
    EXPECT_NE(test::WrittenText(ADXCListenChatter()).find("    <bytestring size=\"0\"></bytestring>\n"),
              std::string::npos);
}

TEST(ADXCListenChatter, NeedsAWriter) {
    EXPECT_EQ(ADXCListenChatter().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
