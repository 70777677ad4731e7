// Reads a file in large pieces for a walk in small ones.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "platform/File.h"

namespace corvex {

// Stands on a file that it does not own, and has a position of its own in it. What it has read ahead is a fixed size,
// whatever the file's. A file that still grows is read on: the end is asked for anew each time it is met. One thread.
class LogReader {
public:
    static constexpr std::uint32_t kReadAhead = 65536;

    // Begins at the start of the file. Null: everything fails.
    void Attach(IFile* file);
    // Forgets what was read ahead, for a file that was written to.
    void Discard();

    // Bytes read, fewer only at the end of the file. No value when the system could not read.
    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count);
    std::uint64_t Position() const { return start_ + next_; }
    // Costs nothing inside what was read ahead; never fails before the next Read.
    void Seek(std::uint64_t offset);

private:
    bool Fill();

    IFile* file_ = nullptr;
    std::unique_ptr<std::uint8_t[]> ahead_;  // made when it is needed first
    std::uint64_t start_ = 0;                // of what was read ahead, in the file
    std::uint32_t filled_ = 0, next_ = 0;    // of ahead_
};

}  // namespace corvex
