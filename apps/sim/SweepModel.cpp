#include "apps/sim/SweepModel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "apps/sim/Mixer.h"

namespace corvex {

namespace {

struct Frame {
    double time, level;
};

// Seconds of the cycle and level; the last frame equals the first. The drive begins with eight pulls through the
// speeds, each at a higher load, so that a table over speed and load fills.
constexpr std::array kRpm{Frame{0, 0},      Frame{1.2, 0},    Frame{1.6, 0.04}, Frame{2.6, 0.05}, Frame{3.2, 0.22},
                          Frame{4.5, 0.14}, Frame{6, 0.14},   Frame{6.6, 0.45}, Frame{7.6, 0.13}, Frame{9, 0.13},
                          Frame{9.7, 0.66}, Frame{11, 0.13},  Frame{20, 0.12},  Frame{21.5, 1},   Frame{23.8, 1},
                          Frame{26, 0.12},  Frame{40, 0.12},  Frame{42, 0.15},  Frame{51, 0.7},   Frame{54, 0.15},
                          Frame{63, 0.7},   Frame{66, 0.15},  Frame{75, 0.7},   Frame{78, 0.15},  Frame{87, 0.7},
                          Frame{90, 0.15},  Frame{99, 0.7},   Frame{102, 0.15}, Frame{111, 0.7},  Frame{114, 0.15},
                          Frame{123, 0.7},  Frame{126, 0.15}, Frame{135, 0.7},  Frame{139, 0.3},  Frame{140, 0.34},
                          Frame{150, 0.75}, Frame{156, 1},    Frame{159, 1},    Frame{161, 0.62}, Frame{168, 0.7},
                          Frame{190, 0.3},  Frame{200, 0.12}, Frame{231, 0.12}, Frame{232, 0},    Frame{240, 0}};
constexpr std::array kThrottle{
    Frame{0, 0},      Frame{5.9, 0},    Frame{6.2, 0.3},    Frame{6.8, 0},    Frame{8.9, 0},   Frame{9.2, 0.45},
    Frame{9.9, 0},    Frame{20, 0},     Frame{20.6, 0.9},   Frame{23.6, 0.9}, Frame{24.4, 0},  Frame{40, 0},
    Frame{43, 0.08},  Frame{51, 0.08},  Frame{52.5, 0.02},  Frame{55, 0.15},  Frame{63, 0.15}, Frame{64.5, 0.02},
    Frame{67, 0.22},  Frame{75, 0.22},  Frame{76.5, 0.02},  Frame{79, 0.3},   Frame{87, 0.3},  Frame{88.5, 0.02},
    Frame{91, 0.4},   Frame{99, 0.4},   Frame{100.5, 0.02}, Frame{103, 0.5},  Frame{111, 0.5}, Frame{112.5, 0.02},
    Frame{115, 0.62}, Frame{123, 0.62}, Frame{124.5, 0.02}, Frame{127, 0.8},  Frame{135, 0.8}, Frame{136.5, 0.02},
    Frame{145, 0.8},  Frame{148, 1},    Frame{158, 1},      Frame{160, 0},    Frame{164, 0.1}, Frame{180, 0.05},
    Frame{188, 0},    Frame{240, 0}};
constexpr std::array kSpeed{Frame{0, 0},     Frame{40, 0},     Frame{60, 0.35}, Frame{80, 0.4},
                            Frame{130, 0.5}, Frame{140, 0.45}, Frame{158, 1},   Frame{162, 1},
                            Frame{175, 0.5}, Frame{196, 0},    Frame{240, 0}};
constexpr std::array kCoolant{Frame{0, 0},      Frame{2.5, 0},    Frame{9, 0.2}, Frame{30, 0.34}, Frame{70, 0.55},
                              Frame{110, 0.67}, Frame{190, 0.68}, Frame{203, 1}, Frame{207, 1},   Frame{216, 0.7},
                              Frame{228, 0.5},  Frame{238, 0},    Frame{240, 0}};
constexpr std::array kAir{Frame{0, 0.25}, Frame{20, 0.3},   Frame{60, 0.22}, Frame{90, 0},
                          Frame{96, 0},   Frame{140, 0.28}, Frame{185, 0.4}, Frame{205, 1},
                          Frame{210, 1},  Frame{230, 0.4},  Frame{240, 0.25}};
constexpr std::array kManifold{
    Frame{0, 1},      Frame{1.6, 1},    Frame{3.2, 0.3},  Frame{5.9, 0.28},  Frame{6.2, 0.7},  Frame{7.2, 0.1},
    Frame{8.2, 0.28}, Frame{9.2, 0.8},  Frame{10.2, 0.1}, Frame{11.5, 0.28}, Frame{20, 0.28},  Frame{20.6, 0.95},
    Frame{23.6, 0.9}, Frame{25, 0},     Frame{27.5, 0},   Frame{29, 0.28},   Frame{40, 0.28},  Frame{43, 0.25},
    Frame{51, 0.25},  Frame{55, 0.35},  Frame{63, 0.35},  Frame{67, 0.45},   Frame{75, 0.45},  Frame{79, 0.55},
    Frame{87, 0.55},  Frame{91, 0.65},  Frame{99, 0.65},  Frame{103, 0.75},  Frame{111, 0.75}, Frame{115, 0.85},
    Frame{123, 0.85}, Frame{127, 0.95}, Frame{135, 0.95}, Frame{145, 0.9},   Frame{148, 1},    Frame{158, 1},
    Frame{160, 0},    Frame{163, 0},    Frame{168, 0.3},  Frame{231, 0.28},  Frame{233, 1},    Frame{240, 1}};
constexpr std::array kVoltage{Frame{0, 0.72},   Frame{1.1, 0.7},  Frame{1.5, 0.45}, Frame{2.6, 0.5},  Frame{4, 0.85},
                              Frame{60, 0.83},  Frame{160, 0.84}, Frame{163, 1},    Frame{165.5, 1},  Frame{168, 0.82},
                              Frame{226, 0.78}, Frame{232, 0},    Frame{235, 0},    Frame{238, 0.72}, Frame{240, 0.72}};
constexpr std::array kSpark{Frame{0, 0},      Frame{2.8, 0},    Frame{4, 0.3},   Frame{6, 0.35},   Frame{6.6, 0.7},
                            Frame{8, 0.35},   Frame{9.7, 0.75}, Frame{11, 0.35}, Frame{20, 0.35},  Frame{22, 0.8},
                            Frame{26, 0.35},  Frame{44, 0.6},   Frame{90, 0.8},  Frame{120, 1},    Frame{124, 1},
                            Frame{140, 0.75}, Frame{148, 0.45}, Frame{160, 0.6}, Frame{200, 0.35}, Frame{231, 0.3},
                            Frame{233, 0},    Frame{240, 0}};
constexpr std::array kPulse{Frame{0, 0},       Frame{1.2, 0},   Frame{1.6, 0.6},  Frame{2.6, 0.6},  Frame{4, 0.15},
                            Frame{6, 0.12},    Frame{6.4, 0.5}, Frame{7.2, 0.02}, Frame{8.5, 0.12}, Frame{9.4, 0.6},
                            Frame{10.4, 0.02}, Frame{12, 0.12}, Frame{20, 0.12},  Frame{21, 0.7},   Frame{25, 0},
                            Frame{27, 0},      Frame{29, 0.12}, Frame{44, 0.4},   Frame{90, 0.3},   Frame{140, 0.28},
                            Frame{149, 1},     Frame{157, 1},   Frame{160, 0},    Frame{163, 0},    Frame{170, 0.15},
                            Frame{231, 0.12},  Frame{232, 0},   Frame{240, 0}};
constexpr std::array kTrim{Frame{0, 0.5},    Frame{30, 0.5}, Frame{50, 0.58},  Frame{75, 0.44},
                           Frame{100, 0.53}, Frame{118, 0},  Frame{121, 0},    Frame{140, 0.55},
                           Frame{152, 1},    Frame{155, 1},  Frame{175, 0.47}, Frame{240, 0.5}};
constexpr std::array kIdle{Frame{0, 1},      Frame{3, 1},      Frame{6, 0.6}, Frame{20, 0.5},
                           Frame{60, 0.3},   Frame{140, 0.22}, Frame{146, 0}, Frame{158, 0},
                           Frame{165, 0.35}, Frame{225, 0.2},  Frame{234, 1}, Frame{240, 1}};
constexpr std::array kAirflow{Frame{0, 0},      Frame{1.2, 0},     Frame{3.2, 0.1}, Frame{6, 0.05},  Frame{6.5, 0.35},
                              Frame{7.6, 0.04}, Frame{9, 0.05},    Frame{9.5, 0.5}, Frame{11, 0.05}, Frame{20, 0.05},
                              Frame{21.5, 0.7}, Frame{24.5, 0.04}, Frame{40, 0.05}, Frame{50, 0.3},  Frame{90, 0.22},
                              Frame{140, 0.2},  Frame{152, 0.9},   Frame{155, 1},   Frame{158, 1},   Frame{161, 0.05},
                              Frame{170, 0.1},  Frame{231, 0.05},  Frame{232, 0},   Frame{240, 0}};

struct Course {
    std::span<const Frame> frames;
    double wobble;  // at mid-level; none at the ends
};

// None for what swings by itself, and for what no course was drawn for.
Course CourseOf(std::optional<Signal> signal) {
    if (!signal) return {{}, 0.0};
    switch (*signal) {
        case Signal::kRpm:
        case Signal::kDesiredIdle:
            return {kRpm, 0.01};
        case Signal::kThrottle:
        case Signal::kThrottleVoltage:
            return {kThrottle, 0.01};
        case Signal::kSpeed:
        case Signal::kShaftRpm:
            return {kSpeed, 0.01};
        case Signal::kCoolant:
        case Signal::kOilTemperature:
        case Signal::kTransmissionTemperature:
            return {kCoolant, 0.005};
        case Signal::kAirTemperature:
            return {kAir, 0.005};
        case Signal::kManifold:
        case Signal::kBoost:
        case Signal::kLoad:
            return {kManifold, 0.02};
        case Signal::kVoltage:
            return {kVoltage, 0.01};
        case Signal::kSpark:
            return {kSpark, 0.03};
        case Signal::kPulse:
        case Signal::kPulseRight:
            return {kPulse, 0.02};
        case Signal::kShortTrim:
        case Signal::kShortTrimRight:
        case Signal::kLongTrim:
        case Signal::kLongTrimRight:
            return {kTrim, 0.02};
        case Signal::kIdleValve:
            return {kIdle, 0.02};
        case Signal::kAirflow:
        case Signal::kAirMass:
        case Signal::kTorque:
            return {kAirflow, 0.02};
        default:
            return {{}, 0.0};
    }
}

double Follow(std::span<const Frame> frames, double time) {
    const auto next = std::upper_bound(frames.begin(), frames.end(), time,
                                       [](double t, const Frame& frame) { return t < frame.time; });
    if (next == frames.begin()) return frames.front().level;
    if (next == frames.end()) return frames.back().level;
    const Frame& before = *(next - 1);
    const double part = (time - before.time) / (next->time - before.time);
    return before.level + (next->level - before.level) * part * part * (3.0 - 2.0 * part);
}

constexpr double kTurn = 2.0 * std::numbers::pi;

}  // namespace

double SweepModel::Wave(std::uint32_t key, double seconds, double period) const {
    return std::clamp(0.5 - 0.58 * std::cos(kTurn * (seconds / period + FractionOf(seed_, key))), 0.0, 1.0);
}

double SweepModel::Level(std::optional<Signal> signal, std::uint32_t key, double seconds) const {
    // Rich and lean by turns; fast, so that the swing is seen between two polls.
    if (signal == Signal::kOxygen || signal == Signal::kOxygenRight)
        return Wave(key, seconds, 1.3 + FractionOf(seed_, key ^ 0x9E3779B9U));
    const Course course = CourseOf(signal);
    if (course.frames.empty()) return Wave(key, seconds, 25.0 + 35.0 * FractionOf(seed_, key ^ 0x9E3779B9U));
    const double level = Follow(course.frames, std::fmod(seconds, kCycle));
    const double phase = FractionOf(seed_, key);
    const double swing =
        0.6 * std::sin(kTurn * (seconds / 0.9 + phase)) + 0.4 * std::sin(kTurn * (seconds / 3.1 - phase));
    return std::clamp(level + course.wobble * swing * 4.0 * level * (1.0 - level), 0.0, 1.0);
}

}  // namespace corvex
