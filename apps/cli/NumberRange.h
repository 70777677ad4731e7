// The check of an option that takes a number.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "export/text/TextFormat.h"

namespace corvex {

// From `low` to `high`, both included. What is no number at all lies in no range, as a comparison of it never fails.
inline CLI::Validator NumberRange(double low, double high) {
    const std::string what = Printf("a number from %.10g to %.10g is asked for", low, high);
    return {[=](const std::string& text) {
                double number = 0.0;
                const bool inside = CLI::detail::lexical_cast(text, number) && number >= low && number <= high;
                return inside ? std::string() : what + ", not " + text;
            },
            ""};
}

}  // namespace corvex
