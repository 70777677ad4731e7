// Many values for one comparison.
#pragma once

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

namespace corvex::test {

// With blanks between them, bytes as numbers: Listed(7, "COM1", true) is "7 COM1 1".
template <class... Values>
std::string Listed(const Values&... values) {
    std::ostringstream text;
    const char* between = "";
    const auto add = [&](const auto& value) {
        text << std::exchange(between, " ");
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
            text << +value;
        } else {
            text << value;
        }
    };
    (add(values), ...);
    return text.str();
}

}  // namespace corvex::test
