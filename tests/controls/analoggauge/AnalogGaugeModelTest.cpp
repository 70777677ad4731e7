#include <gtest/gtest.h>

#include <cmath>

#include "controls/analoggauge/AnalogGaugeModel.h"

namespace corvex {
namespace {

constexpr float kLargest = 3.4028235e38f, kSmallest = 1.1754944e-38f;

TEST(AnalogGaugeModelTest, BeginsWithItsDefaults) {
    const AnalogGaugeModel model;
    EXPECT_EQ(model.flags, 0x5Fu);
    EXPECT_EQ(model.scale.sweepStart, 40.0f);
    EXPECT_EQ(model.scale.sweepEnd, 300.0f);
    EXPECT_EQ(model.scale.rangeMinimum, 0.0f);
    EXPECT_EQ(model.scale.rangeMaximum, 150.0f);
    const std::uint32_t colours[] = {0xF0F0F0, 0, 0x0050FA, 0, 0, 0xFFFFFF, 0, 0, 0xFF0000, 0xFF0000};
    for (std::uint32_t i = 0; i < 10; ++i)
        EXPECT_EQ(model.Colour(i), colours[i]) << i;
    EXPECT_EQ(model.lowestColour, 0u);
    EXPECT_EQ(model.highestColour, 0u);
    EXPECT_EQ(model.digits, 2u);
    EXPECT_EQ(model.Value(), 0.0f);
    EXPECT_EQ(model.Lowest(), kLargest);
    EXPECT_EQ(model.Highest(), kSmallest);
    EXPECT_FALSE(model.title.Present());
    EXPECT_FALSE(model.units.Present());
    EXPECT_TRUE(model.Alarms().empty());
}

TEST(AnalogGaugeModelTest, FlagsAreAddedAndAllTakenAwayByNone) {
    AnalogGaugeModel model;
    EXPECT_TRUE(model.Shows(AGF_VALUE) && model.Shows(AGF_HIGHEST) && model.Shows(AGF_LOWEST));
    EXPECT_TRUE(model.Shows(AGF_ALARMS));
    EXPECT_FALSE(model.Shows(AGF_ROUND));
    model.SetFlags(0x80);
    EXPECT_EQ(model.flags, 0xDFu);
    model.SetFlags(0);
    EXPECT_EQ(model.flags, 0u);
}

TEST(AnalogGaugeModelTest, ValueIsPinnedToTheScaleAndTheExtremesRecordThat) {
    AnalogGaugeModel model;
    model.SetValue(-20.0f);
    EXPECT_EQ(model.Value(), 0.0f);
    EXPECT_EQ(model.Lowest(), 0.0f);
    model.SetValue(1000.0f);
    EXPECT_EQ(model.Value(), 150.0f);
    EXPECT_EQ(model.Highest(), 150.0f);
    model.SetValue(70.5f);
    EXPECT_EQ(model.Value(), 70.5f);
    EXPECT_EQ(model.Lowest(), 0.0f);
    EXPECT_EQ(model.Highest(), 150.0f);
}

// The minimum is looked at first.
TEST(AnalogGaugeModelTest, RangeTurnedRoundPinsToItsMinimum) {
    AnalogGaugeModel model;
    model.scale.rangeMinimum = 100.0f;
    model.scale.rangeMaximum = 50.0f;
    model.SetValue(75.0f);
    EXPECT_EQ(model.Value(), 100.0f);
    model.SetValue(120.0f);
    EXPECT_EQ(model.Value(), 50.0f);
}

TEST(AnalogGaugeModelTest, NegativeValuesNeverBecomeTheHighest) {
    AnalogGaugeModel model;
    model.scale.rangeMinimum = -50.0f;
    model.SetValue(-10.0f);
    model.SetValue(-40.0f);
    EXPECT_EQ(model.Highest(), kSmallest);
    EXPECT_EQ(model.HighestLine(), "Max: 0.00");
    EXPECT_EQ(model.LowestLine(), "Min: -40");
    model.ResetLowest();
    EXPECT_EQ(model.LowestLine(), "Min: -2147483648") << "its strange beginning";
    model.SetValue(70.0f);
    EXPECT_EQ(model.LowestLine(), "Min: 70");
    EXPECT_EQ(model.HighestLine(), "Max: 70");
    model.ResetHighest();
    EXPECT_EQ(model.HighestLine(), "Max: 0.00");
}

TEST(AnalogGaugeModelTest, MarkerLineFitsItsBuffer) {
    AnalogGaugeModel model;
    model.digits = 0x7FFFFFFF;
    model.SetValue(0.5f);
    EXPECT_EQ(model.LowestLine(), "Min: 0.5" + std::string(246, '0'));
    EXPECT_EQ(model.HighestLine().size(), 254u);
}

TEST(AnalogGaugeModelTest, NoNumberIsKeptAndSeenByNoExtreme) {
    AnalogGaugeModel model;
    model.SetValue(std::nanf(""));
    EXPECT_TRUE(std::isnan(model.Value()));
    EXPECT_EQ(model.Lowest(), kLargest);
    EXPECT_EQ(model.Highest(), kSmallest);
    model.SetValue(HUGE_VALF);
    EXPECT_EQ(model.Value(), 150.0f);
}

TEST(AnalogGaugeModelTest, ChangedRangeLeavesValueAndExtremes) {
    AnalogGaugeModel model;
    model.SetValue(100.0f);
    model.scale.rangeMaximum = 50.0f;
    EXPECT_EQ(model.Value(), 100.0f);
    EXPECT_EQ(model.Highest(), 100.0f);
    model.SetValue(100.0f);
    EXPECT_EQ(model.Value(), 50.0f);
    EXPECT_EQ(model.Highest(), 100.0f);
}

TEST(AnalogGaugeModelTest, TenColoursGoByIndexAndNoOther) {
    AnalogGaugeModel model;
    for (std::uint32_t i = 0; i < 10; ++i)
        model.SetColour(i, 0x010203 * i);
    for (std::uint32_t i = 0; i < 10; ++i)
        EXPECT_EQ(model.Colour(i), 0x010203 * i) << i;
    for (const std::uint64_t index : {std::uint64_t{10}, std::uint64_t{0xFFFFFFFF}, std::uint64_t{0x100000000}}) {
        model.SetColour(index, 0xABCDEF);
        EXPECT_EQ(model.Colour(index), 0u) << index;
    }
    EXPECT_EQ(model.Colour(0), 0u);
    EXPECT_EQ(model.Colour(9), 0x010203u * 9);
}

TEST(AnalogGaugeModelTest, BandsAreAddedReplacedPutInFrontAndCopiedOutWhole) {
    AnalogGaugeModel model;
    const GaugeAlarmBand one{1.0f, 2.0f, 0x0000FF}, two{2.0f, 3.0f, 0}, three{3.0f, 4.0f, 0};
    const struct {
        std::uint32_t index;
        const GaugeAlarmBand* band;
        int place;
        std::vector<float> lows;  // of all, afterwards
    } steps[] = {{0, nullptr, -1, {}},      {0xFFFFFFFF, nullptr, -1, {}},      {10, &one, 0, {1}},
                 {10, &two, 1, {1, 2}},     {0xFFFFFFFF, &three, 0, {3, 1, 2}}, {1, &two, 1, {3, 2, 2}},
                 {3, &one, 3, {3, 2, 2, 1}}};
    for (const auto& step : steps) {
        EXPECT_EQ(model.SetAlarm(step.index, step.band), step.place);
        std::vector<float> lows;
        for (const GaugeAlarmBand& band : model.Alarms())
            lows.push_back(band.low);
        EXPECT_EQ(lows, step.lows);
    }
    GaugeAlarmBand out{};
    EXPECT_TRUE(model.GetAlarm(3, nullptr));
    ASSERT_TRUE(model.GetAlarm(3, &out));
    EXPECT_EQ(out.low, one.low);
    EXPECT_EQ(out.high, one.high);
    EXPECT_EQ(out.colour, one.colour);
    EXPECT_FALSE(model.GetAlarm(4, &out));
    model.ClearAlarms();
    EXPECT_FALSE(model.GetAlarm(0, &out));
}

}  // namespace
}  // namespace corvex
