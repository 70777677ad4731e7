// Names for logs.
#pragma once

#include <string>

#include "platform/Clock.h"

namespace corvex {

// "harrier-2026-07-01-143205" for "harrier" and the time that a log was begun at, or, when a damaged header holds no
// such time, for the present.
std::string LogNameOf(const std::string& what, const LocalTime& begun);

// What a recording may be called: with the name of its definition's file, or as "log-2026-07-01-143205.xdl" when the
// path is empty. No character that a file name may not have on Windows, and short enough for any folder.
std::string SuggestedLogName(const std::string& definitionPath, const LocalTime& begun);

}  // namespace corvex
