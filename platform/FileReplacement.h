// Puts a freshly written file in the place of another in one step, so that there is always one whole file there.
#pragma once

#include <functional>
#include <string>

namespace corvex {

// All of these: callable from any thread; narrow names in the system's own code page.

// Where to write the new content of `path`: a name in the folder of the file itself (behind a link, the folder that the
// link leads to), which nobody uses. Empty when there is none: for a device, a pipe, a folder.
std::string FreshNameFor(const std::string& path);

// A device or a pipe is written to as it stands: nothing there can be replaced, and nothing lost.
bool IsDeviceOrPipe(const std::string& path);

// Moves `fresh`, a name from FreshNameFor, over `path`; file and folder are on the disk then, as far as the system lets
// that be known. A link stays a link, and what stood there hands its rights on. On failure false: what stood there
// still stands, and `fresh` is removed.
bool MoveIntoPlace(const std::string& fresh, const std::string& path);

// Removes what processes that are gone have left at names that FreshNameFor gave them for `path`. With `mayGo`, only
// those files for which that is true.
void SweepAbandoned(const std::string& path, const std::function<bool(const std::string&)>& mayGo = nullptr);

}  // namespace corvex
