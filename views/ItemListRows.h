// The rows of an item list and the texts in them. Main thread.
#pragma once

#include <cstdint>

#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"
#include "session/SessionState.h"

namespace corvex {

// Room for the text of a value, with its terminator.
inline constexpr std::uint32_t kValueTextSize = 40;

// Deletes all rows and inserts those of the list, each with its entry as its parameter. Entries for an item that is
// missing get none. Null leaves the control empty.
void FillItemList(HWND control, const ADXListView* list);

// The entry of a row; it belongs to the list. Null for a row that is not there.
const ADXLVENTRY* EntryOfRow(HWND control, int row);

// Has every row ask for its text again when it is next painted; the values are not made before.
void RepaintRows(HWND control);

// The text of the value column as it is now; empty for a heading, without an item, and for what has no text. `text` has
// kValueTextSize bytes.
void ValueText(const ADXLVENTRY& entry, const SessionState& session, char* text);

}  // namespace corvex
