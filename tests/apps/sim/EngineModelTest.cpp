#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "apps/sim/EngineModel.h"
#include "apps/sim/SignalNames.h"

namespace corvex {
namespace {

constexpr Signal kAll[] = {
    Signal::kRpm,      Signal::kThrottle,  Signal::kSpeed,   Signal::kCoolant, Signal::kAirTemperature,
    Signal::kManifold, Signal::kOxygen,    Signal::kVoltage, Signal::kSpark,   Signal::kPulse,
    Signal::kTrim,     Signal::kIdleValve, Signal::kAirflow, Signal::kOwn};

TEST(EngineModel, TakesEverySignalToBothEndsInACycle) {
    const EngineModel model(1);
    for (const Signal signal : kAll) {
        double low = 1, high = 0;
        for (double time = 0; time < EngineModel::kCycle; time += 1.2) {
            const double level = model.Level(signal, 42, time);
            ASSERT_GE(level, 0.0);
            ASSERT_LE(level, 1.0);
            low = std::min(low, level);
            high = std::max(high, level);
        }
        EXPECT_LT(low, 0.01) << static_cast<int>(signal);
        EXPECT_GT(high, 0.99) << static_cast<int>(signal);
    }
}

TEST(EngineModel, NeverJumps) {
    const EngineModel model(5);
    for (const Signal signal : kAll) {
        double last = model.Level(signal, 42, 0);
        for (double time = 0.01; time < 2 * EngineModel::kCycle; time += 0.01) {
            const double level = model.Level(signal, 42, time);
            ASSERT_LT(std::abs(level - last), 0.06) << static_cast<int>(signal) << " at " << time;
            last = level;
        }
    }
}

TEST(EngineModel, StartsCranksAndWarmsUp) {
    const EngineModel model(1);
    EXPECT_EQ(model.Level(Signal::kRpm, 0, 0.5), 0.0);
    EXPECT_NEAR(model.Level(Signal::kRpm, 0, 2.0), 0.045, 0.02);
    EXPECT_NEAR(model.Level(Signal::kRpm, 0, 5.5), 0.14, 0.03);
    EXPECT_LT(model.Level(Signal::kCoolant, 0, 5), model.Level(Signal::kCoolant, 0, 40));
    EXPECT_LT(model.Level(Signal::kCoolant, 0, 40), model.Level(Signal::kCoolant, 0, 150));
    EXPECT_LT(model.Level(Signal::kVoltage, 0, 2), model.Level(Signal::kVoltage, 0, 10));
}

TEST(EngineModel, DependsOnSeedKeyAndTimeAlone) {
    const EngineModel one(1), again(1), other(2);
    for (const Signal signal : kAll) {
        const double level = one.Level(signal, 7, 33.3);
        EXPECT_EQ(level, again.Level(signal, 7, 33.3));
    }
    EXPECT_NE(one.Level(Signal::kOwn, 7, 33.3), other.Level(Signal::kOwn, 7, 33.3));
    EXPECT_NE(one.Level(Signal::kOwn, 7, 33.3), one.Level(Signal::kOwn, 8, 33.3));
}

TEST(SignalNames, TellsSignalsByTitleThenUnits) {
    const std::tuple<const char*, const char*, Signal> cases[] = {
        {"Engine Speed", "rpm", Signal::kRpm},
        {"Vehicle Speed (mph)", "mph", Signal::kSpeed},
        {"Coolant Temperature", "C", Signal::kCoolant},
        {"TPS", "%", Signal::kThrottle},
        {"Oxygen Sensor Left", "mV", Signal::kOxygen},
        {"Battery Voltage", "V", Signal::kVoltage},
        {"Manifold Pressure", "kPa", Signal::kManifold},
        {"Desired", "RPM", Signal::kRpm},
        {"Deviation", "", Signal::kOwn},
        {"", "", Signal::kOwn},
    };
    for (const auto& [title, units, signal] : cases)
        EXPECT_EQ(SignalOf(title, units), signal) << title;
}

}  // namespace
}  // namespace corvex
