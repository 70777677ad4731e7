// Writes what the flags of one packet show of a car that is driven.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "apps/sim/FlagBytes.h"
#include "apps/sim/SignalNames.h"

namespace corvex {

class ADXDefinition;

// What a flag shows is told by its words. Of those whose words tell nothing, each that is alone changes now and then;
// those that share bits, as the settings of a selector do, are set one after the other. Flags over the bytes of a value
// are left to that.
//
// Keeps nothing of the definition. Immutable after construction.
class DriveFlags {
public:
    // `taken` tells for each packet byte whether a value is written there; its length is the room there is.
    DriveFlags(const ADXDefinition& definition, std::uint32_t command, const std::vector<bool>& taken);

    void Write(std::span<std::uint8_t> packet, const EngineState& state, std::uint64_t seed, double seconds) const;

private:
    struct Flag {
        FlagBytes bytes;
        std::optional<ShownCondition> shown;
        std::uint32_t selector = 0, setting = 0;  // of the unknown ones
    };

    void FormSelectors();

    std::vector<Flag> flags_;
    std::vector<std::uint32_t> settings_;  // how many each selector has
};

}  // namespace corvex
