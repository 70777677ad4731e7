// What to do about a line, for all who judge one.
#pragma once

#include <string_view>

namespace corvex {

// A sentence without a full stop for a word of LineVerdict or LinkState, true wherever it is shown; empty for a word
// whose next step depends on more.
const char* AdviceFor(std::string_view word);

}  // namespace corvex
