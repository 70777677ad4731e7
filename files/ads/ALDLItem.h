// The items of a legacy text definition as they stand in the file, and the defaults of what the file leaves out.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "files/ads/AdsTableText.h"

namespace corvex {

// What all items begin with. Built and owned by one AdsReader, read-only once the file is read.
struct ALDLItem {
    // Types 3 and 4 have nothing but these common fields and become no object.
    enum Type : std::uint32_t { kValue = 1, kBit = 2, kLookupTable = 5, kDash = 6 };
    enum Flag : std::uint32_t { kNumberTaken = 0x1 };

    ALDLItem() = default;
    ALDLItem(ALDLItem&&) = default;
    virtual ~ALDLItem() = default;
    // The text that names the item to a person.
    virtual std::string GetTitle() const { return {}; }

    std::uint32_t dwItemType = 0;
    std::string strItemComments;
    std::int32_t bSeparator = 0;  // nonzero: a mere line between items, which keeps its number
    std::int32_t bVisible = 0;
    std::uint32_t dwUniqueID = 0;  // shown and linked as a signed number
    std::uint32_t itemflags = 0;   // kNumberTaken: an earlier item had the number when this one was read
};

struct ALDLLookupTable;

struct ALDLValue : ALDLItem {
    enum Operation : std::uint32_t {
        kLinear = 0,
        kInverse = 1,
        kHexadecimal = 2,
        kWhole = 3,
        kPercent = 4,
        kCharacter = 5,
        kLookup = 6
    };

    explicit ALDLValue(ALDLItem common) : ALDLItem(std::move(common)) {}
    std::string GetTitle() const override { return strItemTitle; }

    std::uint32_t btByteNumber = 0;  // from 1
    std::uint32_t btMessageNumber = 1;
    std::uint32_t dwItemSizeBits = 8;
    std::uint32_t dwOperation = 0;
    double dFactor = 0.0;
    double dOffset = 0.0;
    std::string strItemTitle = "New ALDL Value";
    std::string strUnitLabel = "Units";
    std::uint32_t dwAlarmHigh = 255;  // limits are raw numbers, as the reply carries them
    std::int32_t bAlarmHighENable = 0;
    std::uint32_t dwAlarmLow = 0;
    std::int32_t bAlarmLowEnable = 0;
    std::int32_t iRangeHigh = 255;
    std::int32_t iRangeLow = 0;
    std::int32_t iLookupTableIndex = -1;     // a table's dwUniqueID
    const ALDLLookupTable* table = nullptr;  // not owned; linked for operation 6 alone
};

struct ALDLBit : ALDLItem {
    explicit ALDLBit(ALDLItem common) : ALDLItem(std::move(common)) {}
    std::string GetTitle() const override { return strItemTitle; }

    std::uint32_t btByteNumber = 0;
    std::uint32_t btMessageNumber = 1;
    std::uint32_t btBitNumber = 0;
    std::string strItemTitle = "New ALDL Bit";
    std::int32_t bAlarmSetEnable = 0;
    std::int32_t bAlarmNotSetEnable = 0;
    std::string strBitSetTitle = "1";
    std::string strBitClearTitle = "0";
};

struct ALDLLookupTable : ALDLItem {
    enum Data : std::uint32_t { kIntegers = 1, kFloats = 2 };

    explicit ALDLLookupTable(ALDLItem common) : ALDLItem(std::move(common)) {}
    std::string GetTitle() const override { return strTableName; }

    std::uint32_t btDataType = kFloats;
    std::uint32_t wTableSize = 256;  // as the file has it; the slots that are kept are counted in `slots`
    std::uint32_t wIndexSize = 0;
    std::string strTableName = "New Lookup Table";
    std::string pbtData;
    AdsSlots slots;
};

struct ALDLDash : ALDLItem {
    explicit ALDLDash(ALDLItem common) : ALDLItem(std::move(common)) {}
    std::string GetTitle() const override { return "ALDL Dash"; }

    std::uint32_t btNumGauges = 0;
    std::string strIDsDisplayed;
    std::uint32_t btNumMonitors = 0;
    std::string strMonsDisplayed;
};

}  // namespace corvex
