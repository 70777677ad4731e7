#include <gtest/gtest.h>

#include "apps/sim/SignalNames.h"

namespace corvex {
namespace {

TEST(SignalNames, TellSignalsByTitleThenUnits) {
    struct Case {
        const char *title, *units;
        Signal signal;
        double base, shown;
    };
    const Case cases[] = {
        {"Engine Speed", "rpm", Signal::kRpm, 800, 800},
        {"Vehicle Speed (mph)", "mph", Signal::kSpeed, 100, 62.1371},
        {"Coolant Temperature", "C", Signal::kCoolant, 90, 90},
        {"CLT", "F", Signal::kCoolant, 90, 194},
        {"TPS", "%", Signal::kThrottle, 0.5, 50},
        {"Throttle Voltage", "V", Signal::kThrottleVoltage, 0.5, 0.5},
        {"Oxygen Sensor Left", "mV", Signal::kOxygen, 0.45, 450},
        {"Oxygen Sensor Right", "mV", Signal::kOxygenRight, 0.45, 450},
        {"Block Learn Right", "", Signal::kLongTrimRight, 0.1, 140.8},
        {"Fuel Trim", "%", Signal::kShortTrim, -0.1, -10},
        {"Oil Pressure", "kPa", Signal::kOilPressure, 300, 300},
        {"Manifold Pressure", "psi", Signal::kManifold, 100, 14.5038},
        {"Desired", "RPM", Signal::kDesiredIdle, 700, 700},
        {"Ground", "km/h", Signal::kSpeed, 50, 50},
    };
    for (const auto& [title, units, signal, base, shown] : cases) {
        const auto found = SignalOf(title, units);
        ASSERT_TRUE(found && found->hasUnit) << title;
        EXPECT_EQ(found->signal, signal) << title;
        EXPECT_NEAR(found->NumberOf(base), shown, 1e-6) << title;
    }
    EXPECT_FALSE(SignalOf("Deviation", ""));
    EXPECT_FALSE(SignalOf("", "km/h/s"));
    EXPECT_FALSE(SignalOf("Coolant", "ohms")->hasUnit);
    EXPECT_EQ(SignalOf("Coolant", "ohms")->PartOf(60), 0.5);
}

TEST(SignalNames, TellConditionsAndWhichWayRoundAFlagIs) {
    struct Case {
        const char *title, *trueText;
        Condition condition;
        bool setWhenItHolds;
    };
    const Case cases[] = {
        {"Check Engine Lamp", "on", Condition::kLamp, true},
        {"Check Engine Lamp", "Off", Condition::kLamp, false},
        {"Closed Loop", "active", Condition::kClosedLoop, true},
        {"Right Bank Lean", "lean", Condition::kLeanRight, true},
        {"Left Bank Mixture", "rich", Condition::kLean, false},
        {"Left Oxygen Sensor", "good", Condition::kOxygenFault, false},
        {"Right Oxygen Sensor Fault", "fault", Condition::kNever, true},
        {"Coolant Sensor Fault", "fault", Condition::kNever, true},
        {"Fuel Pump", "running", Condition::kFuelPump, true},
    };
    for (const auto& [title, text, condition, setWhenItHolds] : cases) {
        const auto found = ConditionOf(title, text);
        ASSERT_TRUE(found) << title;
        EXPECT_EQ(found->condition, condition) << title;
        EXPECT_EQ(found->setWhenItHolds, setWhenItHolds) << title << ' ' << text;
    }
    EXPECT_FALSE(ConditionOf("Bit 7", "on"));
}

}  // namespace
}  // namespace corvex
