#include "controls/analoggauge/AnalogGaugeModel.h"

#include "controls/gauge/GaugeNumberModel.h"

namespace corvex {

namespace {

constexpr std::size_t kMarkerBuffer = 255;

std::string MarkerLine(const char* name, const std::string& number) {
    std::string line = name;
    line.append(number, 0, kMarkerBuffer - 1 - line.size());
    return line;
}

}  // namespace

void AnalogGaugeModel::SetValue(float value) {
    if (scale.rangeMinimum > value) {
        value_ = scale.rangeMinimum;
    } else if (scale.rangeMaximum < value) {
        value_ = scale.rangeMaximum;
    } else {
        value_ = value;
    }
    if (highest_ < value_) highest_ = value_;
    if (lowest_ > value_) lowest_ = value_;
}

void AnalogGaugeModel::SetColour(std::uint64_t index, std::uint32_t colour) {
    if (index < colours_.size()) colours_[static_cast<std::size_t>(index)] = colour;
}

std::uint32_t AnalogGaugeModel::Colour(std::uint64_t index) const {
    return index < colours_.size() ? colours_[static_cast<std::size_t>(index)] : 0;
}

std::int32_t AnalogGaugeModel::SetAlarm(std::uint32_t index, const GaugeAlarmBand* band) {
    if (band == nullptr) return -1;
    if (index == kInFront) {
        alarms_.insert(alarms_.begin(), *band);
        return 0;
    }
    if (index < alarms_.size()) {
        alarms_[index] = *band;
        return static_cast<std::int32_t>(index);
    }
    alarms_.push_back(*band);
    return static_cast<std::int32_t>(alarms_.size() - 1);
}

bool AnalogGaugeModel::GetAlarm(std::uint32_t index, GaugeAlarmBand* band) const {
    if (index >= alarms_.size()) return false;
    if (band != nullptr) *band = alarms_[index];
    return true;
}

std::string AnalogGaugeModel::Number(float value) const {
    return FormatGaugeNumber(value, digits);
}

std::string AnalogGaugeModel::LowestLine() const {
    return MarkerLine("Min: ", Number(lowest_));
}

std::string AnalogGaugeModel::HighestLine() const {
    return MarkerLine("Max: ", Number(highest_));
}

}  // namespace corvex
