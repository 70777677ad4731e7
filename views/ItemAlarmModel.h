// How a cell of an item list looks, and from which packet an item is read there.
#pragma once

#include <cstdint>

#include "definition/ADXDefinition.h"
#include "definition/ADXListView.h"
#include "session/LastPacket.h"

namespace corvex {

enum ItemListColumn : int { kEmptyColumn = 0, kValueColumn = 1, kTitleColumn = 2 };

// The font in which the cell is drawn: the one that the cell before it had, the list's own, or the bold one.
enum class CellFont { kAsItIs, kOrdinary, kBold };

struct CellLook {
    std::uint32_t colour;  // 0x00BBGGRR
    CellFont font;
};

// The newest packet for an item of its command, or of none; no packet for any other: its last raw word stands.
PacketView PacketFor(std::uint32_t parentcmdidhash, const LastPacket& last);

// Items in alarm are bold and coloured in the value column. Limits themselves are no alarm. On the user-interface
// thread, as it computes values.
CellLook LookOf(const ADXLVENTRY& entry, int column, const ADXDefinition& definition, const LastPacket& last);

}  // namespace corvex
