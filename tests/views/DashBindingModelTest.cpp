#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "definition/ADXBitmask.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/DashBindingModel.h"

namespace corvex::test {
namespace {

using Action = BindingAction;

class DashBindingModelTest : public ::testing::Test {
protected:
    DashBindingModelTest() {
        value = AddValue(definition, "V", "X*2");
        value->SetTitle("Speed", 5);
        value->SetUnits("km/h", 4);
        value->digcount = 3;
        value->rangelow = 20.0F;
        value->rangehigh = 180.0F;
        value->alarmlow = 30.0F;
        value->alarmhigh = 150.0F;
        bitmask = Add<ADXBitmask>(definition, "B");
        bitmask->SetTitle("Fan", 3);
        bitmask->SetTrueString("running", 7);
        bitmask->SetFalseString("at rest", 7);
    }
    std::vector<BindingStep> Steps(std::uint32_t gaugetype, ADXObject* item) {
        ADXDGENTRY entry;
        entry.gaugetype = gaugetype;
        entry.item = item;
        return BindingSteps(entry, definition);
    }
    static std::vector<Action> Order(const std::vector<BindingStep>& steps) {
        std::vector<Action> order;
        for (const BindingStep& step : steps)
            order.push_back(step.action);
        return order;
    }
    static std::vector<BindingStep> Bands(const std::vector<BindingStep>& steps) {
        std::vector<BindingStep> bands;
        for (const BindingStep& step : steps) {
            if (step.action == Action::kAlarm) bands.push_back(step);
        }
        return bands;
    }

