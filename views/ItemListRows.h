// The rows of an item list and the texts in them. Main thread.
#pragma once

#include <cstdint>

#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"

namespace corvex {

// Deletes all rows and inserts those of the list, each with its entry as its parameter. Entries for an item that is
// missing get none. Null leaves the control empty.
void FillItemList(HWND control, const ADXListView* list);

// The entry of a row; it belongs to the list. Null for a row that is not there.
const ADXLVENTRY* EntryOfRow(HWND control, int row);

// Has every row ask for its text again when it is next painted; the values are not made before.
void RepaintRows(HWND control);

}  // namespace corvex
