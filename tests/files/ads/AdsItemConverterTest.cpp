#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"
#include "files/ads/AdsItemConverter.h"
#include "tests/files/ads/AdsTestHelper.h"

namespace corvex {
namespace {

AdsTexts Bit(const std::string& number, const std::string& byte = "1") {
    return {byte, "1", number, "Lamp", "1", "0", "On", "Off"};
}

// A file of one value with the number 10, and whatever follows it.
struct ImportValue : AdsImport {
    explicit ImportValue(const AdsValueText& value, const std::string& more = "")
        : AdsImport(AdsHeaderBlock() + AdsItem(1, "10", value.Fields()) + more) {}
};

TEST(AdsItemConverter, AValueTakesItsFields) {
    const ImportValue file({"0", "0.5", "0.0", "4", "16", "200", "20", "300", "-2"});
    const auto& value = file.Get<ADXValue>("10");
    EXPECT_STREQ(value.Title(), "Title");
    EXPECT_STREQ(value.Desc(), "");
    EXPECT_STREQ(value.Units(), "Units");
    EXPECT_EQ(value.packetoffset, 3u);
    EXPECT_EQ(value.sizeinbits, 16u);
    EXPECT_EQ(value.parentcmdidhash, 0u);
    EXPECT_EQ(value.flags, 0x4u);
    EXPECT_EQ(value.alarmhigh, 100.0F);
    EXPECT_EQ(value.alarmlow, 10.0F);
    EXPECT_EQ(value.rangehigh, 150.0F);
    EXPECT_EQ(value.rangelow, -1.0F);
    EXPECT_EQ(value.GetVarCount(), 1u);
}

TEST(AdsItemConverter, ByteNumbersBeginAtOneAndZeroWraps) {
    EXPECT_EQ(ImportValue({.byte = "1"}).Get<ADXValue>("10").packetoffset, 0u);
    EXPECT_EQ(ImportValue({.byte = "0"}).Get<ADXValue>("10").packetoffset, 0xFFFFFFFFu);
    const AdsImport bits(AdsHeaderBlock() + AdsItem(2, "1", Bit("0", "1")) + AdsItem(2, "2", Bit("0", "0")));
    EXPECT_EQ(bits.Get<ADXBitmask>("1").packetoffset, 0u);
    EXPECT_EQ(bits.Get<ADXBitmask>("2").packetoffset, 0xFFFFFFFFu);
}

TEST(AdsItemConverter, TheOperationMakesTheEquationAndTheOutput) {
    const struct {
        const char *operation, *factor, *offset, *equation;
        std::uint32_t output;
    } cases[] = {
        {"0", "0.25", "-3", "X * 0.250000 + -3.000000", 3},
        {"1", "0.25", "-3", "0.250000 / X + -3.000000", 3},
        {"2", "0.25", "-3", "X * 0.250000 + -3.000000", 0},
        {"3", "0.25", "-3", "X * 0.250000 + -3.000000", 1},
        {"4", "0.25", "-3", "X", 3},
        {"5", "0.25", "-3", "X", 3},
        {"6", "0.25", "-3", "X", 3},
        {"7", "0.25", "-3", "X", 3},
        // A factor of one without an offset is plain X.
        {"0", "1.0", "0.0", "X", 3},
        {"2", "1.0", "0.0", "X", 0},
        {"3", "1.0", "0.0", "X", 1},
        {"1", "1.0", "0.0", "1.000000 / X + 0.000000", 3},
        {"0", "1.0", "0.5", "X * 1.000000 + 0.500000", 3},
        {"0", "2", "0.0", "X * 2.000000 + 0.000000", 3},
    };
    for (const auto& one : cases) {
        const ImportValue file({.operation = one.operation, .factor = one.factor, .offset = one.offset});
        const auto& value = file.Get<ADXValue>("10");
        char text[200] = "";
        value.GetEquation(text, sizeof text);
        EXPECT_STREQ(text, one.equation) << one.operation;
        EXPECT_EQ(value.outputtype, one.output) << one.operation;
    }
}

TEST(AdsItemConverter, LimitsOfOperation4ArePartsOfTheRange) {
    const ImportValue file(
        {.operation = "4", .alarmhigh = "120", .alarmlow = "20", .rangehigh = "220", .rangelow = "20"});
    const auto& value = file.Get<ADXValue>("10");
    EXPECT_EQ(value.alarmhigh, 50.0F);
    EXPECT_EQ(value.alarmlow, 0.0F);
    EXPECT_EQ(value.rangehigh, 100.0F);
    EXPECT_EQ(value.rangelow, 0.0F);
}

TEST(AdsItemConverter, ATableKeepsItsGivenSlotsOneKeyHigher) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(5, "40", AdsTable("0,10\n2,20\n5,50\n")));
    const auto& table = file.Get<ADXLookupTable>("40");
    EXPECT_STREQ(table.Title(), "Table");
    EXPECT_STREQ(table.Desc(), "comment");
    EXPECT_EQ(table.GetOutputType(), 3u);
    ASSERT_EQ(table.GetEntryCount(), 3u);
    const float keys[] = {1, 3, 6}, outputs[] = {10, 20, 50};
    for (std::uint32_t i = 0; i < 3; ++i) {
        float key = 0, output = 0;
        table.GetEntry(i, &key, &output);
        EXPECT_EQ(key, keys[i]);
        EXPECT_EQ(output, outputs[i]);
    }
    EXPECT_EQ(file.definition.GetCount(), 1u);  // tables are not listed
    const AdsImport whole(AdsHeaderBlock() + AdsItem(5, "40", AdsTable("0,10\n", "256", "1")));
    EXPECT_EQ(whole.Get<ADXLookupTable>("40").GetOutputType(), 1u) << "whole numbers are shown as such";
}

