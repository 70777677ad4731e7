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

// Room for the text of a value, with its terminator.
inline constexpr std::uint32_t kValueTextSize = 40;

// What the value column shows, out of one computation.
struct ValueCell {
    CellLook look;
    char text[kValueTextSize];  // empty for a heading, without an item, and for what has no text
};

// Items in alarm are bold and coloured. Limits themselves are no alarm. On the thread that computes values.
ValueCell ReadValueCell(const ADXLVENTRY& entry, const ADXDefinition& definition, const LastPacket& last);

// The look of the other columns.
CellLook TitleLook(const ADXLVENTRY& entry);

}  // namespace corvex
