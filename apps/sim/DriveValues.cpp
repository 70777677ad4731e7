#include "apps/sim/DriveValues.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "apps/sim/FieldWriter.h"
#include "apps/sim/Mixer.h"
#include "definition/ADXDefinition.h"

namespace corvex {

namespace {

// Two waves that never meet again, so that nothing repeats to the eye.
double Wander(std::uint64_t seed, std::uint32_t key, double seconds) {
    const double phase = FractionOf(seed, key), period = 40 + 60 * FractionOf(seed, key ^ 0x9E3779B9U);
    const auto wave = [&](double turns) { return std::sin(2 * std::numbers::pi * turns); };
    return 0.5 + 0.2 * wave(seconds / period + phase) + 0.1 * wave(seconds / period * 2.718 - phase);
}

RawCurve CurveOf(const ADXValue& value, const std::optional<ShownSignal>& shown) {
    if (!shown || !shown->hasUnit) return RawCurve(value);
    return RawCurve(value, shown->NumberOf(shown->low), shown->NumberOf(shown->high));
}

}  // namespace

DriveValues::DriveValues(const ADXDefinition& definition, std::uint32_t command, std::uint32_t capacity)
    : taken_(capacity, false) {
    for (const bool known : {true, false}) {
        for (const auto& object : definition.Objects()) {
            const auto* value = As<ADXValue>(object.get());
            if (value == nullptr || !value->BelongsTo(command) || !RawCurve::Applies(*value)) continue;
            if (std::uint64_t{value->packetoffset} + FieldBytes(value->sizeinbits) > capacity) continue;
            const auto shown = SignalOf(value->Title(), value->Units());
            if (shown.has_value() == known) Add(*value, shown);
        }
    }
}

void DriveValues::Add(const ADXValue& value, const std::optional<ShownSignal>& shown) {
    const auto first = taken_.begin() + value.packetoffset;
    const auto past = first + FieldBytes(value.sizeinbits);
    if (std::find(first, past, true) != past) return;
    std::fill(first, past, true);
    fields_.push_back({value.packetoffset, FieldBytes(value.sizeinbits) * 8, value.GetIdHash(), value.IsLowByteFirst(),
                       IsFixed(value.Title()), shown, CurveOf(value, shown)});
}

void DriveValues::Write(std::span<std::uint8_t> packet, const EngineState& state, std::uint64_t seed,
                        double seconds) const {
    for (const Field& field : fields_) {
        std::uint32_t word = 0;
        if (!field.shown) {
            word = field.curve.WordAt(field.isFixed ? 0.5 : Wander(seed, field.key, seconds));
        } else if (field.shown->hasUnit) {
            word = field.curve.WordFor(field.shown->NumberOf(state[field.shown->signal]));
        } else {
            word = field.curve.WordAt(field.shown->PartOf(state[field.shown->signal]));
        }
        WriteField(packet.data() + field.offset, word, field.sizeinbits, field.lowByteFirst);
    }
}

bool DriveValues::HaveTurbo(const ADXDefinition& definition) {
    return std::ranges::any_of(definition.Objects(), [](const auto& object) {
        const auto* value = As<ADXValue>(object.get());
        if (value == nullptr) return false;
        const auto shown = SignalOf(value->Title(), value->Units());
        if (!shown) return false;
        constexpr double kBeyondAir = 130;
        return shown->signal == Signal::kWastegate ||
               (shown->signal == Signal::kManifold && shown->hasUnit &&
                static_cast<double>(value->rangehigh) > shown->NumberOf(kBeyondAir));
    });
}

}  // namespace corvex
