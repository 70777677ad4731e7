// Waits for a pattern of bytes on the line.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/ByteString.h"
namespace corvex {

class ADXCListenChatter : public ADXObject {
public:
    static constexpr std::uint32_t kType = kTypeListenChatter;

    ADXCListenChatter() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    void SetBytes(const std::uint8_t* bytes, std::uint32_t len) { bytes_.Set(bytes, len); }
    const std::uint8_t* bytestring() const { return bytes_.Data(); }  // null when there is none
    std::uint32_t size() const { return bytes_.Size(); }

    std::uint32_t listentimeout = 400;  // milliseconds
    std::uint32_t flags = 0;            // loaded and saved; nothing tests a bit of it

private:
    ByteString bytes_;
};

}  // namespace corvex
