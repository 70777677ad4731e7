#include "files/ads/AdsItemConverter.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"
#include "files/ads/AdsNumber.h"
#include "files/ads/AdsRawText.h"
#include "files/ads/AdsReader.h"

namespace corvex {
namespace {

constexpr std::uint32_t kListed = 0x4C;  // values and bitmasks, and a type that there is not

std::uint32_t SizeOf(const std::string& text) {
    return static_cast<std::uint32_t>(text.size());
}

std::string NumberId(std::uint32_t number) {
    return std::to_string(static_cast<std::int32_t>(number));
}

void SetNames(ADXObject& object, const ALDLItem& item) {
    const std::string title = item.GetTitle();
    object.SetTitle(title.c_str(), SizeOf(title));
    object.SetId(NumberId(item.dwUniqueID).c_str());
}

template <class Object>
void Append(ADXDefinition& definition, std::unique_ptr<Object> object) {
    definition.InsertAfter(std::move(object), ADXDefinition::kAppend);
}

ADXLookupTable* AddTable(ADXDefinition& definition, const ALDLLookupTable& item) {
    auto table = std::make_unique<ADXLookupTable>();
    const bool whole = item.btDataType == ALDLLookupTable::kIntegers;
    table->SetOutputType(whole ? ADXLookupTable::kInteger : ADXLookupTable::kFloat);
    SetNames(*table, item);
    table->SetDesc(item.strItemComments.c_str(), SizeOf(item.strItemComments));
    // Keys begin at 1, and what was filled in between two lines is left to the table's own interpolation.
    table->Reserve(item.slots.GivenCount());
    for (std::uint32_t i = 0; i < item.slots.count; ++i) {
        if (item.slots.IsGiven(i)) table->AddEntry(static_cast<float>(i + 1), item.slots.At(i));
    }
    ADXLookupTable* added = table.get();
    Append(definition, std::move(table));
    return added;
}

std::string EquationOf(const ALDLValue& item) {
    const bool plain = item.dFactor == 1.0 && item.dOffset == 0.0;
    switch (item.dwOperation) {
        case ALDLValue::kInverse:
            return SixDecimals(item.dFactor) + " / X + " + SixDecimals(item.dOffset);
        case ALDLValue::kLinear:
        case ALDLValue::kHexadecimal:
        case ALDLValue::kWhole: {
            std::string equation = "X";
            if (!plain) equation.append(" * ").append(SixDecimals(item.dFactor)).append(" + ");
            return plain ? equation : equation.append(SixDecimals(item.dOffset));
        }
        default:
            return "X";
    }
}

std::uint32_t OutputOf(const ALDLValue& item) {
    if (item.dwOperation == ALDLValue::kHexadecimal) return ADXValue::kHexadecimal;
    return item.dwOperation == ALDLValue::kWhole ? ADXValue::kInteger : ADXValue::kFloat;
}

// Tables by the number that is their id; separators are none. A table is found as a lookup by id would find it, since
// no other id that is a number stands before the tables.
using TablesByNumber = std::unordered_map<std::uint32_t, ADXLookupTable*>;

void SetTable(const TablesByNumber& tables, const ALDLValue& item, ADXValue& value) {
    const auto found = tables.find(static_cast<std::uint32_t>(item.iLookupTableIndex));
    if (found == tables.end()) return;
    value.lookup = found->second;
    value.lookupidhash = found->second->GetIdHash();
}

void SetLimits(const ALDLValue& item, ADXValue& value) {
    value.alarmhigh = RawLimit(item, item.dwAlarmHigh);
    value.alarmlow = RawLimit(item, item.dwAlarmLow);
    value.rangehigh = RawLimit(item, item.iRangeHigh);
    value.rangelow = RawLimit(item, item.iRangeLow);
    if (item.bAlarmHighENable != 0) value.flags |= ADXValue::kAlarmHigh;
    if (item.bAlarmLowEnable != 0) value.flags |= ADXValue::kAlarmLow;
}

void AddValue(ADXDefinition& definition, const TablesByNumber& tables, const ALDLValue& item) {
    auto value = std::make_unique<ADXValue>();
    SetNames(*value, item);
    value->SetUnits(item.strUnitLabel.c_str(), SizeOf(item.strUnitLabel));
    value->packetoffset = item.btByteNumber - 1;  // 0 wraps, and such an item reads nothing
    value->sizeinbits = item.dwItemSizeBits;
    SetLimits(item, *value);
    value->outputtype = OutputOf(item);
    if (item.dwOperation == ALDLValue::kLookup) SetTable(tables, item, *value);
    const std::string equation = EquationOf(item);
    value->SetEquation(equation.c_str(), SizeOf(equation));
    Append(definition, std::move(value));
}

void AddBit(ADXDefinition& definition, const ALDLBit& item) {
    auto bit = std::make_unique<ADXBitmask>();
    SetNames(*bit, item);
    bit->packetoffset = item.btByteNumber - 1;
    bit->operand = bit->result = item.btBitNumber < 32 ? 1U << item.btBitNumber : 0;
    if (item.bAlarmSetEnable != 0) bit->flags |= ADXBitmask::kAlarmOnSet;
    if (item.bAlarmNotSetEnable != 0) bit->flags |= ADXBitmask::kAlarmOnNotSet;
    bit->SetTrueString(item.strBitSetTitle.c_str(), SizeOf(item.strBitSetTitle));
    bit->SetFalseString(item.strBitClearTitle.c_str(), SizeOf(item.strBitClearTitle));
    Append(definition, std::move(bit));
}

void AddDefaultView(ADXDefinition& definition) {
    auto view = std::make_unique<ADXListView>();
    view->SetTitle("Default View", SizeOf("Default View"));
    view->SetId("DEFAULTVIEW");
    for (const auto& object : definition.Objects()) {
        if (!object->IsOneOf(kListed)) continue;
        ADXLVENTRY row;
        row.SetItem(object.get());
        view->AddEntry(&row);
    }
    if (view->GetEntryCount() != 0) Append(definition, std::move(view));
}

}  // namespace

void ConvertItems(ADXDefinition& definition, const AdsReader& reader) {
    TablesByNumber tables;
    for (const auto& table : reader.Tables()) {
        if (table->bSeparator == 0) tables.emplace(table->dwUniqueID, AddTable(definition, *table));
    }
    for (const auto& value : reader.Values()) {
        if (value->bSeparator == 0) AddValue(definition, tables, *value);
    }
    for (const auto& bit : reader.Bits()) {
        if (bit->bSeparator == 0) AddBit(definition, *bit);
    }
    AddDefaultView(definition);
}

}  // namespace corvex
