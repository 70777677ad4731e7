#pragma once

namespace corvex {

// What moves the values of a simulated engine: a car that is driven, or a course for each that takes it over its range.
enum class Motion { kDrive, kSweep };

}  // namespace corvex
