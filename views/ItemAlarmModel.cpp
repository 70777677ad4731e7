#include "views/ItemAlarmModel.h"

#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"

namespace corvex {

namespace {

constexpr std::uint32_t kHighAlarm = 0x0000FF, kLowAlarm = 0x4080FF;
constexpr std::uint32_t kBoldHeading = 0x1;

CellLook LookOfValue(ADXValue& value, std::uint32_t colour, const ADXDefinition& definition, const LastPacket& last) {
    const PacketView packet = PacketFor(value.parentcmdidhash, last);
    const auto number = static_cast<float>(value.Compute(definition, packet));
    const bool isHigh = (value.flags & ADXValue::kAlarmHigh) != 0 && value.alarmhigh < number;
    const bool isLow = (value.flags & ADXValue::kAlarmLow) != 0 && value.alarmlow > number;
    if (isHigh) return {kHighAlarm, CellFont::kBold};
    if (isLow) return {kLowAlarm, CellFont::kBold};
    return {colour, CellFont::kAsItIs};
}

// Odd and wanted: the last packet counts here whatever command it belongs to, though the text beside goes by the item's
// own. The raw word, which that text shows, is left alone.
CellLook LookOfBitmask(const ADXBitmask& bitmask, std::uint32_t colour, const LastPacket& last) {
    const bool isSet = bitmask.WouldBeSet(last.View()) != 0;
    std::uint32_t alarm = 0;
    const bool isOn = isSet ? bitmask.GetAlarmOnSet(&alarm) != 0 : bitmask.GetAlarmOnNotSet(&alarm) != 0;
    return isOn ? CellLook{alarm, CellFont::kBold} : CellLook{colour, CellFont::kAsItIs};
}

}  // namespace

PacketView PacketFor(std::uint32_t parentcmdidhash, const LastPacket& last) {
    return parentcmdidhash == 0 || parentcmdidhash == last.command ? last.View() : PacketView(nullptr);
}

CellLook LookOf(const ADXLVENTRY& entry, int column, const ADXDefinition& definition, const LastPacket& last) {
    CellLook look{entry.color, CellFont::kOrdinary};
    if (column == kValueColumn && entry.item != nullptr) {
        if (entry.item->GetType() == kTypeValue)
            look = LookOfValue(static_cast<ADXValue&>(*entry.item), entry.color, definition, last);
        if (entry.item->GetType() == kTypeBitmask)
            look = LookOfBitmask(static_cast<const ADXBitmask&>(*entry.item), entry.color, last);
    }
    if (entry.entrytype == ADXLVENTRY::kHeadingRow && (entry.flags & kBoldHeading) != 0) look.font = CellFont::kBold;
    return look;
}

}  // namespace corvex
