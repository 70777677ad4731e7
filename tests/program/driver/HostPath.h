// File names for programs of the host.
#pragma once

#include <string>

namespace corvex::test {

// How the host of Wine names this file, which need not be there. Throws std::runtime_error elsewhere.
std::string HostPath(const std::string& file);

}  // namespace corvex::test
