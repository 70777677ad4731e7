// Sends bytes and takes a reply of a known length.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/ByteString.h"
#include "definition/PacketView.h"

namespace corvex {

// Milliseconds and bytes. The packet of a reply is the packetsize bytes from packetoffset on.
class ADXCSendCommand : public ADXObject {
public:
    static constexpr std::uint32_t kType = kTypeSendCommand;

    ADXCSendCommand() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    void SetBytes(const std::uint8_t* bytes, std::uint32_t len) { bytes_.Set(bytes, len); }
    const std::uint8_t* bytestring() const { return bytes_.Data(); }  // null when there is none
    std::uint32_t size() const { return bytes_.Size(); }

    // kReplyExpected in flags: a reply comes and is to be processed.
    bool ExpectsReply() const { return (flags & kReplyExpected) != 0; }

    // Both are cut to the bytes of the reply that came, and never "no packet", unless the reply is none.
    PacketView Packet(PacketView reply) const;
    // What items may read: from packetoffset to the end of the reply. Many definitions give a packetsize that is too
    // small, and still mean the fields behind it.
    PacketView ReadablePart(PacketView reply) const;

    std::uint32_t replysize = 0;
    std::uint32_t replytimeout = 200;
    std::uint32_t packetoffset = 0;
    std::uint32_t packetsize = 0;
    static constexpr std::uint32_t kReplyExpected = 1;
    std::uint32_t flags = 0;

private:
    ByteString bytes_;
};

}  // namespace corvex
