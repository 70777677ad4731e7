#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

class ADXBitmaskTest : public testing::Test {
protected:
    int IsSet(std::uint8_t word) { return bitmask.IsSet(definition, PacketView(&word, 1)); }

    ADXDefinition definition;
    ADXBitmask bitmask;
};

TEST_F(ADXBitmaskTest, StartsWithItsDefaults) {
    EXPECT_EQ(bitmask.GetType(), 0x00000008u);
    EXPECT_EQ(bitmask.flags, 0u);
    EXPECT_EQ(bitmask.parentcmdidhash, 0u);
    EXPECT_EQ(bitmask.packetoffset, 0u);
    EXPECT_EQ(bitmask.sizeinbits, 8u);
    EXPECT_EQ(bitmask.operand, 0u);
    EXPECT_EQ(bitmask.result, 0u);
    EXPECT_EQ(bitmask.bitop, 0u);
    EXPECT_EQ(bitmask.alarmonsetcolor, 255u);
    EXPECT_EQ(bitmask.alarmonnotsetcolor, 65280u);
}

TEST_F(ADXBitmaskTest, IsAlwaysSetByDefault) {
    EXPECT_EQ(IsSet(0x00), 1);
    EXPECT_EQ(IsSet(0xFF), 1);
    EXPECT_EQ(bitmask.IsSet(definition, nullptr), 1);
}

TEST_F(ADXBitmaskTest, ComparesTheMaskedWord) {
    bitmask.operand = bitmask.result = 0x80;
    EXPECT_EQ(IsSet(0xFF), 1);
    EXPECT_EQ(IsSet(0x7F), 0);
}

TEST_F(ADXBitmaskTest, ALookAtAnotherPacketLeavesTheWord) {
    bitmask.operand = bitmask.result = 0x80;
    const std::uint8_t set = 0xFF, clear = 0x7F;
    EXPECT_EQ(IsSet(set), 1);
    EXPECT_EQ(bitmask.WouldBeSet(PacketView(&clear, 1)), 0);
    EXPECT_EQ(bitmask.WouldBeSet(nullptr), 1);
    EXPECT_EQ(bitmask.IsSet(definition, nullptr), 1);
}

TEST_F(ADXBitmaskTest, ShiftsNothing) {
    bitmask.operand = 0x80;
    bitmask.result = 1;
    EXPECT_EQ(IsSet(0xFF), 0);
}

TEST_F(ADXBitmaskTest, ComparesTheExclusiveOr) {
    bitmask.bitop = ADXBitmask::kXor;
    bitmask.operand = 0x0F;
    for (unsigned word = 0; word < 256; ++word) {
        EXPECT_EQ(IsSet(static_cast<std::uint8_t>(word)), word == 0x0F) << word;
    }
}

TEST_F(ADXBitmaskTest, FailsForAnyOtherOperation) {
    bitmask.bitop = 2;
    EXPECT_EQ(IsSet(0), 0);
}

TEST_F(ADXBitmaskTest, ReadsWordsAsValuesDo) {
    const std::uint8_t bytes[] = {0x00, 0x12, 0x34};
    const PacketView packet(bytes, 3);
    bitmask.sizeinbits = 16;
    EXPECT_EQ(bitmask.GetRaw(packet), 0x0012u);
    EXPECT_EQ(bitmask.GetRaw(packet, 1, kReadAtOffset), 0x1234u);
    EXPECT_EQ(bitmask.GetRaw(packet, 1, kReadAtOffset | kReadNoSwap), 0x3412u);
    bitmask.flags = ADXBitmask::kLowByteFirst;
    bitmask.packetoffset = 1;
    EXPECT_EQ(bitmask.GetRaw(packet), 0x3412u);
    EXPECT_EQ(bitmask.GetRaw(nullptr), 0x3412u);
    bitmask.packetoffset = 2;
    EXPECT_EQ(bitmask.GetRaw(packet), 0x3412u);
}

TEST_F(ADXBitmaskTest, ShowsTheTextThatBelongsToTheTest) {
    bitmask.operand = bitmask.result = 1;
    bitmask.SetTrueString("Open loop", 9);
    bitmask.SetFalseString("Closed", 6);
    char text[8];
    const std::uint8_t set = 1;
    EXPECT_EQ(bitmask.GetText(text, sizeof text, definition, PacketView(&set, 1)), 1);
    EXPECT_STREQ(text, "Open lo");
    const std::uint8_t notSet = 0;
    EXPECT_EQ(bitmask.GetText(text, sizeof text, definition, PacketView(&notSet, 1)), 0);
    EXPECT_STREQ(text, "Closed");
    EXPECT_EQ(bitmask.GetText(nullptr, 0, definition, PacketView(&set, 1)), 1);
}

