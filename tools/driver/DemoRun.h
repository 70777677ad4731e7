// A session from the first connect to the exit, told on the standard output.
#pragma once

#include <string>

namespace corvex::test {

// Connects, records ten seconds of scan, saves and plays the log back, in the Corvex.exe of `folder`. A picture of each
// tab goes to `pictures`, a folder as the host names it. Throws std::runtime_error when something goes wrong.
void RunDemo(const std::string& folder, const std::string& pictures);

}  // namespace corvex::test
