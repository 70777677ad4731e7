// The bytes that a command sends or waits for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvex {

class XMLWriter;

// An owned byte array. Not terminated; zeros are bytes like any other.
class ByteString {
public:
    // Replaces the bytes; null or zero length leaves none.
    void Set(const std::uint8_t* bytes, std::uint32_t len);

    const std::uint8_t* Data() const { return bytes_.empty() ? nullptr : bytes_.data(); }  // null when empty
    std::uint32_t Size() const { return static_cast<std::uint32_t>(bytes_.size()); }

    // Writes "0x%.2X " for each byte, in order, as far as `size` bytes of output reach; the trailing blank stays.
    void FormatTo(char* out, std::size_t size) const;

private:
    std::vector<std::uint8_t> bytes_;
};

}  // namespace corvex
