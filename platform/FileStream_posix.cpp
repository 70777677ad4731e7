#include "platform/FileStream.h"

namespace corvex {

std::FILE* OpenToRead(const char* path) {
    return path == nullptr ? nullptr : std::fopen(path, "rb");
}

std::FILE* OpenToWrite(const char* path) {
    return path == nullptr ? nullptr : std::fopen(path, "wb");
}

}  // namespace corvex
