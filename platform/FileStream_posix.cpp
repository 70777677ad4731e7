#include <fcntl.h>
#include <unistd.h>

#include "platform/FileStream.h"

namespace corvex {

std::FILE* OpenToRead(const char* path) {
    if (path == nullptr) return nullptr;
    // A pipe that nobody writes to would otherwise be waited for in the opening; this way it ends at once.
    const int descriptor = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return nullptr;
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
    std::FILE* const file = fdopen(descriptor, "rb");
    if (file == nullptr) close(descriptor);
    return file;
}

std::FILE* OpenToWrite(const char* path) {
    return path == nullptr ? nullptr : std::fopen(path, "wb");
}

}  // namespace corvex
