#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"

namespace corvex {
namespace {

class ADXBitmaskTest : public testing::Test {
protected:
    int IsSet(std::uint8_t word) { return bitmask.IsSet(definition, PacketView(&word, 1)); }

    ADXDefinition definition;
    ADXBitmask bitmask;
};

TEST_F(ADXBitmaskTest, ComparesTheMaskedWord) {
    const struct {
        std::uint32_t bitop, operand, result;
        std::uint8_t word;
        int isSet;
    } cases[] = {
        {ADXBitmask::kAnd, 0, 0, 0x00, 1},        // is always set by default
        {ADXBitmask::kAnd, 0, 0, 0xFF, 1},        //
        {ADXBitmask::kAnd, 0x80, 0x80, 0xFF, 1},  //
        {ADXBitmask::kAnd, 0x80, 0x80, 0x7F, 0},  //
        {ADXBitmask::kAnd, 0x80, 1, 0xFF, 0},     // shifts nothing
        {2, 0, 0, 0, 0},                          // no operation that there is
    };
    EXPECT_EQ(bitmask.IsSet(definition, nullptr), 1);
    for (const auto& one : cases) {
        SCOPED_TRACE(testing::Message() << one.bitop << " " << one.operand << " " << one.result << " " << +one.word);
        bitmask.bitop = one.bitop;
        bitmask.operand = one.operand;
        bitmask.result = one.result;
        EXPECT_EQ(IsSet(one.word), one.isSet);
    }
}

TEST_F(ADXBitmaskTest, ALookAtAnotherPacketLeavesTheWord) {
    bitmask.operand = bitmask.result = 0x80;
    const std::uint8_t set = 0xFF, clear = 0x7F;
    EXPECT_EQ(IsSet(set), 1);
    EXPECT_EQ(bitmask.WouldBeSet(PacketView(&clear, 1)), 0);
    EXPECT_EQ(bitmask.WouldBeSet(nullptr), 1);
    EXPECT_EQ(bitmask.IsSet(definition, nullptr), 1);
}

TEST_F(ADXBitmaskTest, ComparesTheExclusiveOr) {
    bitmask.bitop = ADXBitmask::kXor;
    bitmask.operand = 0x0F;
    for (unsigned word = 0; word < 256; ++word) {
        EXPECT_EQ(IsSet(static_cast<std::uint8_t>(word)), word == 0x0F) << word;
    }
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

TEST_F(ADXBitmaskTest, TellsWhichAlarmsAreEnabledAndTheirColours) {
    std::uint32_t color = 0;
    EXPECT_EQ(bitmask.GetAlarmOnSet(&color), 0u);
    EXPECT_EQ(color, 255u);
    EXPECT_EQ(bitmask.GetAlarmOnNotSet(&color), 0u);
    EXPECT_EQ(color, 65280u);
    bitmask.flags = 0xC;
    EXPECT_EQ(bitmask.GetAlarmOnSet(nullptr), 4u);
    EXPECT_EQ(bitmask.GetAlarmOnNotSet(nullptr), 8u);
    for (const int which : {1, 2, 3})
        bitmask.SetColor(which, 0x111111U * static_cast<std::uint32_t>(which));
    const std::uint32_t colors[] = {0, 0x111111, 0x222222, 0};  // there are two
    for (int which = 0; which < 4; ++which)
        EXPECT_EQ(bitmask.GetColor(which), colors[which]) << which;
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

}  // namespace
}  // namespace corvex
