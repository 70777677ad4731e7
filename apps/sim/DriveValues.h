// Writes what the values of one packet show of a car that is driven.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "apps/sim/RawCurve.h"
#include "apps/sim/SignalNames.h"

namespace corvex {

class ADXDefinition;

// What a value shows is told by its words. One whose words tell nothing goes slowly to and fro about the middle of its
// display range, or stands there. Of values that read the same bytes the first one that is known decides.
//
// Keeps nothing of the definition. Immutable after construction.
class DriveValues {
public:
    // Takes the values of `command` and of no command whose fields lie inside the first `capacity` bytes.
    DriveValues(const ADXDefinition& definition, std::uint32_t command, std::uint32_t capacity);

    void Write(std::span<std::uint8_t> packet, const EngineState& state, std::uint64_t seed, double seconds) const;
    // For each packet byte, whether a value is written there.
    const std::vector<bool>& Taken() const { return taken_; }

    // Whether some value shows a manifold above the barometer.
    static bool HaveTurbo(const ADXDefinition& definition);

private:
    struct Field {
        std::uint32_t offset, sizeinbits, key;
        bool lowByteFirst, isFixed;
        std::optional<ShownSignal> shown;
        RawCurve curve;
    };

    void Add(const ADXValue& value, const std::optional<ShownSignal>& shown);

    std::vector<Field> fields_;
    std::vector<bool> taken_;
};

}  // namespace corvex
