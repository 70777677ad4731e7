#include "logging/LogBuffers.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace corvex {

namespace {

constexpr std::uint32_t kLargestMaskBits = 255 * 8;
// As long a reply as any line has brought is given whole, whatever the rest of the file.
constexpr std::uint64_t kAlwaysGiven = 65536;

std::uint32_t Smaller(std::uint32_t size, std::uint64_t limit) {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(size, limit));
}

}  // namespace

std::uint32_t LargestPackedSize(const std::vector<LogItem>& items) {
    std::uint32_t largest = 0;
    for (const LogItem& item : items)
        largest = std::max(largest, item.packedSize);
    return largest;
}

std::uint32_t LargestFullSize(const std::vector<LogItem>& items) {
    std::uint32_t largest = 0;
    for (const LogItem& item : items)
        largest = std::max(largest, item.fullSize);
    return largest;
}

std::uint32_t PackedBufferSize(const std::vector<LogItem>& items, std::uint64_t fileSize) {
    return std::max(Smaller(LargestPackedSize(items), fileSize), 1U);
}

std::uint32_t ExpandedSize(const LogItem& item, std::uint64_t fileSize) {
    const std::uint64_t filled = std::min<std::uint64_t>(item.packedSize, fileSize) + kLargestMaskBits;
    return Smaller(item.fullSize, std::max(filled, kAlwaysGiven));
}

std::uint32_t ExpandedBufferSize(const std::vector<LogItem>& items, std::uint64_t fileSize) {
    std::uint32_t largest = 1;
    for (const LogItem& item : items)
        largest = std::max(largest, ExpandedSize(item, fileSize));
    return largest;
}

bool GrowBuffer(std::vector<std::uint8_t>& buffer, std::size_t size) {
    if (buffer.size() >= size) return true;
    try {
        buffer.resize(size);
    } catch (const std::bad_alloc&) {
        return false;
    } catch (const std::length_error&) {
        return false;
    }
    return true;
}

}  // namespace corvex
