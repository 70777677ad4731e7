#include "apps/sim/SimulatedCar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "apps/sim/DriveCourse.h"
#include "apps/sim/EngineModel.h"
#include "apps/sim/Mixer.h"

namespace corvex {

namespace {

constexpr std::array kRatios{0.0, 2.8, 1.6, 1.0, 0.7};
constexpr double kFinalDrive = 3.4, kWheelRadius = 0.31;                                           // m
constexpr double kShaftPerSpeed = kFinalDrive / (kWheelRadius * 2 * std::numbers::pi) * 60 / 3.6;  // rpm at 1 km/h
constexpr double kMass = 1600, kGravity = 9.81, kDrag = 0.42, kRolling = 0.014;
constexpr double kPeakTorque = 310, kCylinders = 8, kFullCharge = 620;  // Nm, mg in a cylinder
constexpr double kThermostatOpens = 86, kAmbient = 19, kFirstCoolant = 41;
constexpr double kLimiter = 4850;  // rpm

// Goes toward the target, of which 63 % in `lag` seconds.
void Approach(double& number, double target, double lag) {
    number += (target - number) * (1 - std::exp(-EngineModel::kStep / lag));
}

double Ripple(double seconds, double phase) {
    return 0.6 * std::sin(2 * std::numbers::pi * (seconds / 0.83 + phase)) +
           0.4 * std::sin(2 * std::numbers::pi * (seconds / 2.9 - phase));
}

double EfficiencyAt(double rpm) {
    const double away = (rpm - 3000) / 1900;
    return 0.68 + 0.26 * std::exp(-away * away);
}

}  // namespace

SimulatedCar::SimulatedCar(std::uint64_t seed, bool turbo)
    : turbo_(turbo), size_(turbo ? 0.6 : 1), phase_(FractionOf(seed, 0)), step_(EngineModel::kStep) {
    const double day = 4 * FractionOf(seed, 1) - 2;  // warmer or colder
    state_.Set(Signal::kAirTemperature, kAmbient + day);
    state_.Set(Signal::kCoolant, kFirstCoolant + day);
    state_.Set(Signal::kOilTemperature, kFirstCoolant - 4 + day);
    state_.Set(Signal::kTransmissionTemperature, kFirstCoolant - 9 + day);
    state_.Set(Signal::kAltitude, 180);
    state_.Set(Signal::kVoltage, 12.4);
    state_.Set(Signal::kFuelLevel, 46.5);
    right_.rich = true;
}

void SimulatedCar::Step(double seconds, double lap) {
    seconds_ = seconds;
    cranking_ = seconds >= DriveCourse::kCrankFrom && seconds < DriveCourse::kFiresAt;
    if (!running_ && seconds >= DriveCourse::kFiresAt) {
        running_ = true;
        firedAt_ = seconds;
    }
    Drive(lap);
    Breathe();
    Push(DriveCourse::Brake(lap));
    Mix(lap);
    Ignite(lap);
    Heat();
    Supply();
    Tell(lap);
}

void SimulatedCar::Drive(double lap) {
    const double pedal = DriveCourse::Pedal(lap);
    drive_ = DriveCourse::InDrive(lap);
    lastThrottle_ = throttle_;
    Approach(throttle_, pedal, 0.08);
    if (throttle_ < 0.002) throttle_ = 0;
    Shift(pedal);
    TurnEngine(pedal);
    state_.Set(Signal::kThrottle, throttle_);
    state_.Set(Signal::kThrottleVoltage, 0.54 + 3.9 * throttle_);
    state_.Set(Signal::kGear, gear_);
}

void SimulatedCar::Shift(double pedal) {
    shiftLeft_ = std::max(0.0, shiftLeft_ - step_);
    dwellInGear_ += step_;
    if (!drive_ || gear_ == 0) {
        gear_ = drive_ ? 1 : 0;
        return;
    }
    if (shiftLeft_ > 0 || dwellInGear_ < 1.0) return;
    const double rpm = At(Signal::kShaftRpm) * kRatios[static_cast<std::size_t>(gear_)];
    int wanted = gear_;
    if (gear_ < 4 && rpm > 1750 + 2950 * std::min(pedal, 1.0) && pedal > 0.02) wanted = gear_ + 1;
    if (gear_ > 1 && rpm < 1050 + 1550 * pedal) wanted = gear_ - 1;
    if (wanted == gear_) return;
    gear_ = wanted;
    dwellInGear_ = 0;
    shiftLeft_ = 0.52 - 0.24 * pedal;
    state_.Set(Signal::kShiftTime, shiftLeft_ * 1000);
}

// With the clutch closed the wheels turn the engine; without, it finds its own speed.
void SimulatedCar::TurnEngine(double pedal) {
    const double coolant = At(Signal::kCoolant);
    const double idle = drive_ ? 650 : 720 + 8 * std::max(0.0, 80 - coolant);
    state_.Set(Signal::kDesiredIdle, running_ ? idle : 0);
    double rpm = At(Signal::kRpm);
    const double shaft = At(Signal::kSpeed) * kShaftPerSpeed;
    const double geared = shaft * kRatios[static_cast<std::size_t>(gear_)];
    const double stall = idle + (drive_ ? 1500 * pedal : 9500 * throttle_);
    if (!running_) {
        Approach(rpm, cranking_ ? 205 + 22 * Ripple(seconds_ * 4, phase_) : 0, 0.12);
        coupled_ = false;
    } else if (gear_ > 0 && shiftLeft_ <= 0 && geared >= stall - (coupled_ ? 500 * pedal + 20 : 0)) {
        const double slip = 0.02 * At(Signal::kLoad) * (state_.Is(Condition::kConverterLocked) ? 0 : 1);
        Approach(rpm, geared * (1 + slip), coupled_ ? 0.01 : 0.1);
        coupled_ = coupled_ || std::abs(rpm - geared) < 0.03 * geared;
    } else {
        coupled_ = false;
        const bool flares = seconds_ - firedAt_ < 0.7;
        const double target = flares ? 1500 : shiftLeft_ > 0 ? std::max(geared, stall) : stall;
        Approach(rpm, target + 7 * Ripple(seconds_, phase_), target > rpm ? 0.22 : 0.5);
    }
    state_.Set(Signal::kRpm, std::min(rpm, kLimiter));
    state_.Set(Signal::kShaftRpm, shaft);
    if (running_) revolutions_ += At(Signal::kRpm) / 60 * step_;
}

void SimulatedCar::Breathe() {
    const double rpm = At(Signal::kRpm), altitude = At(Signal::kAltitude);
    const double outside = 101.3 * (1 - altitude / 8434);
    const double cold = std::clamp((80 - At(Signal::kCoolant)) / 60, 0.0, 1.0);
    double valve = running_ ? 0.2 + 0.3 * cold : 0.75;
    if (running_ && throttle_ > 0.03) valve += 0.1;
    if (running_ && throttle_ <= 0.03 && rpm > 1500) valve += 0.16;  // follows the falling engine
    double told = At(Signal::kIdleValve);
    Approach(told, valve, 0.6);
    state_.Set(Signal::kIdleValve, told);

    const double opening = 0.0085 + 0.018 * told + 2.2 * std::pow(throttle_, 1.9);
    const double turning = 0.2 * rpm / 6000;
    double pressure = outside * (rpm < 30 ? 1 : opening / (opening + turning));
    const double spool = std::clamp((pressure - 74) / 20, 0.0, 1.0) * std::clamp((rpm - 1600) / 1300, 0.0, 1.0);
    Approach(boost_, turbo_ ? 78 * spool : 0, spool * 78 > boost_ ? 0.7 : 0.25);
    pressure = std::max(pressure + boost_, 19.0);
    Approach(airCharge_, pressure, 0.09);
    const double trembles = rpm < 30 ? 0 : 0.35 * Ripple(seconds_ * 3, phase_);
    state_.Set(Signal::kManifold, airCharge_ + trembles);
    state_.Set(Signal::kBarometer, outside);
    state_.Set(Signal::kBoost, airCharge_ - outside);
    state_.Set(Signal::kVacuum, std::max(0.0, outside - airCharge_));
    state_.Set(Signal::kWastegate, std::clamp(boost_ / 78, 0.0, 1.0) * 0.7);

    const double full = EfficiencyAt(rpm);
    const double mass =
        rpm < 30 ? 0 : kFullCharge * full * airCharge_ / 100 * 293 / (273 + At(Signal::kAirTemperature));
    state_.Set(Signal::kEfficiency, rpm < 30 ? 0 : full);
    state_.Set(Signal::kAirMass, mass);
    state_.Set(Signal::kAirflow, mass / 1000 * rpm / 120 * kCylinders * size_);
    state_.Set(Signal::kLoad, running_ ? std::clamp(mass / (kFullCharge * 0.92), 0.0, 1.0) : 0);
}

void SimulatedCar::Push(double brake) {
    const double rpm = At(Signal::kRpm);
    if (throttle_ > 0.01 || !coupled_ || rpm < 1150 || At(Signal::kCoolant) < 45)
        fuelCut_ = false;
    else if (rpm > 1500)
        fuelCut_ = true;
    const double burnt = fuelCut_ ? 0 : size_ * kPeakTorque * 1.3 * (airCharge_ - 12) / 90 * EfficiencyAt(rpm);
    double torque = running_ ? burnt - 38 - rpm / 180 - std::max(0.0, 99 - airCharge_) * 0.42 : 0;
    if (rpm >= kLimiter - 1) torque = std::min(torque, 0.0);
    if (running_ && !coupled_ && throttle_ < 0.01) torque = 9;  // what turns the alternator
    if (shiftLeft_ > 0) torque *= 0.4;
    state_.Set(Signal::kTorque, torque);
    state_.Set(Signal::kPower, torque * rpm / 9549);

    double speed = At(Signal::kSpeed) / 3.6;
    const double multiplied = coupled_ || gear_ == 0 ? 1 : 1.45;
    double force =
        gear_ == 0 ? 0
                   : torque * multiplied * kRatios[static_cast<std::size_t>(gear_)] * kFinalDrive * 0.88 / kWheelRadius;
    if (throttle_ < 0.01 && !coupled_) force = 0;
    const double held = speed > 0.05 ? kMass * kGravity * kRolling + kMass * 9 * brake : 0;
    speed = std::max(0.0, speed + (force - kDrag * speed * speed - held) / kMass * step_);
    if (speed < 0.12 && throttle_ < 0.01) speed = 0;
    state_.Set(Signal::kSpeed, speed * 3.6);
    distance_ += speed * step_;
    state_.Set(Signal::kAltitude, 180 + 24 * std::sin(distance_ / 900));
}

// How far the bank's trims get away from what the engine wants, turned into what its oxygen sensor shows.
double SimulatedCar::ControlBank(Bank& bank, double wanted, bool loop, bool learns, double phase) {
    const double wave = std::sin(2 * std::numbers::pi * (seconds_ / (At(Signal::kRpm) > 1200 ? 0.9 : 1.5) + phase));
    if (loop) {
        Approach(bank.shortTrim, wanted - bank.longTrim, 1.6);
        if (learns) Approach(bank.longTrim, bank.longTrim + bank.shortTrim, 9);
    } else {
        Approach(bank.shortTrim, 0, 0.4);
    }
    const double error = bank.shortTrim + bank.longTrim - wanted;
    double shown = error < -0.025 ? 0.08 : error > 0.025 ? 0.84 : 0.46 + 0.36 * std::tanh(2.5 * wave);
    if (!loop) shown = power_ ? 0.89 : fuelCut_ ? 0.03 : running_ ? 0.62 : 0.45;
    Approach(bank.oxygen, shown, 0.07);
    const bool rich = bank.oxygen > 0.45;
    if (&bank == &left_ && rich != bank.rich) ++crossCount_;
    bank.rich = rich;
    return loop ? 0.014 * wave : 0;
}

void SimulatedCar::Mix(double lap) {
    const double coolant = At(Signal::kCoolant), rpm = At(Signal::kRpm);
    const double sinceFired = running_ ? seconds_ - firedAt_ : 0;
    power_ = running_ && (throttle_ > 0.62 || (power_ && throttle_ > 0.55));
    const bool loop = running_ && sinceFired > 12 && coolant > 48 && !power_ && !fuelCut_;
    const bool learns = loop && coolant > 65 && throttle_ > 0.01;
    const double swing = ControlBank(left_, 0.015 + DriveCourse::LeanBy(lap), loop, learns, phase_);
    const double swingRight = ControlBank(right_, -0.012, loop, learns, phase_ + 0.37);
    const double coldRich = std::clamp((70 - coolant) / 80, 0.0, 1.0) * 2.4;
    const double ratio = power_ ? 12.6 : 14.7 - (loop ? 0 : coldRich);

    Approach(enrichment_, std::max(0.0, (throttle_ - lastThrottle_) / step_ - 0.15) * 2.2, 0.18);
    const auto pulse = [&](const Bank& bank, double swung) {
        if (cranking_) return 13.5;
        if (!running_ || fuelCut_) return 0.0;
        return At(Signal::kAirMass) / ratio / 4.1 * (1 + bank.shortTrim + bank.longTrim + swung) + 0.3 + enrichment_;
    };
    const double left = pulse(left_, swing);
    state_.Set(Signal::kPulse, left);
    state_.Set(Signal::kPulseRight, pulse(right_, swingRight));
    state_.Set(Signal::kDuty, left * rpm / 120000);
    state_.Set(Signal::kAirFuel, ratio);
    state_.Set(Signal::kFuelFlow, running_ && !fuelCut_ ? At(Signal::kAirflow) / ratio * 4.83 : 0);
    state_.Set(Signal::kEnrichment, enrichment_);
    state_.Set(Signal::kOxygen, left_.oxygen);
    state_.Set(Signal::kOxygenRight, right_.oxygen);
    state_.Set(Signal::kCrossCount, crossCount_ % 256);
    state_.Set(Signal::kShortTrim, left_.shortTrim + swing);
    state_.Set(Signal::kShortTrimRight, right_.shortTrim + swingRight);
    state_.Set(Signal::kLongTrim, left_.longTrim);
    state_.Set(Signal::kLongTrimRight, right_.longTrim);
    const bool warmCruise = loop && coolant > 70 && coupled_ && throttle_ > 0.03;
    state_.Set(Signal::kRecirculation,
               warmCruise ? std::clamp(0.5 - std::abs(At(Signal::kLoad) - 0.45) * 1.6, 0.0, 0.4) : 0);
    state_.Set(Signal::kPurge, warmCruise ? std::clamp(At(Signal::kAirflow) / 90, 0.0, 0.6) : 0);
    state_.Set(Condition::kClosedLoop, loop);
    state_.Set(Condition::kLearning, learns);
    state_.Set(Condition::kLean, !left_.rich);
    state_.Set(Condition::kLeanRight, !right_.rich);
    state_.Set(Condition::kTipIn, enrichment_ > 0.3);
}

void SimulatedCar::Ignite(double lap) {
    const double rpm = At(Signal::kRpm), cold = std::clamp((60 - At(Signal::kCoolant)) / 8, 0.0, 4.0);
    double base = 0;
    if (cranking_) base = 8;
    if (running_ && throttle_ < 0.01 && !coupled_)
        base = 18 + cold + 1.2 * Ripple(seconds_ * 2, phase_);
    else if (running_)
        base = std::clamp(12 + std::min(rpm, 3200.0) / 215 + (100 - airCharge_) * 0.17, 4.0, 39.5);
    const bool knocks = running_ && DriveCourse::Knocks(lap);
    if (knocks) {
        retard_ = std::min(retard_ + 14 * step_, 7.0);
        knockUntilCount_ += step_;
        if (knockUntilCount_ > 0.09) ++knockCount_, knockUntilCount_ = 0;
    } else {
        retard_ = std::max(0.0, retard_ - 1.6 * step_);
    }
    state_.Set(Signal::kSpark, base - std::min(base, retard_));
    state_.Set(Signal::kKnockRetard, retard_);
    state_.Set(Signal::kKnockCount, knockCount_ % 256);
    double level = At(Signal::kKnockLevel);
    Approach(level, knocks ? 3.9 : rpm < 30 ? 0 : 0.3 + rpm / 9000, 0.06);
    state_.Set(Signal::kKnockLevel, level);
    state_.Set(Signal::kDwell, rpm < 30 ? 0 : 3.4 * 14 / At(Signal::kVoltage));
    state_.Set(Condition::kKnocking, knocks);
}

void SimulatedCar::Heat() {
    const auto move = [&](Signal signal, double target, double lag) {
        double degrees = At(signal);
        Approach(degrees, target, lag);
        state_.Set(signal, degrees);
    };
    double coolant = At(Signal::kCoolant);
    const double made = running_ ? 0.2 + At(Signal::kAirflow) / 62 : 0;
    const double open = std::clamp((coolant - kThermostatOpens) / 6, 0.0, 1.0);
    const double fan = At(Signal::kFan);
    coolant += (made - open * (0.3 + 1.3 * open + fan * 0.5 + At(Signal::kSpeed) / 150)) * step_;
    state_.Set(Signal::kCoolant, coolant);
    const bool low = coolant > 90.5 || (fan > 0 && coolant > 89);
    const bool high = coolant > 94 || (fan > 0.5 && coolant > 92);
    state_.Set(Signal::kFan, !running_ ? 0 : high ? 0.9 : low ? 0.4 : 0);
    move(Signal::kOilTemperature, coolant + At(Signal::kRpm) / 350, 55);
    move(Signal::kTransmissionTemperature, coolant - 9 + std::abs(At(Signal::kTorque)) / 12, 75);
    move(Signal::kAirTemperature, kAmbient + (running_ ? 16 / (1 + At(Signal::kSpeed) / 30) : 0) + boost_ / 4, 14);
}

void SimulatedCar::Supply() {
    const double rpm = At(Signal::kRpm), fan = At(Signal::kFan);
    const auto move = [&](Signal signal, double target, double lag) {
        double number = At(signal);
        Approach(number, target, lag);
        state_.Set(signal, number);
    };
    const double charged = 14.2 - 0.35 * fan - (rpm < 900 ? 0.25 : 0);
    if (cranking_)
        move(Signal::kVoltage, 10.1 + 0.25 * Ripple(seconds_ * 4, phase_), 0.08);
    else
        move(Signal::kVoltage, running_ ? charged + 0.04 * Ripple(seconds_, phase_) : 12.3, running_ ? 0.9 : 0.5);
    const double thin = std::clamp((At(Signal::kOilTemperature) - 40) * 1.1, 0.0, 90.0);
    move(Signal::kOilPressure, rpm < 100 ? 0 : std::clamp(190 + rpm * 0.085 - thin, 60.0, 480.0), 0.4);
    const bool pump = running_ || cranking_ || seconds_ < 2;
    move(Signal::kFuelPressure, pump ? 300 + (airCharge_ - 100) * 0.55 : 250, pump ? 0.25 : 3);
    move(Signal::kLinePressure, rpm < 100 ? 0 : 420 + 3.2 * std::max(0.0, At(Signal::kTorque)), 0.3);
    state_.Set(Signal::kFuelLevel, At(Signal::kFuelLevel));
    state_.Set(Condition::kFuelPump, pump);
    state_.Set(Condition::kOilLow, At(Signal::kOilPressure) < 70);
}

void SimulatedCar::Tell(double lap) {
    const double rpm = At(Signal::kRpm), speed = At(Signal::kSpeed);
    state_.Set(Signal::kLateral, DriveCourse::Corner(lap) * speed * speed / 10000);
    state_.Set(Signal::kRunTime, running_ ? std::floor(seconds_ - firedAt_ + 1e-6) : 0);
    state_.Set(Signal::kRevolutions, std::floor(revolutions_));
    state_.Set(Signal::kLoops, std::fmod(std::floor(seconds_ * 12.5), 256));
    const bool lamp = DriveCourse::Lamp(lap);
    state_.Set(Signal::kFaults, lamp ? 1 : 0);
    state_.Set(Condition::kLamp, lamp);
    state_.Set(Condition::kOxygenFault, lamp);
    state_.Set(Condition::kCranking, cranking_);
    state_.Set(Condition::kDecelCut, fuelCut_);
    state_.Set(Condition::kPowerMixture, power_);
    state_.Set(Condition::kAcRequest, DriveCourse::AirConditioning(lap));
    state_.Set(Condition::kAcClutch, DriveCourse::AirConditioning(lap) && throttle_ < 0.6);
    state_.Set(Condition::kFanLow, At(Signal::kFan) > 0);
    state_.Set(Condition::kFanHigh, At(Signal::kFan) > 0.5);
    state_.Set(Condition::kClutchClosed, coupled_);
    const bool cruises = coupled_ && gear_ >= 3 && dwellInGear_ > 1.5 && throttle_ > 0.02 && throttle_ < 0.5;
    state_.Set(Condition::kConverterLocked, cruises && At(Signal::kCoolant) > 55);
    state_.Set(Condition::kBrake, DriveCourse::Brake(lap) > 0 || (drive_ && speed == 0 && throttle_ == 0));
    state_.Set(Condition::kParked, gear_ == 0);
    state_.Set(Condition::kCruise, DriveCourse::CruiseControl(lap));
    state_.Set(Condition::kShiftLamp, rpm > 4300);
}

}  // namespace corvex
