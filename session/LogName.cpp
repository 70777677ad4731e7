#include "session/LogName.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace corvex {

namespace {

constexpr std::size_t kLongestName = 80;

bool IsTime(const LocalTime& time) {
    return time.year >= 1980 && time.year <= 9999 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
           time.day <= 31 && time.hour < 24 && time.minute < 60 && time.second < 60;
}

// Of "C:\\cars\\harrier.adx", whatever system's path it is.
std::string StemOf(const std::string& path) {
    std::string name = path.substr(path.find_last_of("/\\:") + 1);
    return name.substr(0, name.rfind('.'));
}

bool IsForbidden(char c) {
    return static_cast<unsigned char>(c) < ' ' || std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos;
}

}  // namespace

std::string LogNameOf(const std::string& what, const LocalTime& begun) {
    const LocalTime time = IsTime(begun) ? begun : CurrentLocalTime();
    char text[64];
    std::snprintf(text, sizeof text, "-%04u-%02u-%02u-%02u%02u%02u", unsigned{time.year}, unsigned{time.month},
                  unsigned{time.day}, unsigned{time.hour}, unsigned{time.minute}, unsigned{time.second});
    return what + text;
}

std::string SuggestedLogName(const std::string& definitionPath, const LocalTime& begun) {
    std::string name = StemOf(definitionPath).substr(0, kLongestName);
    std::ranges::replace_if(name, IsForbidden, '-');
    return LogNameOf(name.empty() ? "log" : name, begun) + ".xdl";
}

}  // namespace corvex
