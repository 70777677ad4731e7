// The version of a program file as the splash and the About box show it.
#pragma once

#include <cstdint>

namespace corvex {

// Writes major.minor.build.date, at most size-1 characters and a terminator. Nonzero on success; a file without a
// version block gives 0 and leaves the buffer alone. The fourth place shows the low half of the file's date word, not
// the fourth part of its version: that is the form users quote.
int GetVersionText(const char* path, char* buffer, std::uint32_t size);

}  // namespace corvex
