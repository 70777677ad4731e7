#include "session/PortDigit.h"

#include <cstddef>
#include <cstdlib>

namespace corvex {

namespace {

constexpr std::size_t kDigitPlace = 3;  // behind "COM"

}  // namespace

std::string PortDigitText(const AppSettings& settings) {
    if (std::string(settings.comport).size() <= kDigitPlace) return {};
    return std::to_string(static_cast<unsigned char>(settings.comport[kDigitPlace]) - '0');
}

void StorePortDigit(AppSettings& settings, const std::string& text) {
    const long long number = std::strtoll(text.c_str(), nullptr, 10);
    settings.comport[kDigitPlace] = static_cast<char>(static_cast<unsigned long long>(number) + '0');
}

}  // namespace corvex
