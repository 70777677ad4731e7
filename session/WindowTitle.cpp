#include "session/WindowTitle.h"

namespace corvex {

namespace {

constexpr std::string_view kSeparators = "\\/";

}  // namespace

std::string_view ShortForm(std::string_view path) {
    const std::size_t last = path.find_last_of(kSeparators);
    if (last == std::string_view::npos) return path;
    const std::size_t before = last == 0 ? std::string_view::npos : path.find_last_of(kSeparators, last - 1);
    return path.substr(before == std::string_view::npos ? last + 1 : before + 1);
}

std::string WindowTitle(std::string_view adxPath, std::string_view xdlPath, float speed) {
    std::string title = "Corvex - ADX: ";
    title.append(ShortForm(adxPath)).append("  XDL: ").append(ShortForm(xdlPath)).append(" (Speed: ");
    return title.append(std::to_string(static_cast<int>(speed * 100.0F))).append("%)");
}

}  // namespace corvex
