// When a record was taken, as a date and a time of day.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Clock.h"

namespace corvex {

// Whether the words of a header are a day that there is, and a time of it.
bool IsDate(const LocalTime& time);

// "2026-07-01T12:34:56.789", so many milliseconds behind `start`, which is a date. No change of the clock between
// winter and summer is known.
std::string AbsoluteTimeText(const LocalTime& start, std::uint32_t milliseconds);

}  // namespace corvex
