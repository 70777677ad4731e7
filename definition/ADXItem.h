// What values and bitmasks have in common: a field in the replies of a command, and the raw word last taken from it.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/FieldReader.h"
#include "definition/PacketView.h"
#include "definition/RawWord.h"

namespace corvex {

class ADXItem : public ADXObject {
public:
    static constexpr std::uint32_t kType = kItemTypes;

    // The raw word. A null packet gives the last one and changes nothing; a packet gives and stores a new one.
    std::uint32_t GetRaw(PacketView packet, std::uint32_t offset = 0, std::uint32_t options = 0) {
        return rawvalue_.Take(Place(), packet, offset, options);
    }
    // Whether replies of the command carry it.
    bool BelongsTo(std::uint32_t commandId) const { return BelongsToCommand(parentcmdidhash, commandId); }
    bool IsLowByteFirst() const { return Place().IsLowByteFirst(); }

    std::uint32_t flags = 0;            // kFlagLowByteFirst, and what the class adds
    std::uint32_t parentcmdidhash = 0;  // idhash of the command whose reply carries it; 0: any
    std::uint32_t packetoffset = 0;     // bytes into the decoded part of the reply
    std::uint32_t sizeinbits = 8;       // whole bytes are read: 12 reads one

protected:
    explicit ADXItem(std::uint32_t type) : ADXObject(type) {}

    FieldPlace Place() const { return {packetoffset, sizeinbits, flags}; }

    RawWord rawvalue_;
};

}  // namespace corvex
