#include "apps/sim/ValueSweeps.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "apps/sim/FieldWriter.h"
#include "apps/sim/SignalNames.h"
#include "definition/ADXDefinition.h"

namespace corvex {

ValueSweeps::ValueSweeps(const ADXDefinition& definition, std::uint32_t command, std::uint32_t capacity)
    : taken_(capacity, false) {
    for (const auto& object : definition.Objects()) {
        const auto* value = As<ADXValue>(object.get());
        if (value == nullptr || !value->BelongsTo(command) || !RawCurve::Applies(*value)) continue;
        if (std::uint64_t{value->packetoffset} + FieldBytes(value->sizeinbits) > capacity) continue;
        Add(*value);
    }
    ShareTurns();
}

void ValueSweeps::Add(const ADXValue& value) {
    const std::uint32_t bytes = FieldBytes(value.sizeinbits);
    const bool lowByteFirst = value.IsLowByteFirst();
    const std::uint32_t bits = bytes * 8;  // a field of 12 bits is one of 8
    RawCurve curve(value);
    for (Sweep& sweep : sweeps_) {
        if (sweep.offset == value.packetoffset && sweep.sizeinbits == bits &&
            (bytes == 1 || sweep.lowByteFirst == lowByteFirst)) {
            sweep.curve.Join(curve);
            return;
        }
    }
    std::optional<Signal> signal;
    if (const auto shown = SignalOf(value.Title(), value.Units())) signal = shown->signal;
    sweeps_.push_back({value.packetoffset, bits, value.GetIdHash() ^ value.packetoffset, lowByteFirst, signal, curve});
    std::fill_n(taken_.begin() + value.packetoffset, bytes, true);
}

// Fields that overlap, directly or through a third, form a group.
void ValueSweeps::ShareTurns() {
    std::ranges::stable_sort(sweeps_, {}, &Sweep::offset);
    for (std::size_t first = 0; first < sweeps_.size();) {
        std::uint32_t end = sweeps_[first].offset + FieldBytes(sweeps_[first].sizeinbits);
        std::size_t past = first + 1;
        for (; past < sweeps_.size() && sweeps_[past].offset < end; ++past) {
            end = std::max(end, sweeps_[past].offset + FieldBytes(sweeps_[past].sizeinbits));
        }
        for (std::size_t i = first; i < past; ++i) {
            sweeps_[i].turn = static_cast<std::uint32_t>(i - first);
            sweeps_[i].turns = static_cast<std::uint32_t>(past - first);
        }
        first = past;
    }
}

void ValueSweeps::Write(std::span<std::uint8_t> packet, const SweepModel& model, double seconds) const {
    for (const Sweep& sweep : sweeps_) {
        double level = 0.0;
        if (sweep.turns == 1) {
            level = model.Level(sweep.signal, sweep.key, seconds);
        } else {
            const double turn = std::fmod(std::floor(seconds / kTurn), static_cast<double>(sweep.turns));
            if (static_cast<std::uint32_t>(turn) != sweep.turn) continue;
            level = model.Wave(sweep.key, seconds, kTurn / 2);
        }
        WriteField(packet.data() + sweep.offset, sweep.curve.WordAt(level), sweep.sizeinbits, sweep.lowByteFirst);
    }
}

}  // namespace corvex
