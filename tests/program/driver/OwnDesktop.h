// A desktop for this test program alone.
#pragma once

#include <string>

namespace corvex::test {

// Moves the calling thread, which must have no windows, and the programs that it starts there to a desktop of their
// own: what others start or bring to the front meanwhile is none of their business, keyboard included. One for the
// process, made at the first call. Its name. (Windows lets keys through to the desktop on show only.)
const std::string& OwnDesktop();

}  // namespace corvex::test
