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

struct Band {
    float low, high;
    std::uint32_t colour;
    bool operator==(const Band&) const = default;
};

// To the end of the scale, and not clipped beyond it.
TEST_F(DashBindingModelTest, EachEnabledLimitIsABandBeforeTheValue) {
    const Band high{150.0F, 180.0F, 0x0000FF}, low{20.0F, 30.0F, 0x00B4FA};
    const auto bands = [&](std::uint32_t flags) {
        value->flags = flags;
        const auto steps = Steps(kAnalogGaugeType, value);
        EXPECT_EQ(Action::kNoAlarms, steps[5].action);
        EXPECT_EQ(Action::kValue, steps.back().action);
        std::vector<Band> found;
        for (std::size_t i = 6; i + 1 < steps.size(); ++i) {
            EXPECT_EQ(Action::kAlarm, steps[i].action);
            found.push_back({steps[i].low, steps[i].high, steps[i].colour});
        }
        return found;
    };
    EXPECT_EQ((std::vector<Band>{high, low}), bands(ADXValue::kAlarmHigh | ADXValue::kAlarmLow));
    EXPECT_EQ(std::vector<Band>{high}, bands(ADXValue::kAlarmHigh));
    EXPECT_EQ(std::vector<Band>{low}, bands(ADXValue::kAlarmLow));
    EXPECT_EQ(std::vector<Band>{}, bands(0));
    value->alarmhigh = 220.0F;
    value->alarmlow = -5.0F;
    EXPECT_EQ((std::vector<Band>{{180.0F, 220.0F, 0x0000FF}, {-5.0F, 20.0F, 0x00B4FA}}),
              bands(ADXValue::kAlarmHigh | ADXValue::kAlarmLow));
    value->alarmhigh = std::numeric_limits<float>::infinity();
    value->rangelow = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(value->alarmhigh, bands(ADXValue::kAlarmHigh)[0].high);
    EXPECT_TRUE(std::isnan(Steps(kAnalogGaugeType, value)[2].low));
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

TEST_F(DashBindingModelTest, ASampleIsForFittingItemsOfItsCommandAndOfNone) {
    const struct {
        std::uint32_t gaugetype;
        ADXObject* item;
        std::uint32_t itemsCommand, command;
        bool takes;
    } cases[] = {{kAnalogGaugeType, value, 0, 5, true},    {kAnalogGaugeType, value, 0, 0, true},
                 {kDigitalReadoutType, value, 5, 5, true}, {kAnalogGaugeType, value, 5, 6, false},
                 {kAnalogGaugeType, value, 5, 0, false},   {kStatusGaugeType, value, 5, 5, false},
                 {kStatusGaugeType, bitmask, 6, 6, true},  {kStatusGaugeType, bitmask, 6, 5, false},
                 {kAnalogGaugeType, bitmask, 0, 6, false}, {3, bitmask, 6, 6, false},
                 {kAnalogGaugeType, nullptr, 0, 6, false}, {kStatusGaugeType, nullptr, 0, 6, false}};
    for (const auto& expected : cases) {
        value->parentcmdidhash = bitmask->parentcmdidhash = expected.itemsCommand;
        ADXDGENTRY entry;
        entry.gaugetype = expected.gaugetype;
        entry.item = expected.item;
        EXPECT_EQ(expected.takes, TakesSample(entry, expected.command))
            << expected.gaugetype << " " << expected.itemsCommand << " " << expected.command;
    }
}

}  // namespace
}  // namespace corvex::test
