// What a reader of a log tells of what is not in it any more, or cannot be read.
#pragma once

#include <cstdint>
#include <string>

#include "logging/DataLogEngine.h"

namespace corvex {

class LogWalk;

// Empty when no fewer records came out than the header counts, as in a log that was never ended.
std::string MissingText(const LogHeader& header, std::uint32_t records);

// Where and how much, of a log that is damaged at byte `offset` with `left` bytes from there on.
std::string DamageText(std::uint64_t offset, std::uint64_t left);

// That there are so many bytes in front of the first record; empty for none.
std::string GapText(std::uint64_t gap);

// What ended a walk in front of the end of its file; empty at a clean end.
std::string EndText(const LogWalk& walk);

}  // namespace corvex
