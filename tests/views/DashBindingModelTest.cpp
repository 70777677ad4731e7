#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "definition/ADXBitmask.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/DashBindingModel.h"

namespace corvex::test {
namespace {

using Strings = std::vector<std::string>;

// What the gauge is told, with the numbers that are not 0: "title Speed", "range low 20 high 180".
std::string Words(const BindingStep& step) {
    const char* const names[] = {"title",      "units",       "value",      "digits", "range",
                                 "no alarms",  "alarm",       "format",     "colour", "low limit",
                                 "high limit", "high enable", "low enable", "true",   "false"};
    std::ostringstream words;
    words << names[static_cast<int>(step.action)];
    if (!step.text.empty()) words << " " << step.text;
    if (step.low != 0) words << " low " << step.low;
    if (step.high != 0) words << " high " << step.high;
    if (step.word != 0) words << " word " << step.word;
    if (step.digits != 0) words << " digits " << step.digits;
    if (step.colour != 0) words << " " << std::hex << step.colour;
    return words.str();
}

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
        const std::uint8_t packet = 40;
        value->GetRaw(&packet);
        bitmask = Add<ADXBitmask>(definition, "B");
        bitmask->SetTitle("Fan", 3);
        bitmask->SetTrueString("running", 7);
        bitmask->SetFalseString("at rest", 7);
    }
    Strings Steps(std::uint32_t gaugetype, ADXObject* item) {
        ADXDGENTRY entry;
        entry.gaugetype = gaugetype;
        entry.item = item;
        Strings steps;
        for (const BindingStep& step : BindingSteps(entry, definition))
            steps.push_back(Words(step));
        return steps;
    }

    ADXDefinition definition;
    ADXValue* value;
    ADXBitmask* bitmask;
};

TEST_F(DashBindingModelTest, AnAnalogGaugeHearsItsValueBeforeItsRange) {
    EXPECT_EQ((Strings{"title Speed", "units km/h", "value low 20", "digits word 3", "range low 20 high 180",
                       "no alarms", "value low 80"}),
              Steps(kAnalogGaugeType, value));
}

// To the end of the scale, and not clipped beyond it.
TEST_F(DashBindingModelTest, EachEnabledLimitIsABandBeforeTheValue) {
    constexpr std::uint32_t kBoth = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    constexpr float kEndless = std::numeric_limits<float>::infinity(), kNone = std::numeric_limits<float>::quiet_NaN();
    const struct {
        std::uint32_t flags;
        float rangeLow, alarmLow, alarmHigh;
        Strings bands;
    } cases[] = {{kBoth, 20, 30, 150, {"alarm low 150 high 180 ff", "alarm low 20 high 30 b4fa"}},
                 {ADXValue::kAlarmHigh, 20, 30, 150, {"alarm low 150 high 180 ff"}},
                 {ADXValue::kAlarmLow, 20, 30, 150, {"alarm low 20 high 30 b4fa"}},
                 {0, 20, 30, 150, {}},
                 {kBoth, 20, -5, 220, {"alarm low 180 high 220 ff", "alarm low -5 high 20 b4fa"}},
                 {ADXValue::kAlarmHigh, kNone, -5, kEndless, {"alarm low 180 high inf ff"}}};
    for (const auto& expected : cases) {
        value->flags = expected.flags;
        value->rangelow = expected.rangeLow;
        value->alarmlow = expected.alarmLow;
        value->alarmhigh = expected.alarmHigh;
        const Strings steps = Steps(kAnalogGaugeType, value);
        EXPECT_EQ("no alarms", steps[5]);
        EXPECT_EQ(expected.bands, Strings(steps.begin() + 6, steps.end() - 1));
        EXPECT_EQ("value low 80", steps.back());
        EXPECT_EQ(expected.rangeLow == 20 ? "value low 20" : "value low nan", steps[2]);
    }
}

TEST_F(DashBindingModelTest, AReadoutHearsItsLimitsBeforeItsValue) {
    value->flags = ADXValue::kAlarmHigh;
    EXPECT_EQ((Strings{"title Speed", "units km/h", "format word 1 digits 3", "colour word 5 80ff", "colour word 4 ff",
                       "low limit low 30", "high limit high 150", "high enable word 4", "low enable", "value low 80"}),
              Steps(kDigitalReadoutType, value));
    value->flags = ADXValue::kAlarmLow | ADXValue::kSigned;
    EXPECT_EQ("high enable", Steps(kDigitalReadoutType, value)[7]);
    EXPECT_EQ("low enable word 8", Steps(kDigitalReadoutType, value)[8]);
}

TEST_F(DashBindingModelTest, OnlyFloatsHaveTheirDecimals) {
    for (std::uint32_t type = 0; type < 6; ++type) {
        value->outputtype = type;
        EXPECT_EQ(type == 3 ? "format word 1 digits 3" : "format digits 1", Steps(kDigitalReadoutType, value)[2])
            << type;
    }
}

TEST_F(DashBindingModelTest, ALampHearsItsWordsAndNoState) {
    EXPECT_EQ((Strings{"title Fan", "true running", "false at rest"}), Steps(kStatusGaugeType, bitmask));
}

TEST_F(DashBindingModelTest, WhatIsMissingOrDoesNotFitIsNotBound) {
    auto* const macro = Add<ADXMacro>(definition, "M");
    for (std::uint32_t type = 0; type < 9; ++type) {
        EXPECT_TRUE(Steps(type, nullptr).empty());
        EXPECT_TRUE(Steps(type, macro).empty());
        EXPECT_EQ(type > kDigitalReadoutType, Steps(type, value).empty()) << type;
        EXPECT_EQ(type != kStatusGaugeType, Steps(type, bitmask).empty()) << type;
    }
}

TEST_F(DashBindingModelTest, TextsEndAtAHundredCharactersAndMayBeMissing) {
    const std::string text(300, 'x'), kept(100, 'x');
    value->SetTitle(text.c_str(), 300);
    value->SetUnits(text.c_str(), 300);
    bitmask->SetTitle(text.c_str(), 300);
    bitmask->SetTrueString(text.c_str(), 300);
    bitmask->SetFalseString(text.c_str(), 300);
    for (const std::uint32_t type : {kAnalogGaugeType, kDigitalReadoutType}) {
        EXPECT_EQ("title " + kept, Steps(type, value)[0]);
        EXPECT_EQ("units " + kept, Steps(type, value)[1]);
    }
    EXPECT_EQ((Strings{"title " + kept, "true " + kept, "false " + kept}), Steps(kStatusGaugeType, bitmask));
    auto* const plain = AddValue(definition, "P", "X");
    EXPECT_EQ("title", Steps(kAnalogGaugeType, plain)[0]);
    EXPECT_EQ("units", Steps(kAnalogGaugeType, plain)[1]);
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
