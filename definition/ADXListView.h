// The rows of an item list.
#pragma once

#include <cstdint>

#include "definition/ADXObject.h"
#include "definition/EntryList.h"

namespace corvex {

struct ADXLVENTRY {
    std::uint32_t flags = 0;       // on a heading row, bit 0 asks for the bold font
    std::uint32_t entrytype = 0;   // 0 an item row, 1 a heading row that shows `title` and has no item
    std::uint32_t itemidhash = 0;  // the item's, only for an item row
    OwnedText title;               // of a heading row
    ADXObject* item = nullptr;     // not owned; resolved from itemidhash
    std::uint32_t color = 0;       // 0x00BBGGRR

    // Binds the row; an item row also takes the item's hash.
    void SetItem(ADXObject* object);
};

class ADXListView : public ADXObject, public EntryList<ADXLVENTRY> {
public:
    ADXListView() : ADXObject(kTypeListView) {}
    int Write(XMLWriter* writer) const override;

    std::uint32_t flags = 0;  // loaded and saved
};

}  // namespace corvex
