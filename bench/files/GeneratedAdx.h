#pragma once

#include <cstddef>
#include <string>

namespace corvex {

// The text of a definition as the program saves it, of at least size bytes: a header, then send commands, values,
// bits and tables in turn. The same size gives the same text.
std::string GenerateAdx(std::size_t size);

}  // namespace corvex