TEST(AdsItemConverter, SlotsPastTheMaskAreAllKept) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(5, "40", AdsTable("255,1\n258,4\n", "260")));
    const auto& table = file.Get<ADXLookupTable>("40");
    ASSERT_EQ(table.GetEntryCount(), 5u);
    float key = 0, output = 0;
    table.GetEntry(1, &key, &output);
    EXPECT_EQ(key, 257.0F);
    EXPECT_EQ(output, 2.0F);
    table.GetEntry(4, &key, &output);
    EXPECT_EQ(key, 260.0F);
    EXPECT_EQ(output, 0.0F);
}

TEST(AdsItemConverter, Operation6TakesTheTableWhereverItStands) {
    const ImportValue file({.operation = "6", .alarmhigh = "4", .alarmlow = "0", .rangehigh = "255", .table = "40"},
                           AdsItem(5, "40", AdsTable("0,10\n4,30\n")));
    const auto& value = file.Get<ADXValue>("10");
    EXPECT_EQ(value.lookup, &file.Get<ADXLookupTable>("40"));
    EXPECT_EQ(value.lookupidhash, value.lookup->GetIdHash());
    EXPECT_EQ(value.alarmhigh, 30.0F);
    EXPECT_EQ(value.alarmlow, 10.0F);
    EXPECT_EQ(value.rangehigh, 0.0F);
}

TEST(AdsItemConverter, WithoutItsTableAValueHasNoneAndItsLimitsAreZero) {
    for (const std::string& more :
         {std::string(), AdsItem(2, "40", Bit("0")), AdsItem(5, "40", AdsTable("0,1\n"), 1)}) {
        const ImportValue file({.operation = "6", .table = "40"}, more);
        const auto& value = file.Get<ADXValue>("10");
        EXPECT_EQ(value.lookup, nullptr);
        EXPECT_EQ(value.rangehigh, 0.0F);
        EXPECT_EQ(value.alarmhigh, 0.0F);
    }
    // Other operations take no table.
    const ImportValue linear({.operation = "0", .table = "40"}, AdsItem(5, "40", AdsTable("0,1\n")));
    EXPECT_EQ(linear.Get<ADXValue>("10").lookup, nullptr);
}

TEST(AdsItemConverter, ABitTakesItsFields) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(2, "20", Bit("3", "6")));
    const auto& bit = file.Get<ADXBitmask>("20");
    EXPECT_STREQ(bit.Title(), "Lamp");
    EXPECT_EQ(bit.packetoffset, 5u);
    EXPECT_EQ(bit.sizeinbits, 8u);
    EXPECT_EQ(bit.bitop, 0u);
    EXPECT_EQ(bit.operand, 8u);
    EXPECT_EQ(bit.result, 8u);
    EXPECT_EQ(bit.flags, 0x4u);
    EXPECT_EQ(bit.parentcmdidhash, 0u);
    EXPECT_STREQ(bit.TrueString(), "On");
    EXPECT_STREQ(bit.FalseString(), "Off");
}

TEST(AdsItemConverter, ABitNumberBeyondAWordIsNoBit) {
    const std::pair<const char*, std::uint32_t> cases[] = {
        {"31", 0x80000000u}, {"32", 0}, {"-1", 0}, {"4294967295", 0}};
    for (const auto& [number, operand] : cases) {
        const AdsImport file(AdsHeaderBlock() + AdsItem(2, "4294967295", Bit(number)));
        EXPECT_EQ(file.Get<ADXBitmask>("-1").operand, operand) << number << "; ids are signed";
    }
}

TEST(AdsItemConverter, SeparatorsBecomeNoObject) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(1, "1", AdsValueText().Fields(), 1) + AdsItem(2, "2", Bit("0"), 5) +
                         AdsItem(5, "3", AdsTable("0,1\n"), 1));
    EXPECT_EQ(file.definition.GetCount(), 0u);
}

TEST(AdsItemConverter, TheDefaultViewListsValuesAndBitsInOrder) {
    const AdsImport file(AdsHeaderBlock("1.2", "8192", "1", AdsRecord("N", "F4", "1", "0")) +
                         AdsItem(2, "20", Bit("0")) + AdsItem(1, "10", AdsValueText().Fields()) +
                         AdsItem(5, "40", AdsTable("0,1\n")) + AdsItem(6, "50", {}));
    ASSERT_EQ(file.definition.GetCount(), 5u);
    const auto& view = static_cast<const ADXListView&>(*file.definition.Objects().back());
    ASSERT_EQ(view.GetType(), kTypeListView);
    EXPECT_STREQ(view.Title(), "Default View");
    EXPECT_STREQ(view.Id(), "DEFAULTVIEW");
    ASSERT_EQ(view.GetEntryCount(), 2u);
    EXPECT_EQ(view.GetEntry(0)->item, file.definition.FindById("10"));
    EXPECT_EQ(view.GetEntry(1)->item, file.definition.FindById("20"));
    EXPECT_EQ(view.GetEntry(1)->itemidhash, file.definition.FindById("20")->GetIdHash());
    EXPECT_EQ(view.GetEntry(0)->entrytype, ADXLVENTRY::kItemRow);
    EXPECT_EQ(file.definition.GetObject(kTypeAny, 1)->GetType(), kTypeLookupTable);
}

}  // namespace
}  // namespace corvex
