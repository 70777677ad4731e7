// What the views have to show while they are measured.
#pragma once

#include <string>

#include "tools/driver/ProgramFolder.h"

namespace corvex::bench {

// The rows of the dash page's combo box.
enum Dashboard : int { kTwelveReadouts, kFourAnalog };

// Puts a copy of the 8192-baud example into the folder whose first two dashboards have twelve gauges each, four by
// three: eight readouts and four lamps, and the same with an analog gauge in place of every second readout. Its path.
// Throws std::runtime_error when the example lacks values or bitmasks for that.
std::string PutViewDefinition(const test::ProgramFolder& folder);

}  // namespace corvex::bench
