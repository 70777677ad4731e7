// The ways to move a file on systems that lack one which never replaces.
#pragma once

#include <string>

namespace corvex {

// Like MoveToNewName, each: 0 or errno. The first needs a file system with links. The second copies: it goes across
// file systems and anywhere else, for regular files.
int MoveByLink(const std::string& from, const std::string& to);
int MoveByCopy(const std::string& from, const std::string& to);

}  // namespace corvex