    ADXDefinition definition;
    ADXValue* value;
    ADXBitmask* bitmask;
};

TEST_F(DashBindingModelTest, AnAnalogGaugeHearsItsValueBeforeItsRange) {
    const std::uint8_t packet = 40;
    value->GetRaw(&packet);
    const auto steps = Steps(kAnalogGaugeType, value);
    ASSERT_EQ((std::vector<Action>{Action::kTitle, Action::kUnits, Action::kValue, Action::kDigits, Action::kRange,
                                   Action::kNoAlarms, Action::kValue}),
              Order(steps));
    EXPECT_EQ("Speed", steps[0].text);
    EXPECT_EQ("km/h", steps[1].text);
    EXPECT_EQ(20.0F, steps[2].low);
    EXPECT_EQ(3U, steps[3].word);
    EXPECT_EQ(20.0F, steps[4].low);
    EXPECT_EQ(180.0F, steps[4].high);
    EXPECT_EQ(80.0F, steps[6].low);
}

TEST_F(DashBindingModelTest, EachEnabledLimitIsABandToTheEndOfTheScale) {
    value->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    const auto steps = Steps(kAnalogGaugeType, value);
    EXPECT_EQ((std::vector<Action>{Action::kTitle, Action::kUnits, Action::kValue, Action::kDigits, Action::kRange,
                                   Action::kNoAlarms, Action::kAlarm, Action::kAlarm, Action::kValue}),
              Order(steps));
    const auto bands = Bands(steps);
    ASSERT_EQ(2U, bands.size());
    EXPECT_EQ(150.0F, bands[0].low);
    EXPECT_EQ(180.0F, bands[0].high);
    EXPECT_EQ(0x0000FFU, bands[0].colour);
    EXPECT_EQ(20.0F, bands[1].low);
    EXPECT_EQ(30.0F, bands[1].high);
    EXPECT_EQ(0x00B4FAU, bands[1].colour);
}

TEST_F(DashBindingModelTest, ALimitThatIsOffHasNoBand) {
    value->flags = ADXValue::kAlarmHigh;
    ASSERT_EQ(1U, Bands(Steps(kAnalogGaugeType, value)).size());
    EXPECT_EQ(0x0000FFU, Bands(Steps(kAnalogGaugeType, value))[0].colour);
    value->flags = ADXValue::kAlarmLow;
    ASSERT_EQ(1U, Bands(Steps(kAnalogGaugeType, value)).size());
    EXPECT_EQ(0x00B4FAU, Bands(Steps(kAnalogGaugeType, value))[0].colour);
}

TEST_F(DashBindingModelTest, ALimitBeyondTheScaleIsNotClipped) {
    value->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    value->alarmhigh = 220.0F;
    value->alarmlow = -5.0F;
    const auto bands = Bands(Steps(kAnalogGaugeType, value));
    EXPECT_EQ(180.0F, bands[0].low);
    EXPECT_EQ(220.0F, bands[0].high);
    EXPECT_EQ(-5.0F, bands[1].low);
    EXPECT_EQ(20.0F, bands[1].high);
}

TEST_F(DashBindingModelTest, AReadoutHearsItsLimitsBeforeItsValue) {
    const std::uint8_t packet = 40;
    value->GetRaw(&packet);
    value->flags = ADXValue::kAlarmHigh;
    const auto steps = Steps(kDigitalReadoutType, value);
    ASSERT_EQ((std::vector<Action>{Action::kTitle, Action::kUnits, Action::kFormat, Action::kColour, Action::kColour,
                                   Action::kLowLimit, Action::kHighLimit, Action::kHighEnable, Action::kLowEnable,
                                   Action::kValue}),
              Order(steps));
    EXPECT_EQ("Speed", steps[0].text);
    EXPECT_EQ("km/h", steps[1].text);
    EXPECT_EQ(5U, steps[3].word);
    EXPECT_EQ(0x0080FFU, steps[3].colour);
    EXPECT_EQ(4U, steps[4].word);
    EXPECT_EQ(0x0000FFU, steps[4].colour);
    EXPECT_EQ(30.0F, steps[5].low);
    EXPECT_EQ(150.0F, steps[6].high);
    EXPECT_EQ(4U, steps[7].word);
    EXPECT_EQ(0U, steps[8].word);
    EXPECT_EQ(80.0F, steps[9].low);
}

TEST_F(DashBindingModelTest, EachLimitOfAReadoutHasItsOwnSwitch) {
    value->flags = ADXValue::kAlarmLow | ADXValue::kSigned;
    const auto steps = Steps(kDigitalReadoutType, value);
    EXPECT_EQ(0U, steps[7].word);
    EXPECT_EQ(8U, steps[8].word);
}

TEST_F(DashBindingModelTest, OnlyFloatsHaveTheirDecimals) {
    for (std::uint32_t type = 0; type < 6; ++type) {
        value->outputtype = type;
        const BindingStep format = Steps(kDigitalReadoutType, value)[2];
        EXPECT_EQ(type == 3 ? 1U : 0U, format.word) << type;
        EXPECT_EQ(type == 3 ? 3U : 1U, format.digits) << type;
    }
}

TEST_F(DashBindingModelTest, ALampHearsItsWordsAndNoState) {
    const auto steps = Steps(kStatusGaugeType, bitmask);
    ASSERT_EQ((std::vector<Action>{Action::kTitle, Action::kTrueText, Action::kFalseText}), Order(steps));
    EXPECT_EQ("Fan", steps[0].text);
    EXPECT_EQ("running", steps[1].text);
    EXPECT_EQ("at rest", steps[2].text);
}

TEST_F(DashBindingModelTest, WhatIsMissingOrDoesNotFitIsNotBound) {
    for (std::uint32_t type = 0; type < 9; ++type)
        EXPECT_TRUE(Steps(type, nullptr).empty());
    EXPECT_TRUE(Steps(kAnalogGaugeType, bitmask).empty());
    EXPECT_TRUE(Steps(kDigitalReadoutType, bitmask).empty());
    EXPECT_TRUE(Steps(kStatusGaugeType, value).empty());
    EXPECT_TRUE(Steps(7, value).empty());
    EXPECT_TRUE(Steps(7, bitmask).empty());
    auto* const macro = Add<ADXMacro>(definition, "M");
    for (std::uint32_t type = 0; type < 3; ++type)
        EXPECT_TRUE(Steps(type, macro).empty());
}

TEST_F(DashBindingModelTest, TextsEndAtAHundredCharacters) {
    const std::string text(300, 'x'), kept(100, 'x');
    value->SetTitle(text.c_str(), 300);
    value->SetUnits(text.c_str(), 300);
    bitmask->SetTitle(text.c_str(), 300);
    bitmask->SetTrueString(text.c_str(), 300);
    bitmask->SetFalseString(text.c_str(), 300);
    for (const std::uint32_t type : {kAnalogGaugeType, kDigitalReadoutType}) {
        EXPECT_EQ(kept, Steps(type, value)[0].text);
        EXPECT_EQ(kept, Steps(type, value)[1].text);
    }
    for (const BindingStep& step : Steps(kStatusGaugeType, bitmask))
        EXPECT_EQ(kept, step.text);
}

TEST_F(DashBindingModelTest, WithoutTextsTheyAreEmpty) {
    auto* const plain = AddValue(definition, "P", "X");
    EXPECT_EQ("", Steps(kAnalogGaugeType, plain)[0].text);
    EXPECT_EQ("", Steps(kAnalogGaugeType, plain)[1].text);
}

TEST_F(DashBindingModelTest, NumbersBeyondAFloatAreSurvived) {
    value->SetEquation("X*1", 3);
    value->rangelow = std::numeric_limits<float>::quiet_NaN();
    value->alarmhigh = std::numeric_limits<float>::infinity();
    value->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    EXPECT_EQ(std::numeric_limits<float>::infinity(), Bands(Steps(kAnalogGaugeType, value))[0].high);
    EXPECT_TRUE(std::isnan(Steps(kAnalogGaugeType, value)[2].low));
}

TEST_F(DashBindingModelTest, ASampleIsForItemsOfItsCommandAndOfNone) {
    ADXDGENTRY entry;
    entry.item = value;
    EXPECT_TRUE(TakesSample(entry, 5));
    EXPECT_TRUE(TakesSample(entry, 0));
    value->parentcmdidhash = 5;
    EXPECT_TRUE(TakesSample(entry, 5));
    EXPECT_FALSE(TakesSample(entry, 6));
    EXPECT_FALSE(TakesSample(entry, 0));
    entry.gaugetype = kStatusGaugeType;
    EXPECT_FALSE(TakesSample(entry, 5)) << "a value on a lamp";
    entry.item = bitmask;
    bitmask->parentcmdidhash = 6;
    EXPECT_TRUE(TakesSample(entry, 6));
    EXPECT_FALSE(TakesSample(entry, 5));
    entry.gaugetype = 3;
    EXPECT_FALSE(TakesSample(entry, 6));
    entry.item = nullptr;
    EXPECT_FALSE(TakesSample(entry, 6));
}

}  // namespace
}  // namespace corvex::test
