#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "apps/sim/SweepModel.h"

namespace corvex {
namespace {

const std::optional<Signal> kSwept[] = {
    Signal::kRpm,      Signal::kThrottle,  Signal::kSpeed,   Signal::kCoolant, Signal::kAirTemperature,
    Signal::kManifold, Signal::kOxygen,    Signal::kVoltage, Signal::kSpark,   Signal::kPulse,
    Signal::kLongTrim, Signal::kIdleValve, Signal::kAirflow, std::nullopt};

TEST(SweepModel, TakesEverySignalToBothEndsInACycleWithoutAJump) {
    const SweepModel model(1);
    for (const auto& signal : kSwept) {
        const int name = signal ? static_cast<int>(*signal) : -1;
        double low = 1, high = 0, last = model.Level(signal, 42, 0);
        for (int step = 1; step < 2 * 100 * static_cast<int>(SweepModel::kCycle); ++step) {
            const double level = model.Level(signal, 42, step * 0.01);
            ASSERT_LT(std::abs(level - last), 0.06) << name << " at step " << step;
            last = level;
            if (step % 120 != 0) continue;  // as a slow poll sees it
            low = std::min(low, level);
            high = std::max(high, level);
        }
        EXPECT_LT(low, 0.01) << name;
        EXPECT_GT(high, 0.99) << name;
        EXPECT_GE(low, 0.0) << name;
        EXPECT_LE(high, 1.0) << name;
    }
}

TEST(SweepModel, DependsOnSeedKeyAndTimeAlone) {
    const SweepModel one(1), again(1), other(2);
    for (const auto& signal : kSwept)
        EXPECT_EQ(one.Level(signal, 7, 33.3), again.Level(signal, 7, 33.3));
    EXPECT_NE(one.Level(std::nullopt, 7, 33.3), other.Level(std::nullopt, 7, 33.3));
    EXPECT_NE(one.Level(std::nullopt, 7, 33.3), one.Level(std::nullopt, 8, 33.3));
}

}  // namespace
}  // namespace corvex
