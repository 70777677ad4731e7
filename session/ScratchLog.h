// The file that every recording goes to until the user has given it a name.
#pragma once

#include <string>

namespace corvex {

inline constexpr char kScratchLogName[] = "temp.xdl";

// In the program's folder; without one, the bare name. At most 260 characters, cut at the end.
std::string ScratchLogPath();

}  // namespace corvex
