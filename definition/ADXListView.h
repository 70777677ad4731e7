// The rows of an item list.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/EntryList.h"

namespace corvex {

struct ADXLVENTRY {
    enum Type : std::uint32_t { kItemRow = 0, kHeadingRow = 1 };

    // What the link pass binds to an item.
    bool IsItem() const { return entrytype == kItemRow; }

    std::uint32_t flags = 0;             // on a heading row, bit 0 asks for the bold font
    std::uint32_t entrytype = kItemRow;  // a heading row shows `title` and has no item
    std::uint32_t itemidhash = 0;        // the item's, only for an item row
    OwnedText title;                     // of a heading row
    ADXObject* item = nullptr;           // not owned; resolved from itemidhash
    std::uint32_t color = 0;             // 0x00BBGGRR

    // Binds the row; an item row also takes the item's hash. Null unbinds it and leaves the hash, so that a row whose
    // item can't be found is not lost at the next save.
    void SetItem(ADXObject* object);
};

class ADXListView : public ADXObject, public EntryList<ADXLVENTRY> {
public:
    static constexpr std::uint32_t kType = kTypeListView;

    ADXListView() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t flags = 0;  // loaded and saved
};

}  // namespace corvex