TEST_F(ADXBitmaskTest, TellsWhichAlarmsAreEnabled) {
    std::uint32_t color = 0;
    EXPECT_EQ(bitmask.GetAlarmOnSet(&color), 0u);
    EXPECT_EQ(color, 255u);
    EXPECT_EQ(bitmask.GetAlarmOnNotSet(&color), 0u);
    EXPECT_EQ(color, 65280u);
    bitmask.flags = 0xC;
    EXPECT_EQ(bitmask.GetAlarmOnSet(nullptr), 4u);
    EXPECT_EQ(bitmask.GetAlarmOnNotSet(nullptr), 8u);
}

TEST_F(ADXBitmaskTest, KnowsTwoColours) {
    bitmask.SetColor(1, 0x112233);
    bitmask.SetColor(2, 0x445566);
    bitmask.SetColor(3, 0x778899);
    EXPECT_EQ(bitmask.GetColor(1), 0x112233u);
    EXPECT_EQ(bitmask.GetColor(2), 0x445566u);
    EXPECT_EQ(bitmask.GetColor(3), 0u);
    EXPECT_EQ(bitmask.GetColor(0), 0u);
}

TEST_F(ADXBitmaskTest, MeasuresItsTextsUpTo512) {
    const std::string text(600, 'x');
    bitmask.SetTrueString(text.c_str(), 511);
    bitmask.SetFalseString(text.c_str(), 600);
    char out[4];
    EXPECT_EQ(bitmask.GetTrueString(out, sizeof out), 511u);
    EXPECT_STREQ(out, "xxx");
    EXPECT_EQ(bitmask.GetFalseString(nullptr, 0), 512u);
    bitmask.SetTrueString("a", 0);
    EXPECT_EQ(bitmask.GetTrueString(out, sizeof out), 0u);
    EXPECT_STREQ(out, "");
    EXPECT_STREQ(bitmask.TrueString(), "");
}

TEST_F(ADXBitmaskTest, WritesItsDefaults) {
    bitmask.SetId("A");
    EXPECT_EQ(test::WrittenText(bitmask),
              "<ADXBITMASK id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <parentcmdidhash>0x00000000</parentcmdidhash>\n"
              "    <ALARMONSET color=\"0x000000FF\" />\n"
              "    <ALARMONNOTSET color=\"0x0000FF00\" />\n"
              "    <packetoffset>0x00</packetoffset>\n"
              "    <bitop>AND</bitop>\n"
              "</ADXBITMASK>\n");
}

TEST_F(ADXBitmaskTest, WritesEverythingInOrder) {
    bitmask.SetId("A");
    bitmask.SetDesc("d", 1);
    bitmask.flags = 0xE;
    bitmask.parentcmdidhash = 0x10;
    bitmask.SetTrueString("On & on", 7);
    bitmask.SetFalseString("Off", 3);
    bitmask.packetoffset = 17;
    bitmask.sizeinbits = 16;
    bitmask.operand = 0x80;
    bitmask.bitop = ADXBitmask::kXor;
    bitmask.result = 0x81;
    EXPECT_EQ(test::WrittenText(bitmask),
              "<ADXBITMASK id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <desc>d</desc>\n"
              "    <flags>0x0000000E</flags>\n"
              "    <parentcmdidhash>0x00000010</parentcmdidhash>\n"
              "    <truestring>On & on</truestring>\n"
              "    <falsestring>Off</falsestring>\n"
              "    <ALARMONSET color=\"0x000000FF\" />\n"
              "    <ALARMONNOTSET color=\"0x0000FF00\" />\n"
              "    <packetoffset>0x11</packetoffset>\n"
              "    <sizeinbits>16</sizeinbits>\n"
              "    <operand>0x00000080</operand>\n"
              "    <bitop>XOR</bitop>\n"
              "    <result>0x00000081</result>\n"
              "</ADXBITMASK>\n");
}

TEST_F(ADXBitmaskTest, WritesNoOperationItHasNoNameFor) {
    bitmask.bitop = 2;
    EXPECT_EQ(test::WrittenText(bitmask).find("bitop"), std::string::npos);
    EXPECT_EQ(bitmask.Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
