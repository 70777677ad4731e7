// Gives a file another name without ever taking one that is in use, and removes files.
#pragma once

#include <cstdint>
#include <string>

namespace corvex {

// Moves the file `from` to the name `to`, which nobody may have yet; onto itself it is moved already. Across volumes it
// is copied, and the old one goes only when the new one is whole and on the disk. 0 on success, else the system's error
// number: `from` is then untouched, and so is whatever stood at `to`. Narrow names in the system's own code page. Any
// thread.
std::uint32_t MoveToNewName(const std::string& from, const std::string& to);

// 0 on success, else the system's error number. A folder is no file. Any thread.
std::uint32_t RemoveFile(const std::string& path);

// Do both names lead to one file that is there, through links too? Any thread.
bool IsSameFile(const std::string& one, const std::string& other);

}  // namespace corvex
