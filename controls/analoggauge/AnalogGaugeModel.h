// What a dial shows: its scale, its value with the extremes seen, its texts, colours and alarm bands.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "controls/analoggauge/AnalogGaugeData.h"
#include "controls/analoggauge/DialGeometryModel.h"
#include "controls/gauge/GaugeTextModel.h"

namespace corvex {

// On one thread.
class AnalogGaugeModel {
public:
    static constexpr int kSide = 180;  // of the square it is drawn in
    static constexpr unsigned kMajorTicks = 11, kMinorDivisions = 5;
    static constexpr std::uint32_t kInFront = 0xFFFFFFFF;  // an index for SetAlarm
    static constexpr float kNoLowest = std::numeric_limits<float>::max();
    // The smallest positive float, not the most negative one: who has seen only negative values shows it as the
    // maximum, and dashes that people know depend on it.
    static constexpr float kNoHighest = std::numeric_limits<float>::min();

    bool Shows(AnalogGaugeFlag flag) const { return (flags & flag) != 0; }
    // Adds bits; 0 takes them all away.
    void SetFlags(std::uint32_t bits) { flags = bits == 0 ? 0 : flags | bits; }

    float Value() const { return value_; }
    // Clamped to the range, and the extremes record the clamped value. No number is kept as it is.
    void SetValue(float value);
    float Lowest() const { return lowest_; }
    float Highest() const { return highest_; }
    void ResetLowest() { lowest_ = kNoLowest; }
    void ResetHighest() { highest_ = kNoHighest; }

    // An index of AnalogGaugeColour; any other is ignored, and read as 0.
    void SetColour(std::uint64_t index, std::uint32_t colour);
    std::uint32_t Colour(std::uint64_t index) const;

    // kInFront puts the band before all others, an index that is there replaces that one, any other adds at the end.
    // The index the band has then; -1 for null, which does nothing.
    std::int32_t SetAlarm(std::uint32_t index, const GaugeAlarmBand* band);
    // False for an index that is not there. The band is copied unless `band` is null.
    bool GetAlarm(std::uint32_t index, GaugeAlarmBand* band) const;
    void ClearAlarms() { alarms_.clear(); }
    const std::vector<GaugeAlarmBand>& Alarms() const { return alarms_; }

    std::string Number(float value) const;
    // "Min: " and "Max: " with their numbers, at most 254 characters.
    std::string LowestLine() const;
    std::string HighestLine() const;

    std::uint32_t flags = 0x5F;
    DialScale scale{0.0f, 150.0f, 40.0f, 300.0f};
    std::uint32_t lowestColour = 0, highestColour = 0;  // no message changes them
    std::uint32_t digits = 2;
    GaugeText title, units;

private:
    float value_ = 0.0f, lowest_ = kNoLowest, highest_ = kNoHighest;
    std::array<std::uint32_t, AGC_COUNT> colours_{0xF0F0F0, 0x000000, 0x0050FA, 0x000000, 0x000000,
                                                  0xFFFFFF, 0x000000, 0x000000, 0xFF0000, 0xFF0000};
    std::vector<GaugeAlarmBand> alarms_;
};

}  // namespace corvex
