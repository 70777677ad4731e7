// Runs the built corvex-cli as a person would.
#pragma once

#include <string>
#include <vector>

namespace corvex {

struct ToolResult {
    int code = -1;
    std::string out, err;  // with LF line ends
};

// Through the system's shell; every argument is quoted. `before` goes in front of the program, unquoted.
ToolResult RunTool(const std::vector<std::string>& args, const std::string& before = "");

// A file of the source tree.
std::string Example(const std::string& name);

}  // namespace corvex
