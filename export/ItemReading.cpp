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
    if (value.HasHighAlarm() && narrowed > value.alarmhigh) {
        reading.alarm = true;
        reading.colour = kHighAlarmColour;
    } else if (value.HasLowAlarm() && narrowed < value.alarmlow) {
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
    if (auto* value = As<ADXValue>(&item)) return ReadValue(definition, *value, packet);
    auto* const bit = As<ADXBitmask>(&item);
    return bit != nullptr ? ReadBitmask(definition, *bit, packet) : ItemReading();
}

std::uint32_t ParentOf(const ADXObject& item) {
    const auto* found = As<ADXItem>(&item);
    return found != nullptr ? found->parentcmdidhash : 0;
}

std::string UnitsOf(const ADXObject& item) {
    const auto* value = As<ADXValue>(&item);
    return value != nullptr ? DisplayText(value->Units()) : std::string();
}

}  // namespace corvex
