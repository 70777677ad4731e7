// Moves the flags of one packet.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace corvex {

class ADXBitmask;
class ADXDefinition;
class EngineModel;

// Every bitmask that can be both set and not set becomes both in turn. Masks that share bits (the settings of one
// selector) take turns at being set and cleared. A mask over bytes that belong to a value is only written for a
// while now and then, so that the value runs undisturbed most of the time.
//
// Keeps nothing of the definition. Immutable after construction.
class BitToggles {
public:
    // `taken` tells for each packet byte whether a value is written there; its length is the room there is.
    BitToggles(const ADXDefinition& definition, std::uint32_t command, const std::vector<bool>& taken);

    void Write(std::span<std::uint8_t> packet, const EngineModel& model, double seconds) const;

private:
    struct Toggle {
        std::uint32_t offset, count, key;
        std::array<std::uint8_t, 4> mask{}, set{}, clear{};  // in packet order
        std::uint32_t group = 0, turn = 0;
        bool overValue = false;
    };

    static bool Prepare(const ADXBitmask& bitmask, Toggle& toggle);
    static bool Share(const Toggle& a, const Toggle& b);
    void FormGroups();

    std::vector<Toggle> toggles_;
    struct Group {
        std::uint32_t key = 0, turns = 0;
        bool overValue = false;
    };
    std::vector<Group> groups_;
};

}  // namespace corvex
