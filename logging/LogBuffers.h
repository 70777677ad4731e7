// How large the buffers of a walk through a log are: what its items ask for, but no more than its file justifies.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "logging/LogItem.h"

namespace corvex {

// 0 without items.
std::uint32_t LargestPackedSize(const std::vector<LogItem>& items);
std::uint32_t LargestFullSize(const std::vector<LogItem>& items);

// Bytes that hold the data of any whole record in a file of `fileSize` bytes: one that does not fit is cut short.
// At least 1.
std::uint32_t PackedBufferSize(const std::vector<LogItem>& items, std::uint64_t fileSize);

// Bytes of an item's reply after expansion: its fullSize, but no more than 65536 or what its record in a file of that
// size and the bytes that a mask can leave out could fill, whichever is more. What is cut off are zeros; a log of
// records without data would cost hours to fill with them.
std::uint32_t ExpandedSize(const LogItem& item, std::uint64_t fileSize);
// The largest of them, at least 1.
std::uint32_t ExpandedBufferSize(const std::vector<LogItem>& items, std::uint64_t fileSize);

// Makes the buffer at least so large. False when there is no memory; it then stays as it was.
bool GrowBuffer(std::vector<std::uint8_t>& buffer, std::size_t size);

}  // namespace corvex
