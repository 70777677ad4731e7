#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/ItemAlarmModel.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kOwn = 0x123456, kRed = 0x0000FF, kOrange = 0x4080FF;
constexpr std::uint32_t kCommand = 7, kOther = 8;

class ItemAlarmModelTest : public ::testing::Test {
protected:
    ItemAlarmModelTest() {
        entry.color = kOwn;
        value = AddValue(definition, "V", "X");
        value->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
        value->alarmlow = 30.0F;
        value->alarmhigh = 100.0F;
        bitmask = Add<ADXBitmask>(definition, "B");
        bitmask->operand = bitmask->result = 1;
        bitmask->alarmonsetcolor = 0x111111;
        bitmask->alarmonnotsetcolor = 0x222222;
    }
    void Packet(std::uint8_t byte, std::uint32_t command = kCommand) {
        last = LastPacket::Of(PacketView(&byte, 1), command);
    }
    std::string TextOf(ADXObject* item) {
        entry.item = item;
        return ReadValueCell(entry, definition, last).text;
    }
    void ExpectLook(std::uint32_t colour, CellFont font, ADXObject* item, int column = kValueColumn) {
        entry.item = item;
        const CellLook look = column == kValueColumn ? ReadValueCell(entry, definition, last).look : TitleLook(entry);
        EXPECT_EQ(colour, look.colour);
        EXPECT_EQ(font, look.font);
    }

    ADXDefinition definition;
    ADXValue* value;
    ADXBitmask* bitmask;
    ADXLVENTRY entry;
    LastPacket last;
};

// A value within its limits leaves the font that is there.
TEST_F(ItemAlarmModelTest, AValueBeyondALimitThatIsOnIsInAlarm) {
    const std::uint32_t both = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    const struct {
        std::uint32_t flags;
        std::uint8_t byte;
        std::uint32_t colour;
    } cases[] = {{both, 50, kOwn}, {both, 100, kOwn},   {both, 101, kRed},
                 {both, 30, kOwn}, {both, 29, kOrange}, {ADXValue::kAlarmLow, 200, kOwn},
                 {0, 200, kOwn},   {0, 1, kOwn},        {ADXValue::kAlarmHigh, 1, kOwn}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(::testing::Message() << expected.flags << " " << int{expected.byte});
        value->flags = expected.flags;
        Packet(expected.byte);
        ExpectLook(expected.colour, expected.colour == kOwn ? CellFont::kAsItIs : CellFont::kBold, value);
    }
}

TEST_F(ItemAlarmModelTest, TheHighAlarmGoesFirst) {
    value->alarmlow = 150.0F;
    Packet(120);
    ExpectLook(kRed, CellFont::kBold, value);
}

TEST_F(ItemAlarmModelTest, LimitsAreComparedInSinglePrecision) {
    value->SetEquation("X/10", 4);
    value->alarmhigh = 10.1F;  // the double of 101 / 10 is below this float
    value->alarmlow = 10.1F;
    Packet(101);
    ExpectLook(kOwn, CellFont::kAsItIs, value);
}

TEST_F(ItemAlarmModelTest, AValueOfAnotherCommandGoesByItsOwnLastWord) {
    EXPECT_EQ("0.00", TextOf(value)) << "of no packet yet";
    value->parentcmdidhash = kOther;
    const std::uint8_t own = 120;
    value->GetRaw(PacketView(&own, 1));
    Packet(50);
    ExpectLook(kRed, CellFont::kBold, value);
    EXPECT_EQ("120.00", TextOf(value));
    for (const std::uint32_t command : {kCommand, std::uint32_t{0}}) {  // or of every one
        value->parentcmdidhash = command;
        ExpectLook(kOwn, CellFont::kAsItIs, value);
        EXPECT_EQ("50.00", TextOf(value));
    }
}

