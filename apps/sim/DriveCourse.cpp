#include "apps/sim/DriveCourse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace corvex {

namespace {

struct Keyframe {
    double time, level;
};

// Each pull is harder than the one before, so that a table over engine speed and load fills.
constexpr std::array kPedalFrames{
    Keyframe{-8, 0},     Keyframe{-3, 0},       Keyframe{-2.7, 0.3}, Keyframe{-2.3, 0.3}, Keyframe{-2, 0},
    Keyframe{6, 0},      Keyframe{7, 0.14},     Keyframe{14, 0.16},  Keyframe{15, 0},     Keyframe{19, 0},
    Keyframe{20, 0.26},  Keyframe{27, 0.28},    Keyframe{28, 0},     Keyframe{33, 0},     Keyframe{34, 0.4},
    Keyframe{40, 0.42},  Keyframe{41, 0},       Keyframe{47, 0},     Keyframe{48, 0.55},  Keyframe{53.5, 0.55},
    Keyframe{54.3, 0},   Keyframe{60, 0},       Keyframe{61, 0.2},   Keyframe{66, 0.135}, Keyframe{94, 0.135},
    Keyframe{95, 0.72},  Keyframe{100.5, 0.78}, Keyframe{101.3, 0},  Keyframe{107, 0},    Keyframe{108, 0.2},
    Keyframe{114, 0.15}, Keyframe{117, 0.15},   Keyframe{117.8, 1},  Keyframe{127, 1},    Keyframe{127.6, 0},
    Keyframe{134, 0},    Keyframe{135, 0.1},    Keyframe{139, 0.1},  Keyframe{140, 0},    Keyframe{160, 0}};
constexpr std::array kBrakeFrames{
    Keyframe{15.5, 0},   Keyframe{16, 0.22},  Keyframe{18.6, 0.22},  Keyframe{19, 0},       Keyframe{29, 0},
    Keyframe{29.5, 0.3}, Keyframe{32.5, 0.3}, Keyframe{33, 0},       Keyframe{42, 0},       Keyframe{42.6, 0.36},
    Keyframe{46.4, 0.3}, Keyframe{47, 0},     Keyframe{56, 0},       Keyframe{56.6, 0.3},   Keyframe{59.5, 0.2},
    Keyframe{60, 0},     Keyframe{103.5, 0},  Keyframe{104, 0.25},   Keyframe{106.5, 0.25}, Keyframe{107, 0},
    Keyframe{129.5, 0},  Keyframe{130, 0.35}, Keyframe{133.5, 0.35}, Keyframe{134, 0},      Keyframe{141, 0},
    Keyframe{142, 0.3},  Keyframe{150, 0.32}, Keyframe{156, 0.15},   Keyframe{157, 0}};
constexpr std::array kLeanFrames{Keyframe{69, 0}, Keyframe{70, 0.14}, Keyframe{81, 0.14}, Keyframe{82.5, 0}};

double LevelAt(std::span<const Keyframe> frames, double time) {
    if (time <= frames.front().time) return frames.front().level;
    if (time >= frames.back().time) return frames.back().level;
    const auto next = std::ranges::upper_bound(frames, time, {}, &Keyframe::time);
    const Keyframe& before = *(next - 1);
    return before.level + (next->level - before.level) * (time - before.time) / (next->time - before.time);
}

bool Within(double time, double from, double to) {
    return time >= from && time < to;
}

}  // namespace

double DriveCourse::Pedal(double lap) {
    return LevelAt(kPedalFrames, lap);
}

double DriveCourse::Brake(double lap) {
    return LevelAt(kBrakeFrames, lap);
}

bool DriveCourse::InDrive(double lap) {
    return Within(lap, 4.5, 156.5);
}

bool DriveCourse::CruiseControl(double lap) {
    return Within(lap, 67, 94);
}

bool DriveCourse::AirConditioning(double lap) {
    return Within(lap, 62, 112);
}

double DriveCourse::LeanBy(double lap) {
    return LevelAt(kLeanFrames, lap);
}

bool DriveCourse::Knocks(double lap) {
    return Within(lap, 97.2, 97.8) || Within(lap, 98.6, 99.0);
}

bool DriveCourse::Lamp(double lap) {
    return Within(lap, 78, 116);
}

double DriveCourse::Corner(double lap) {
    return 0.45 * std::sin(lap * 0.31) * std::sin(lap * 0.083);
}

}  // namespace corvex
