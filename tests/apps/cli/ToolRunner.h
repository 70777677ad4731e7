// Runs the built corvex-cli as a person would.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace corvex {

using Words = std::vector<std::string>;

struct ToolResult {
    int code = -1;
    std::string out, err;  // with LF line ends
};

// Through the system's shell; every argument is quoted. `before` goes in front of the program, unquoted.
ToolResult RunTool(const Words& args, const std::string& before = "");

// A file of the source tree; the definitions among them.
std::string Example(const std::string& name);
inline constexpr std::array kExamples{"harrier-8192.adx", "osprey-multi.adx", "merlin-160.adx"};

// Success when the text holds the part.
testing::AssertionResult Has(const std::string& text, const std::string& part);

Words LinesOf(const std::string& text);

}  // namespace corvex
