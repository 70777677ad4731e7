#include "export/ItemReading.h"

#include "definition/ADXBitmask.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// As the item list shows them.
constexpr std::uint32_t kHighAlarmColour = 0x0000FF;
constexpr std::uint32_t kLowAlarmColour = 0x4080FF;
constexpr std::size_t kItemTextSize = 40;

ItemReading ReadValue(const ADXDefinition& definition, ADXValue& value, PacketView packet) {
    ItemReading reading;
    char text[kItemTextSize] = {};
    reading.number = value.Compute(definition, packet);
    value.Format(text, sizeof text, definition, packet);
    reading.text = DisplayText(text);
    reading.istext = value.lookup != nullptr && value.lookup->GetOutputType() == ADXLookupTable::kText;
    const auto narrowed = static_cast<float>(reading.number);
    if ((value.flags & ADXValue::kAlarmHigh) != 0 && narrowed > value.alarmhigh) {
        reading.alarm = true;
        reading.colour = kHighAlarmColour;
    } else if ((value.flags & ADXValue::kAlarmLow) != 0 && narrowed < value.alarmlow) {
        reading.alarm = true;
        reading.colour = kLowAlarmColour;
    }
    return reading;
}

ItemReading ReadBitmask(const ADXDefinition& definition, ADXBitmask& bit, PacketView packet) {
    ItemReading reading;
    const bool set = bit.IsSet(definition, packet) != 0;
    reading.number = set ? 1.0 : 0.0;
    reading.text = DisplayText(set ? bit.TrueString() : bit.FalseString());
    if (reading.text.empty()) reading.text = set ? "set" : "not set";
    if (!set && bit.GetAlarmOnNotSet(&reading.colour) != 0) reading.alarm = true;
    if (set && bit.GetAlarmOnSet(&reading.colour) != 0) reading.alarm = true;
    if (!reading.alarm) reading.colour = 0;
    return reading;
}

}  // namespace

ItemReading ReadItem(const ADXDefinition& definition, ADXObject& item, PacketView packet) {
    if (item.GetType() == kTypeValue) return ReadValue(definition, static_cast<ADXValue&>(item), packet);
    if (item.GetType() == kTypeBitmask) return ReadBitmask(definition, static_cast<ADXBitmask&>(item), packet);
    return {};
}

std::uint32_t ParentOf(const ADXObject& item) {
    if (item.GetType() == kTypeValue) return static_cast<const ADXValue&>(item).parentcmdidhash;
    if (item.GetType() == kTypeBitmask) return static_cast<const ADXBitmask&>(item).parentcmdidhash;
    return 0;
}

std::string UnitsOf(const ADXObject& item) {
    return item.GetType() == kTypeValue ? DisplayText(static_cast<const ADXValue&>(item).Units()) : std::string();
}

}  // namespace corvex
