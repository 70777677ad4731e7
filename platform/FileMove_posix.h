// What moving a file is made of on systems that lack a way which never replaces.
#pragma once

#include <string>

namespace corvex {

// Like MoveToNewName, each: 0 or errno. The first needs a file system with links. The second copies: it goes across
// file systems and anywhere else, for regular files.
int MoveByLink(const std::string& from, const std::string& to);
int MoveByCopy(const std::string& from, const std::string& to);

// A file whose entry is not on the disk is not on the disk. Not every file system can be told; that is no failure.
void FlushFolderOf(const std::string& path);

}  // namespace corvex
