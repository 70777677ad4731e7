#include "views/DashBindingModel.h"

#include <algorithm>

#include "controls/digitalreadout/DigitalReadoutInfo.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"

namespace corvex {

namespace {

constexpr std::uint32_t kTextLimit = 100;  // characters of a title, of units, and of a word of a lamp

constexpr std::uint32_t kHighBand = 0x0000FF, kLowBand = 0x00B4FA;      // on a dial
constexpr std::uint32_t kHighDigits = 0x0000FF, kLowDigits = 0x0080FF;  // of a readout
constexpr std::uint32_t kDecimalsOfWhole = 1;

using Steps = std::vector<BindingStep>;

template <class Object, class Getter>
std::string TextOf(const Object& object, Getter getter) {
    char text[kTextLimit + 1] = "";
    (object.*getter)(text, sizeof text);
    return text;
}

// From the limit to the end of the scale, whichever is lower: a limit outside gives a band beyond the end, unclipped.
BindingStep Band(float limit, float end, std::uint32_t colour) {
    return {
        .action = BindingAction::kAlarm, .low = std::min(limit, end), .high = std::max(limit, end), .colour = colour};
}

BindingStep Value(double value) {
    return {.action = BindingAction::kValue, .low = static_cast<float>(value)};
}

// Odd and wanted: the first value comes before the range, and so the extremes start where the former range cuts it.
Steps AnalogSteps(ADXValue& value, const ADXDefinition& definition) {
    Steps steps{
        {.action = BindingAction::kTitle, .text = TextOf(value, &ADXValue::GetTitle)},
        {.action = BindingAction::kUnits, .text = TextOf(value, &ADXValue::GetUnits)},
        Value(static_cast<double>(value.rangelow)),
        {.action = BindingAction::kDigits, .word = value.digcount},
        {.action = BindingAction::kRange, .low = value.rangelow, .high = value.rangehigh},
        {.action = BindingAction::kNoAlarms},
    };
    if (value.HasHighAlarm()) steps.push_back(Band(value.alarmhigh, value.rangehigh, kHighBand));
    if (value.HasLowAlarm()) steps.push_back(Band(value.alarmlow, value.rangelow, kLowBand));
    steps.push_back(Value(value.Compute(definition, nullptr)));
    return steps;
}

Steps DigitalSteps(ADXValue& value, const ADXDefinition& definition) {
    const bool floating = value.outputtype == ADXValue::kFloat;
    return {
        {.action = BindingAction::kTitle, .text = TextOf(value, &ADXValue::GetTitle)},
        {.action = BindingAction::kUnits, .text = TextOf(value, &ADXValue::GetUnits)},
        {.action = BindingAction::kFormat,
         .word = floating ? 1U : 0U,
         .digits = floating ? value.digcount : kDecimalsOfWhole},
        {.action = BindingAction::kColour, .word = kReadoutLowColour, .colour = kLowDigits},
        {.action = BindingAction::kColour, .word = kReadoutHighColour, .colour = kHighDigits},
        {.action = BindingAction::kLowLimit, .low = value.alarmlow},
        {.action = BindingAction::kHighLimit, .high = value.alarmhigh},
        {.action = BindingAction::kHighEnable, .word = value.flags & ADXValue::kAlarmHigh},
        {.action = BindingAction::kLowEnable, .word = value.flags & ADXValue::kAlarmLow},
        Value(value.Compute(definition, nullptr)),
    };
}

// No state: the lamp stays off until a sample comes.
Steps StatusSteps(const ADXBitmask& bitmask) {
    return {
        {.action = BindingAction::kTitle, .text = TextOf(bitmask, &ADXBitmask::GetTitle)},
        {.action = BindingAction::kTrueText, .text = TextOf(bitmask, &ADXBitmask::GetTrueString)},
        {.action = BindingAction::kFalseText, .text = TextOf(bitmask, &ADXBitmask::GetFalseString)},
    };
}

}  // namespace

bool FitsGauge(std::uint32_t gaugetype, const ADXObject& item) {
    switch (gaugetype) {
        case kAnalogGaugeType:
        case kDigitalReadoutType:
            return item.GetType() == kTypeValue;
        case kStatusGaugeType:
            return item.GetType() == kTypeBitmask;
        default:
            return false;
    }
}

std::vector<BindingStep> BindingSteps(const ADXDGENTRY& entry, const ADXDefinition& definition) {
    if (entry.item == nullptr || !FitsGauge(entry.gaugetype, *entry.item)) return {};
    if (const auto* const bitmask = As<ADXBitmask>(entry.item)) return StatusSteps(*bitmask);
    ADXValue& value = *As<ADXValue>(entry.item);
    return entry.gaugetype == kAnalogGaugeType ? AnalogSteps(value, definition) : DigitalSteps(value, definition);
}

bool TakesSample(const ADXDGENTRY& entry, std::uint32_t commandId) {
    if (entry.item == nullptr || !FitsGauge(entry.gaugetype, *entry.item)) return false;
    return As<ADXItem>(entry.item)->BelongsTo(commandId);
}

}  // namespace corvex
