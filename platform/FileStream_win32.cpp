#include <share.h>

#include "platform/FileStream.h"

namespace corvex {

std::FILE* OpenToRead(const char* path) {
    return path == nullptr ? nullptr : ::_fsopen(path, "rb", _SH_DENYWR);
}

std::FILE* OpenToWrite(const char* path) {
    return path == nullptr ? nullptr : ::_fsopen(path, "wb", _SH_DENYRW);
}

}  // namespace corvex
