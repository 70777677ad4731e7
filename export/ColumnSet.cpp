#include "export/ColumnSet.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "definition/ADXBitmask.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXValue.h"
#include "export/CsvWriter.h"
#include "export/ItemPattern.h"
#include "export/ItemReading.h"
#include "export/RecordDecoder.h"
#include "export/text/NumberMemo.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// The longest number: 309 digits before the point, 255 behind it.
constexpr std::size_t kTextSize = 1024;
// A memo takes 8 KB, and a definition may hold a million values.
constexpr std::size_t kMemoLimit = 4096;

// As a view passes it: an item of another command is read from its raw word.
PacketView PacketFor(std::uint32_t parent, const DecodedRecord& record) {
    return BelongsToCommand(parent, record.commandId) ? record.packet : PacketView(nullptr);
}

// Whole numbers are cut and not rounded, as where they are shown. Empty for what is no number.
std::string ShownDigits(const ADXValue& value, double number) {
    if (!std::isfinite(number)) return {};
    if (value.outputtype != ADXValue::kFloat) number = std::trunc(number);
    return Printf("%.*f", value.outputtype == ADXValue::kFloat ? value.digcount : 0, number);
}

std::string HeaderOf(const ADXObject& item, const char* units) {
    const std::string title = Utf8Text(*item.Title() != '\0' ? item.Title() : item.Id());
    return *units == '\0' ? title : title + " (" + Utf8Text(units) + ')';
}

}  // namespace

ColumnSet::ColumnSet(ADXDefinition& definition, const std::string& patterns) : definition_(definition) {
    for (const auto& object : definition.Objects()) {
        if (!object->IsOneOf(kItemTypes)) continue;
        Column column{As<ADXValue>(object.get()),
                      As<ADXBitmask>(object.get()),
                      ParentOf(*object),
                      ItemMatches(patterns, *object),
                      false,
                      nullptr};
        if (column.chosen) ++chosen_;
        // A linked value has a raw word of its own.
        if (column.chosen && chosen_ <= kMemoLimit && column.value != nullptr && !column.value->HasLinks())
            column.memo = std::make_unique<NumberMemo>();
        columns_.push_back(std::move(column));
    }
}

// One that reads no field, or whose command this is not, misses nothing.
bool ColumnSet::LiesOutside(const Column& column, PacketView packet) {
    if (!packet || (column.value != nullptr && !column.value->ReadsField())) return false;
    const ADXItem& item = column.value != nullptr ? static_cast<const ADXItem&>(*column.value) : *column.bitmask;
    return packet.Field(item.packetoffset, item.sizeinbits / 8) == nullptr;
}

std::vector<std::string> ColumnSet::Outside() const {
    std::vector<std::string> names;
    for (const Column& column : columns_) {
        if (column.outside)
            names.push_back(
                ShortNameOf(column.value != nullptr ? static_cast<const ADXObject&>(*column.value) : *column.bitmask));
    }
    return names;
}

ColumnSet::~ColumnSet() = default;

void ColumnSet::WriteHeader(CsvWriter& csv) const {
    for (const Column& column : columns_) {
        if (!column.chosen) continue;
        csv.Text(column.value != nullptr ? HeaderOf(*column.value, column.value->Units())
                                         : HeaderOf(*column.bitmask, ""));
    }
}

void ColumnSet::WriteRow(CsvWriter& csv, const DecodedRecord& record, NumberForm form) {
    if (record.updates) definition_.UpdateValues(record.packet, record.commandId);
    for (Column& column : columns_) {
        if (column.chosen)
            WriteField(csv, column, record, form);
        else if (!record.updates)
            Look(column, record);
    }
}

std::vector<ColumnSet::Field> ColumnSet::Fields() const {
    std::vector<Field> fields;
    for (const Column& column : columns_) {
        if (column.chosen)
            fields.push_back(
                {column.value != nullptr ? HeaderOf(*column.value, "") : HeaderOf(*column.bitmask, ""), column.parent});
    }
    return fields;
}

void ColumnSet::ReadRow(const DecodedRecord& record, std::vector<double>& numbers) {
    if (record.updates) definition_.UpdateValues(record.packet, record.commandId);
    numbers.clear();
    for (Column& column : columns_) {
        const PacketView packet = PacketFor(column.parent, record);
        if (!column.chosen) {
            if (!record.updates) Look(column, record);
            continue;
        }
        column.outside = column.outside || LiesOutside(column, packet);
        numbers.push_back(column.value != nullptr ? column.value->Compute(definition_, packet)
                                                  : column.bitmask->IsSet(definition_, packet));
    }
}

// Without an update it is looking at an item that takes its raw word.
void ColumnSet::Follow(const DecodedRecord& record) {
    if (record.updates) {
        definition_.UpdateValues(record.packet, record.commandId);
        return;
    }
    for (const Column& column : columns_)
        Look(column, record);
}

void ColumnSet::Look(const Column& column, const DecodedRecord& record) {
    const PacketView packet = PacketFor(column.parent, record);
    if (column.value != nullptr)
        column.value->Compute(definition_, packet);
    else
        column.bitmask->IsSet(definition_, packet);
}

void ColumnSet::WriteField(CsvWriter& csv, Column& column, const DecodedRecord& record, NumberForm form) {
    const bool text = form == NumberForm::kText;
    const PacketView packet = PacketFor(column.parent, record);
    if (!column.outside) column.outside = LiesOutside(column, packet);
    if (column.bitmask != nullptr) {
        const bool set = column.bitmask->IsSet(definition_, packet) != 0;
        if (text)
            csv.Text(Utf8Text(set ? column.bitmask->TrueString() : column.bitmask->FalseString()));
        else
            csv.Flag(set);
    } else if (text) {
        char formatted[kTextSize] = "";
        column.value->Format(formatted, sizeof formatted, definition_, packet);
        csv.Text(Utf8Text(formatted));
    } else {
        WriteNumber(csv, column, packet, form);
    }
}

// Most bytes of an engine in traffic were there before.
void ColumnSet::WriteNumber(CsvWriter& csv, const Column& column, PacketView packet, NumberForm form) {
    const std::uint32_t word = column.memo ? column.value->GetRaw(packet) : 0;
    const std::string_view known = column.memo ? column.memo->Find(word) : std::string_view();
    if (!known.empty()) {
        csv.Plain(known);
        return;
    }
    const double number = column.value->Compute(definition_, packet);
    const std::string shown = form == NumberForm::kAsShown ? ShownDigits(*column.value, number) : std::string();
    if (!shown.empty()) csv.Plain(shown);
    const std::string_view text = shown.empty() ? csv.Number(number) : std::string_view(shown);
    if (column.memo) column.memo->Keep(word, text);
}

}  // namespace corvex