TEST_F(ItemAlarmModelTest, TextsAreCutAndEmptyWhereThereIsNone) {
    bitmask->SetFalseString(std::string(300, 'z').c_str(), 300);
    EXPECT_EQ(std::string(39, 'z'), TextOf(bitmask));
    value->digcount = 200;
    EXPECT_EQ("0." + std::string(37, '0'), TextOf(value));
    value->outputtype = 9;
    EXPECT_EQ("", TextOf(value));
    entry.entrytype = ADXLVENTRY::kHeadingRow;
    EXPECT_EQ("", TextOf(bitmask));
    EXPECT_EQ("", TextOf(nullptr));
}

// With both alarms on it is never in its own colour.
TEST_F(ItemAlarmModelTest, ABitInAlarmHasTheColourOfItsState) {
    const struct {
        std::uint32_t flags;
        std::uint8_t byte;
        std::uint32_t colour;
    } cases[] = {{ADXBitmask::kAlarmOnSet, 1, 0x111111},
                 {ADXBitmask::kAlarmOnSet, 0, kOwn},
                 {ADXBitmask::kAlarmOnNotSet, 0, 0x222222},
                 {ADXBitmask::kAlarmOnNotSet, 1, kOwn},
                 {ADXBitmask::kAlarmOnSet | ADXBitmask::kAlarmOnNotSet, 1, 0x111111},
                 {ADXBitmask::kAlarmOnSet | ADXBitmask::kAlarmOnNotSet, 0, 0x222222}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(::testing::Message() << expected.flags << " " << int{expected.byte});
        bitmask->flags = expected.flags;
        Packet(expected.byte);
        ExpectLook(expected.colour, expected.colour == kOwn ? CellFont::kAsItIs : CellFont::kBold, bitmask);
    }
}

TEST_F(ItemAlarmModelTest, ABitIsTestedInTheLastPacketWhateverItsCommand) {
    bitmask->flags = ADXBitmask::kAlarmOnSet;
    bitmask->parentcmdidhash = kOther;
    Packet(1);
    ExpectLook(0x111111, CellFont::kBold, bitmask);
    EXPECT_EQ(0, bitmask->IsSet(definition, nullptr)) << "and keeps the word that its text shows";
}

TEST_F(ItemAlarmModelTest, BeforeTheFirstPacketABitHasItsWord) {
    bitmask->flags = ADXBitmask::kAlarmOnSet;
    const std::uint8_t set = 1;
    bitmask->GetRaw(PacketView(&set, 1));
    ExpectLook(0x111111, CellFont::kBold, bitmask);
}

TEST_F(ItemAlarmModelTest, OtherColumnsGoBackToTheOrdinaryFont) {
    Packet(200);
    for (const int column : {kEmptyColumn, kTitleColumn}) {
        ExpectLook(kOwn, CellFont::kOrdinary, value, column);
        ExpectLook(kOwn, CellFont::kOrdinary, bitmask, column);
    }
    ExpectLook(kOwn, CellFont::kOrdinary, nullptr);
}

TEST_F(ItemAlarmModelTest, AHeadingIsBoldInItsColourWhenItSaysSo) {
    const struct {
        std::uint32_t type, flags;
        CellFont font;
    } cases[] = {{ADXLVENTRY::kHeadingRow, 0, CellFont::kOrdinary},
                 {ADXLVENTRY::kHeadingRow, 1, CellFont::kBold},
                 {ADXLVENTRY::kHeadingRow, 2, CellFont::kOrdinary},
                 {ADXLVENTRY::kItemRow, 1, CellFont::kOrdinary}};
    for (const auto& expected : cases) {
        entry.entrytype = expected.type;
        entry.flags = expected.flags;
        for (int column = 0; column < 3; ++column)
            ExpectLook(kOwn, expected.font, nullptr, column);
    }
}

TEST_F(ItemAlarmModelTest, PacketsAreForTheirOwnCommandAndForNone) {
    Packet(1);
    EXPECT_TRUE(PacketFor(0, last));
    EXPECT_TRUE(PacketFor(kCommand, last));
    EXPECT_FALSE(PacketFor(kOther, last));
}

}  // namespace
}  // namespace corvex::test
