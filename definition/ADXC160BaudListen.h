// Takes one packet off a 160-baud stream.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"

namespace corvex {

class ADXC160BaudListen : public ADXObject {
public:
    static constexpr std::uint32_t kType = kType160BaudListen;

    ADXC160BaudListen() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t flags = 0;       // loaded and saved; nothing tests a bit of it
    std::uint32_t packetsize = 0;  // decoded bytes in a packet
};

}  // namespace corvex
