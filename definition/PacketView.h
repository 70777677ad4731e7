// The decoded part of a reply, as the readers of values see it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace corvex {

// Points at bytes owned by somebody else and knows how many there are. Made from a bare pointer it trusts that the
// packet holds every field that will be asked for; whoever has bytes from a line or a file gives their count, and a
// field that does not lie wholly inside is then read as if there were no packet: the last raw word stands.
class PacketView {
public:
    PacketView(std::nullptr_t) {}          // NOLINT(google-explicit-constructor): "no packet" is an ordinary argument
    PacketView(const std::uint8_t* bytes)  // NOLINT(google-explicit-constructor)
        : bytes_(bytes), size_(bytes == nullptr ? 0 : kTrusted) {}
    PacketView(const std::uint8_t* bytes, std::uint32_t size) : bytes_(bytes), size_(bytes == nullptr ? 0 : size) {}

    explicit operator bool() const { return bytes_ != nullptr; }
    const std::uint8_t* Bytes() const { return bytes_; }
    std::uint32_t Size() const { return size_; }

    // The field's first byte, or null when it is not wholly inside.
    const std::uint8_t* Field(std::uint32_t offset, std::uint32_t length) const {
        if (bytes_ == nullptr) return nullptr;
        if (size_ != kTrusted && std::uint64_t{offset} + length > size_) return nullptr;
        return bytes_ + offset;
    }

private:
    static constexpr std::uint32_t kTrusted = 0xFFFFFFFF;

    const std::uint8_t* bytes_ = nullptr;
    std::uint32_t size_ = 0;
};

}  // namespace corvex
