#include "views/ItemAlarmModel.h"

#include "definition/ADXBitmask.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"

namespace corvex {

namespace {

constexpr std::uint32_t kHighAlarm = 0x0000FF, kLowAlarm = 0x4080FF;
constexpr std::uint32_t kBoldHeading = 0x1;

CellLook LookOfNumber(const ADXValue& value, float number, std::uint32_t colour) {
    const bool isHigh = value.HasHighAlarm() && value.alarmhigh < number;
    const bool isLow = value.HasLowAlarm() && value.alarmlow > number;
    if (isHigh) return {kHighAlarm, CellFont::kBold};
    if (isLow) return {kLowAlarm, CellFont::kBold};
    return {colour, CellFont::kAsItIs};
}

// The alarm goes by the number behind the table, whose text is made of the one before it.
void ReadValue(ADXValue& value, const ADXDefinition& definition, const LastPacket& last, ValueCell& cell) {
    const PacketView packet = PacketFor(value.parentcmdidhash, last);
    const double before = value.Format(cell.text, kValueTextSize, definition, packet, 0, 0);
    const double number = value.lookup == nullptr ? before : value.lookup->Convert(static_cast<float>(before));
    cell.look = LookOfNumber(value, static_cast<float>(number), cell.look.colour);
}

// Odd and wanted: the last packet counts here whatever command it belongs to, though the text beside goes by the item's
// own. The raw word, which that text shows, is left alone.
CellLook LookOfBitmask(const ADXBitmask& bitmask, std::uint32_t colour, const LastPacket& last) {
    const bool isSet = bitmask.WouldBeSet(last.View()) != 0;
    std::uint32_t alarm = 0;
    const bool isOn = isSet ? bitmask.GetAlarmOnSet(&alarm) != 0 : bitmask.GetAlarmOnNotSet(&alarm) != 0;
    return isOn ? CellLook{alarm, CellFont::kBold} : CellLook{colour, CellFont::kAsItIs};
}

void ReadBitmask(ADXBitmask& bitmask, const ADXDefinition& definition, const LastPacket& last, ValueCell& cell) {
    bitmask.GetText(cell.text, kValueTextSize, definition, PacketFor(bitmask.parentcmdidhash, last), 0, 0);
    cell.look = LookOfBitmask(bitmask, cell.look.colour, last);
}

bool IsBoldHeading(const ADXLVENTRY& entry) {
    return entry.entrytype == ADXLVENTRY::kHeadingRow && (entry.flags & kBoldHeading) != 0;
}

}  // namespace

PacketView PacketFor(std::uint32_t parentcmdidhash, const LastPacket& last) {
    return BelongsToCommand(parentcmdidhash, last.command) ? last.View() : PacketView(nullptr);
}

ValueCell ReadValueCell(const ADXLVENTRY& entry, const ADXDefinition& definition, const LastPacket& last) {
    ValueCell cell{{entry.color, CellFont::kOrdinary}, {}};
    if (auto* const value = As<ADXValue>(entry.item)) ReadValue(*value, definition, last, cell);
    if (auto* const bitmask = As<ADXBitmask>(entry.item)) ReadBitmask(*bitmask, definition, last, cell);
    if (entry.entrytype == ADXLVENTRY::kHeadingRow) cell.text[0] = '\0';
    if (IsBoldHeading(entry)) cell.look.font = CellFont::kBold;
    return cell;
}

CellLook TitleLook(const ADXLVENTRY& entry) {
    return {entry.color, IsBoldHeading(entry) ? CellFont::kBold : CellFont::kOrdinary};
}

}  // namespace corvex
