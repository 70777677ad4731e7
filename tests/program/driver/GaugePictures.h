// What the gauges of a SmallDefinition's items must look like, drawn apart from the program.
#pragma once

#include <string>
#include <vector>

#include "tests/program/driver/Picture.h"

namespace corvex::test {

// In the size of a window's client area. `shown` are the values since the gauge was bound, which the extremes of a dial
// tell.
Picture DialPicture(HWND size, const std::string& title, const std::vector<float>& shown);
Picture ReadoutPicture(HWND size, const std::string& title, float value);
Picture LampPicture(HWND size, const std::string& title, bool isOn);

// The same of a readout with words of its own.
struct ReadoutWords {
    std::string title, units;
    unsigned digits = 1;
    float alarmLow = 10.0F, alarmHigh = 200.0F;
};
Picture ReadoutPicture(HWND size, const ReadoutWords& words, float value);

}  // namespace corvex::test
