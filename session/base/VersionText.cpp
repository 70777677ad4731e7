#include "session/base/VersionText.h"

#include <cstdio>

#include "platform/VersionBlock.h"

namespace corvex {

namespace {

int High(std::uint32_t word) {
    return static_cast<int>(word >> 16);
}
int Low(std::uint32_t word) {
    return static_cast<int>(word & 0xFFFF);
}

}  // namespace

int GetVersionText(const char* path, char* buffer, std::uint32_t size) {
    VersionBlock block;
    if (buffer == nullptr || size == 0 || !ReadVersionBlock(path, block)) return 0;
    std::snprintf(buffer, size, "%i.%.2i.%.4i.%.2i", High(block.fileVersionMS), Low(block.fileVersionMS),
                  High(block.fileVersionLS), Low(block.fileDateLS));
    return 1;
}

}  // namespace corvex
