#include "files/ads/AdsReader.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>
#include <utility>

#include "files/ads/AdsFieldReader.h"
#include "platform/FileStream.h"

namespace corvex {
namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

void ReadCommon(AdsFieldReader& fields, ALDLItem& item) {
    fields.Word(item.dwItemType);
    fields.Text(item.strItemComments, 256);
    fields.Integer(item.bSeparator);
    fields.Integer(item.bVisible);
    fields.Word(item.dwUniqueID);
}

void ReadValue(AdsFieldReader& fields, ALDLValue& value) {
    fields.Word(value.btByteNumber);
    fields.Word(value.btMessageNumber);
    fields.Word(value.dwItemSizeBits);
    fields.Word(value.dwOperation);
    fields.Double(value.dFactor);
    fields.Double(value.dOffset);
    fields.Text(value.strItemTitle, 100);
    fields.Text(value.strUnitLabel, 25);
    fields.Word(value.dwAlarmHigh);
    fields.Integer(value.bAlarmHighENable);
    fields.Word(value.dwAlarmLow);
    fields.Integer(value.bAlarmLowEnable);
    fields.Integer(value.iRangeHigh);
    fields.Integer(value.iRangeLow);
    fields.Integer(value.iLookupTableIndex);
}

void ReadBit(AdsFieldReader& fields, ALDLBit& bit) {
    fields.Word(bit.btByteNumber);
    fields.Word(bit.btMessageNumber);
    fields.Word(bit.btBitNumber);
    fields.Text(bit.strItemTitle, 100);
    fields.Integer(bit.bAlarmSetEnable);
    fields.Integer(bit.bAlarmNotSetEnable);
    fields.Text(bit.strBitSetTitle, 15);
    fields.Text(bit.strBitClearTitle, 15);
}

void ReadDash(AdsFieldReader& fields, ALDLDash& dash) {
    fields.Word(dash.btNumGauges);
    fields.Text(dash.strIDsDisplayed);
    fields.Word(dash.btNumMonitors);
    fields.Text(dash.strMonsDisplayed);
}

void ReadTableFields(AdsFieldReader& fields, ALDLLookupTable& table) {
    fields.Word(table.btDataType);
    fields.Word(table.wTableSize);
    fields.Word(table.wIndexSize);
    fields.Text(table.strTableName, 100);
    fields.Skip();  // dwReserved, twice
    fields.Skip();
    fields.WholeText(table.pbtData);
}

}  // namespace

int AdsReader::Read(const char* path) {
    Reset();
    if (path == nullptr || *path == '\0') return 0;
    const std::unique_ptr<std::FILE, FileCloser> file(OpenToRead(path));
    if (file == nullptr) return 0;
    AdsInput input(file.get());
    ReadBlocks(input);
    if (!input.Failed()) return 1;
    Reset();
    return 0;
}

int AdsReader::ReadMemory(const void* bytes, std::size_t size) {
    Reset();
    AdsInput input(bytes, size);
    ReadBlocks(input);
    return 1;
}

void AdsReader::Reset() {
    header_ = {};
    losses_ = {};
    values_.clear();
    bits_.clear();
    tables_.clear();
    dashes_.clear();
    numbers_.clear();
    flagged_.clear();
    moreslots_ = 0;
}

void AdsReader::ReadBlocks(AdsInput& input) {
    AdsFieldReader fields(input);
    for (int c = input.Next(); c != AdsInput::kEnd; c = input.Next()) {
        if (c != '{') continue;
        fields.StartBlock();
        if (losses_.header) {
            ReadItem(fields);
        } else {
            losses_.header = true;
            losses_.extracommands = ReadHeader(fields, header_);
        }
    }
    losses_.cutfields = fields.FieldsCut();
    Renumber();
    LinkTables();
}

void AdsReader::ReadItem(AdsFieldReader& fields) {
    ALDLItem common;
    ReadCommon(fields, common);
    const std::uint32_t type = common.dwItemType;
    const std::uint32_t number = common.dwUniqueID;
    ALDLItem* item = nullptr;
    if (numbers_.contains(number)) common.itemflags |= ALDLItem::kNumberTaken;
    if (type == ALDLItem::kValue) {
        item = values_.emplace_back(std::make_unique<ALDLValue>(std::move(common))).get();
        ReadValue(fields, *values_.back());
    } else if (type == ALDLItem::kBit) {
        item = bits_.emplace_back(std::make_unique<ALDLBit>(std::move(common))).get();
        ReadBit(fields, *bits_.back());
    } else if (type == ALDLItem::kLookupTable) {
        item = tables_.emplace_back(std::make_unique<ALDLLookupTable>(std::move(common))).get();
        ReadTable(fields, *tables_.back());
    } else if (type == ALDLItem::kDash) {
        item = dashes_.emplace_back(std::make_unique<ALDLDash>(std::move(common))).get();
        ReadDash(fields, *dashes_.back());
    } else {
        ++losses_.otheritems;
        return;
    }
    if (!numbers_.insert(number).second) flagged_.push_back(item);
}

void AdsReader::ReadTable(AdsFieldReader& fields, ALDLLookupTable& table) {
    ReadTableFields(fields, table);
    const std::uint32_t base = std::min(table.wTableSize, AdsSlots::kMaskBits);
    const auto justified =
        static_cast<std::uint32_t>(std::min<std::uint64_t>(kSlotReserve, fields.Position() * kSlotsPerByte));
    // What is justified only grows, so the difference is never negative.
    const std::uint32_t more = std::min(table.wTableSize - base, justified - moreslots_);
    moreslots_ += more;
    table.slots.count = base + more;
    if (table.slots.count < table.wTableSize) ++losses_.cuttables;
    ReadTableText(table.pbtData, table.btDataType == ALDLLookupTable::kIntegers, table.slots);
    losses_.tablelines += table.slots.droppedLines;
}

// Above all others, so that a value whose table is missing does not meet an item that was given its table's number.
void AdsReader::Renumber() {
    std::uint32_t next = 0;
    for (const std::uint32_t number : numbers_) {
        if (number < 0x80000000) next = std::max(next, number);
    }
    for (ALDLItem* item : flagged_) {
        while (!numbers_.insert(next).second)
            ++next;
        item->dwUniqueID = next;
    }
    losses_.renumbered = static_cast<std::uint32_t>(flagged_.size());
}

void AdsReader::LinkTables() {
    std::unordered_map<std::uint32_t, const ALDLLookupTable*> byNumber;
    for (const auto& table : tables_)
        byNumber.emplace(table->dwUniqueID, table.get());
    for (const auto& value : values_) {
        if (value->dwOperation != ALDLValue::kLookup) continue;
        const auto found = byNumber.find(static_cast<std::uint32_t>(value->iLookupTableIndex));
        if (found != byNumber.end()) value->table = found->second;
    }
}

int ReadAds(const char* path, AdsReader* reader) {
    return reader != nullptr ? reader->Read(path) : 0;
}

}  // namespace corvex
