// Streams of the C library on files, for those who read or write one through from end to end.
#pragma once

#include <cstdio>

namespace corvex {

// Binary; the caller closes them. Null when the file can't be opened, and for a null path; narrow names in the system's
// own code page. Where the system knows such a thing, others may only read meanwhile what is being read here, and not
// open at all what is being written. Any thread.
[[nodiscard]] std::FILE* OpenToRead(const char* path);
// Made anew, an old one of that name emptied. A device or a pipe will do.
[[nodiscard]] std::FILE* OpenToWrite(const char* path);

}  // namespace corvex
