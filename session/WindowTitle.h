// The main window's title.
#pragma once

#include <string>
#include <string_view>

namespace corvex {

// The last two components of a path, with the separator between them: enough to tell two files apart on one line.
// Behind a single separator, what follows it; without one, the whole.
std::string_view ShortForm(std::string_view path);

// "Corvex - ADX: %s  XDL: %s (Speed: %i%%)" with the short forms; `speed` is a factor, shown in per cent and cut.
std::string WindowTitle(std::string_view adxPath, std::string_view xdlPath, float speed);

}  // namespace corvex
