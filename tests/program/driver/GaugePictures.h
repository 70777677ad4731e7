// What the gauges of the items of a ViewsProgramTest must look like, drawn apart from the program.
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

}  // namespace corvex::test
