// Puts a freshly written file in the place of another in one step, so that there is always one whole file there.
#pragma once

#include <string>

namespace corvex {

// Where to write the new content of `path`: a name in the folder of the file itself (behind a link, the folder that the
// link leads to), which nobody uses. Empty when the file is nothing that can be replaced: a device, a pipe, a folder.
// Callable from any thread; narrow names in the system's own code page.
std::string FreshNameFor(const std::string& path);

// Moves `fresh`, a name from FreshNameFor, over `path`. A link stays a link, and what stood there hands its rights on.
// On failure false: what stood there still stands, and `fresh` is removed.
bool MoveIntoPlace(const std::string& fresh, const std::string& path);

}  // namespace corvex
