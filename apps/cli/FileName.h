// The check of an option that names a file.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace corvex {

// An empty name, as an unset variable of a shell leaves it, is wrong usage: the option was meant.
inline CLI::Validator FileName() {
    return {[](const std::string& name) { return name.empty() ? std::string("the name of the file is empty") : ""; },
            ""};
}

}  // namespace corvex
