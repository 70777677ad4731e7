// One reply of the line, handed from the connect thread to the main thread.
#pragma once

#include <cstdint>
#include <vector>

#include "definition/PacketView.h"

namespace corvex {

class ADXObject;

struct ReplyEvent {
    double t = 0.0;                      // seconds since the scan began
    const ADXObject* command = nullptr;  // of the definition in use
    std::uint32_t code = 0;              // a DataAcqCode
    bool expected = false;               // the command brings a reply that is read
    std::vector<std::uint8_t> reply;     // as far as it came
    bool sampled = false;                // a good reply whose packet was published
    std::vector<std::uint8_t> packet;    // what items may read of it

    PacketView Packet() const {
        static constexpr std::uint8_t kNothing = 0;
        return {packet.empty() ? &kNothing : packet.data(), static_cast<std::uint32_t>(packet.size())};
    }
};

}  // namespace corvex
