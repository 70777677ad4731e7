#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"
#include "files/ads/AdsItemConverter.h"
#include "tests/files/ads/AdsTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

using test::Listed;

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
    EXPECT_EQ(Listed(value.Title(), value.Desc(), value.Units(), value.packetoffset, value.sizeinbits,
                     value.parentcmdidhash, value.flags, value.GetVarCount()),
              "Title  Units 3 16 0 4 1");
    EXPECT_EQ(Listed(value.alarmhigh, value.alarmlow, value.rangehigh, value.rangelow), "100 10 150 -1");
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
    EXPECT_EQ(Listed(value.alarmhigh, value.alarmlow, value.rangehigh, value.rangelow), "50 0 100 0");
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
    EXPECT_EQ(Listed(bit.Title(), bit.packetoffset, bit.sizeinbits, bit.bitop, bit.operand, bit.result, bit.flags,
                     bit.parentcmdidhash, bit.TrueString(), bit.FalseString()),
              "Lamp 5 8 0 8 8 4 0 On Off");
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
