// The fixed part of the version block that a Windows program file carries.
#pragma once

#include <cstdint>

namespace corvex {

// The words as they stand in the block, high half first by meaning: version 1.2 is the word 0x00010002.
struct VersionBlock {
    std::uint32_t fileVersionMS = 0, fileVersionLS = 0, fileDateLS = 0;
};

// Reads the block of the file at `path`. False, and `block` untouched, when the file has none or can't be read; always
// so on systems whose programs carry no such block. Callable from any thread.
bool ReadVersionBlock(const char* path, VersionBlock& block);

}  // namespace corvex
