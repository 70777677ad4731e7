// The number in the name of a serial port, as Preferences shows it and takes it back.
#pragma once

#include <string>

#include "session/AppSettings.h"

namespace corvex {

// What the user may type; more does not fit the name.
inline constexpr int kPortDigitLimit = 2;

// "1" for "COM1": how far the fourth character of the name lies above "0". Empty when the name ends before it.
std::string PortDigitText(const AppSettings& settings);

// Puts the number that `text` begins with, 0 when it begins with none, above "0" into the fourth character of the name.
// Nothing else changes: 10 and more give a character that is no digit, and a port that can't be opened. Settings.dat is
// the place for other ports.
void StorePortDigit(AppSettings& settings, const std::string& text);

}  // namespace corvex
