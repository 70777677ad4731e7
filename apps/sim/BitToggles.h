// Moves the flags of one packet through all that they can be: for tests of what shows them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "apps/sim/FlagBytes.h"

namespace corvex {

class ADXDefinition;

// Every bitmask that can be both set and not set becomes both in turn. Masks that share bits (the settings of one
// selector) take turns at being set and cleared. A mask over bytes that belong to a value is only written for a
// while now and then, so that the value runs undisturbed most of the time.
//
// Keeps nothing of the definition. Immutable after construction.
class BitToggles {
public:
    // `taken` tells for each packet byte whether a value is written there; its length is the room there is.
    BitToggles(const ADXDefinition& definition, std::uint32_t command, const std::vector<bool>& taken);

    void Write(std::span<std::uint8_t> packet, std::uint64_t seed, double seconds) const;

private:
    struct Toggle {
        FlagBytes bytes;
        std::uint32_t key;
        std::uint32_t group = 0, turn = 0;
        bool overValue = false;
    };

    void FormGroups();

    std::vector<Toggle> toggles_;
    struct Group {
        std::uint32_t key = 0, turns = 0;
        bool overValue = false;
    };
    std::vector<Group> groups_;
};

}  // namespace corvex
