// Moves the values of one packet over their ranges: for tests of what shows them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "apps/sim/RawCurve.h"
#include "apps/sim/SweepModel.h"

namespace corvex {

class ADXDefinition;

// Every value that the command carries gets words that take it over its display range as its signal goes. Two values
// that read the same field share one course over both ranges; values whose fields only overlap take turns of kTurn
// seconds, each with a wave fast enough to cover its range in its turn.
//
// Keeps nothing of the definition. Immutable after construction.
class ValueSweeps {
public:
    static constexpr double kTurn = 60.0;

    // Takes the values of `command` and of no command whose fields lie inside the first `capacity` bytes.
    ValueSweeps(const ADXDefinition& definition, std::uint32_t command, std::uint32_t capacity);

    void Write(std::span<std::uint8_t> packet, const SweepModel& model, double seconds) const;
    // For each packet byte, whether a value is written there.
    const std::vector<bool>& Taken() const { return taken_; }

private:
    struct Sweep {
        std::uint32_t offset, sizeinbits, key;
        bool lowByteFirst;
        std::optional<Signal> signal;
        RawCurve curve;
        std::uint32_t turn = 0, turns = 1;  // of those that overlap
    };

    void Add(const ADXValue& value);
    void ShareTurns();

    std::vector<Sweep> sweeps_;
    std::vector<bool> taken_;
};

}  // namespace corvex
