#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXItem.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"

namespace corvex {
namespace {

TEST(AsTest, GivesAnObjectOfTheClassAloneAndNothingForNothing) {
    ADXValue value;
    ADXLookupTable table;
    ADXObject* const object = &value;
    EXPECT_EQ(As<ADXValue>(object), &value);
    EXPECT_EQ(As<ADXBitmask>(object), nullptr);
    EXPECT_EQ(As<ADXValue>(static_cast<const ADXObject*>(&table)), nullptr);
    EXPECT_EQ(As<ADXValue>(static_cast<ADXObject*>(nullptr)), nullptr);
}

TEST(AsTest, TakesValuesAndBitmasksForItems) {
    ADXValue value;
    ADXBitmask bitmask;
    ADXLookupTable table;
    for (ADXObject* object : {static_cast<ADXObject*>(&value), static_cast<ADXObject*>(&bitmask)})
        EXPECT_EQ(As<ADXItem>(object), object);
    EXPECT_EQ(As<ADXItem>(static_cast<ADXObject*>(&table)), nullptr);
}

TEST(ADXItemTest, BelongsToItsCommandOrToAny) {
    ADXValue value;
    EXPECT_TRUE(value.BelongsTo(7));
    value.parentcmdidhash = 7;
    EXPECT_TRUE(value.BelongsTo(7));
    EXPECT_FALSE(value.BelongsTo(8));
    EXPECT_FALSE(value.BelongsTo(0));
}

TEST(ADXItemTest, EachFlagHasItsBit) {
    ADXValue value;
    ADXBitmask bitmask;
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1U) {
        value.flags = bitmask.flags = bit;
        EXPECT_EQ(value.IsSigned(), bit == 1) << bit;
        EXPECT_EQ(value.IsLowByteFirst(), bit == 2) << bit;
        EXPECT_EQ(value.HasHighAlarm(), bit == 4) << bit;
        EXPECT_EQ(value.HasLowAlarm(), bit == 8) << bit;
        EXPECT_EQ(bitmask.IsLowByteFirst(), bit == 2) << bit;
        EXPECT_EQ(bitmask.HasAlarmOnSet(), bit == 4) << bit;
        EXPECT_EQ(bitmask.HasAlarmOnNotSet(), bit == 8) << bit;
    }
}

TEST(ADXItemTest, AValueTellsWhereItsNumbersComeFrom) {
    ADXValue value;
    EXPECT_FALSE(value.HasLinks() || value.ReadsField()) << "no letters";
    value.SetEquation("X+Y", 3);
    EXPECT_TRUE(value.ReadsField() && !value.HasLinks());
    value.SetVar({ADXVar::kLink, 'X', 1});
    EXPECT_TRUE(value.ReadsField() && value.HasLinks());
    value.SetVar({ADXVar::kLink, 'Y', 1});
    EXPECT_TRUE(value.HasLinks() && !value.ReadsField());
}

}  // namespace
}  // namespace corvex
