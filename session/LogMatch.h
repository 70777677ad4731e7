// Whether a log and a definition belong together.
#pragma once

#include <string>

namespace corvex {

class ADXDefinition;
class DataLogEngine;

// Why the definition shows nothing, or not all, of the log that is open, as a line for the user; empty when it knows
// all of its commands. Main thread.
std::string WhyLogIsNotShown(const DataLogEngine& log, const ADXDefinition& definition);

}  // namespace corvex
