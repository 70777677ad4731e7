#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "apps/sim/DriveCourse.h"
#include "apps/sim/EngineModel.h"

namespace corvex {
namespace {

constexpr double kFirstLapEnds = EngineModel::kStart + EngineModel::kLap;

class EngineModelTest : public ::testing::Test {
protected:
    // Calls `look` with the seconds and the states of two steps that follow each other.
    template <class Look>
    void EachStep(double from, double past, Look look) const {
        for (double time = from; time + EngineModel::kStep < past; time += EngineModel::kStep)
            look(time, model.At(time), model.At(time + EngineModel::kStep));
    }
    // Seconds of the first lap.
    EngineState InLap(double seconds) const { return model.At(EngineModel::kStart + seconds); }

    const EngineModel model{1};
};

TEST_F(EngineModelTest, TurnsEngineAndShaftTogetherWhileTheClutchIsClosed) {
    constexpr double kRatios[] = {0, 2.8, 1.6, 1.0, 0.7};
    int inGear[5] = {};
    EachStep(0, 2 * kFirstLapEnds, [&](double time, const EngineState& state, const EngineState&) {
        if (!state.Is(Condition::kClutchClosed)) return;
        const auto gear = static_cast<int>(state[Signal::kGear]);
        ++inGear[gear];
        ASSERT_NEAR(state[Signal::kRpm] / state[Signal::kShaftRpm], kRatios[gear], 0.04 * kRatios[gear]) << time;
        ASSERT_NEAR(state[Signal::kShaftRpm] / state[Signal::kSpeed], 29.09, 1.0) << time;
    });
    for (int gear = 1; gear <= 4; ++gear)
        EXPECT_GT(inGear[gear], 100) << gear;
}

TEST_F(EngineModelTest, ClosesThrottleAndEmptiesTheManifoldWhenItDecelerates) {
    int cuts = 0;
    EachStep(0, kFirstLapEnds, [&](double time, const EngineState& before, const EngineState& state) {
        if (!before.Is(Condition::kDecelCut) || !state.Is(Condition::kDecelCut)) return;
        ++cuts;
        ASSERT_LT(state[Signal::kThrottle], 0.02) << time;
        ASSERT_LT(state[Signal::kManifold], 40) << time;
        ASSERT_EQ(state[Signal::kPulse], 0) << time;
        ASSERT_LT(state[Signal::kTorque], 0) << time;
        ASSERT_LE(state[Signal::kSpeed], before[Signal::kSpeed]) << time;
    });
    EXPECT_GT(cuts, 200);
    EXPECT_LT(InLap(104)[Signal::kManifold], 25);  // after the hard pull
    EXPECT_GT(InLap(100)[Signal::kManifold], 80);
    EXPECT_GT(InLap(100)[Signal::kLoad], 3 * InLap(104)[Signal::kLoad]);
}

TEST_F(EngineModelTest, WarmsUpSteadilyToTheThermostatAndStaysThere) {
    bool warm = false;
    EachStep(0, 2 * kFirstLapEnds, [&](double time, const EngineState& before, const EngineState& state) {
        warm = warm || before[Signal::kCoolant] >= 86;
        ASSERT_GE(state[Signal::kCoolant], warm ? 85.5 : before[Signal::kCoolant]) << time;
        ASSERT_LE(state[Signal::kCoolant], 93.5) << time;
    });
    EXPECT_TRUE(warm);
    EXPECT_LT(model.At(0)[Signal::kCoolant], 50);
    EXPECT_GT(model.At(5)[Signal::kDesiredIdle], model.At(kFirstLapEnds - 1)[Signal::kDesiredIdle] + 100);
}

TEST_F(EngineModelTest, CranksOnTheBatteryAndChargesItWhenItRuns) {
    const EngineState key = model.At(1), crank = model.At(DriveCourse::kFiresAt - 0.2), idle = model.At(8);
    EXPECT_EQ(key[Signal::kRpm], 0);
    EXPECT_NEAR(key[Signal::kManifold], key[Signal::kBarometer], 0.5);
    EXPECT_TRUE(crank.Is(Condition::kCranking));
    EXPECT_NEAR(crank[Signal::kRpm], 205, 30);
    EXPECT_LT(crank[Signal::kVoltage], key[Signal::kVoltage] - 1.5);
    EXPECT_GT(idle[Signal::kVoltage], key[Signal::kVoltage] + 1);
    EXPECT_NEAR(idle[Signal::kRpm], idle[Signal::kDesiredIdle], 60);
    EXPECT_LT(key[Signal::kOilPressure], 1);
    EXPECT_GT(idle[Signal::kOilPressure], 150);
    EXPECT_GT(model.At(EngineModel::kStart - 2.4)[Signal::kRpm], 2 * idle[Signal::kRpm]);  // the blip
}

TEST_F(EngineModelTest, RunsLeanForAWhileUponWhichTheTrimsAddFuelAndTheLampComesOn) {
    const EngineState before = InLap(68), spell = InLap(70.5), learnt = InLap(80), after = InLap(94);
    EXPECT_TRUE(spell.Is(Condition::kLean));
    EXPECT_LT(spell[Signal::kOxygen], 0.2);
    const auto trim = [](const EngineState& state) { return state[Signal::kShortTrim] + state[Signal::kLongTrim]; };
    EXPECT_GT(trim(learnt), trim(before) + 0.1);
    EXPECT_GT(learnt[Signal::kLongTrim], before[Signal::kLongTrim] + 0.06);
    EXPECT_GT(learnt[Signal::kPulse], 1.08 * learnt[Signal::kPulseRight]);
    EXPECT_NEAR(trim(after), trim(before), 0.04);
    EXPECT_NEAR(learnt[Signal::kLongTrimRight], before[Signal::kLongTrimRight], 0.02);

    int comesOn = 0, goesOff = 0;
    EachStep(0, kFirstLapEnds, [&](double time, const EngineState& earlier, const EngineState& state) {
        const bool was = earlier.Is(Condition::kLamp), is = state.Is(Condition::kLamp);
        comesOn += !was && is ? 1 : 0;
        goesOff += was && !is ? 1 : 0;
        ASSERT_EQ(is, state.Is(Condition::kOxygenFault) && state[Signal::kFaults] == 1) << time;
    });
    EXPECT_EQ(comesOn, 1);
    EXPECT_EQ(goesOff, 1);
}

TEST_F(EngineModelTest, RetardsTheSparkWhenItKnocksAndNeverElse) {
    const EngineState before = InLap(97), knocks = InLap(97.8), after = InLap(106);
    EXPECT_GT(knocks[Signal::kKnockRetard], 5);
    EXPECT_LT(knocks[Signal::kSpark], before[Signal::kSpark] - 4);
    EXPECT_GT(knocks[Signal::kKnockCount], before[Signal::kKnockCount]);
    EXPECT_GT(knocks[Signal::kKnockLevel], 2 * before[Signal::kKnockLevel]);
    EXPECT_EQ(after[Signal::kKnockRetard], 0);
    EachStep(0, kFirstLapEnds, [&](double time, const EngineState&, const EngineState& state) {
        const double lap = time - EngineModel::kStart;
        ASSERT_EQ(state[Signal::kKnockRetard] > 0, lap > 97.15 && lap < 105 && state[Signal::kKnockRetard] > 0) << time;
    });
}

TEST_F(EngineModelTest, CountsRunTimeInWholeSecondsUpForEver) {
    EXPECT_EQ(model.At(DriveCourse::kFiresAt - 0.1)[Signal::kRunTime], 0);
    for (const double time : {3.0, 100.0, kFirstLapEnds + 3, 5 * kFirstLapEnds, 100000.0}) {
        const double told = model.At(time)[Signal::kRunTime];
        EXPECT_NEAR(told, time - DriveCourse::kFiresAt, 1) << time;
        EXPECT_EQ(told, std::floor(told));
        EXPECT_EQ(model.At(time + 1)[Signal::kRunTime], told + 1) << time;
        EXPECT_GT(model.At(time + 1)[Signal::kRevolutions], model.At(time)[Signal::kRevolutions]);
    }
}

TEST_F(EngineModelTest, NeverJumpsNotEvenFromLapToLap) {
    const std::pair<Signal, double> most[] = {
        {Signal::kRpm, 340},     {Signal::kSpeed, 0.8}, {Signal::kManifold, 16},        {Signal::kThrottle, 0.25},
        {Signal::kCoolant, 0.5}, {Signal::kVoltage, 1}, {Signal::kOilTemperature, 0.5}, {Signal::kLongTrim, 0.01}};
    EachStep(0, 6 * kFirstLapEnds, [&](double time, const EngineState& before, const EngineState& state) {
        for (const auto& [signal, step] : most)
            ASSERT_LE(std::abs(state[signal] - before[signal]), step) << static_cast<int>(signal) << " at " << time;
    });
}

TEST_F(EngineModelTest, DependsOnSeedAndTimeAlone) {
    const EngineModel again(1), other(2), turbo(1, true);
    EXPECT_EQ(model.At(99).signals, again.At(99).signals);
    EXPECT_NE(model.At(99).signals, other.At(99).signals);
    const auto most = [](const EngineModel& engine) {
        double pressure = 0;
        for (double time = 0; time < kFirstLapEnds; time += 0.5)
            pressure = std::max(pressure, engine.At(time)[Signal::kManifold]);
        return pressure;
    };
    EXPECT_LT(most(model), 100);
    EXPECT_GT(most(turbo), 150);
}

}  // namespace
}  // namespace corvex
