// Why something could not be written, in the system's words.
#pragma once

#include <string>

namespace corvex {

// Before an attempt: the reasons of earlier ones are no longer asked for. Per thread.
void ForgetReason();

// After an attempt of the standard library or of platform/ that failed. `path` is what was to be written, empty for a
// stream. Empty when the system has not said; else without a full stop.
std::string ReasonNotWritten(const std::string& path);

// " cannot be written", with that reason behind it where there is one.
std::string CannotBeWritten(const std::string& reason);

}  // namespace corvex
