// The words in which a grid control and its page talk: cell addresses, style bits, colours and notification codes.
#pragma once

#include <cstdint>

namespace corvex {

// Rows and columns of the body count from 1; 0 is the header row or the header column. An address has the row in its
// low 16 bits and the column in its high 16 bits.
constexpr std::uint32_t cellAddress(std::uint32_t row, std::uint32_t column) {
    return (row & 0xFFFF) | column << 16;
}
constexpr int RowOfCell(std::uint32_t address) {
    return static_cast<int>(address & 0xFFFF);
}
constexpr int ColumnOfCell(std::uint32_t address) {
    return static_cast<int>(address >> 16);
}

// Of the body.
inline constexpr int kGridMaxRows = 32000, kGridMaxColumns = 256;
inline constexpr int kGridRowHeight = 21, kGridColumnWidth = 50;  // of new ones, in pixels; 0 hides
inline constexpr int kGridTitleLength = 300, kGridEditLength = 300, kGridFieldLength = 255;

enum GridStyle : std::uint32_t {
    kGridStretchLastColumn = 0x000001,  // to the client's right edge
    kGridWholeLastRow = 0x000002,       // a partly visible last row is not drawn while the vertical bar is shown
    kGridEllipsis = 0x000004,           // cell text that is cut ends in one
    kGridGrowToText = 0x000008,         // storing text grows its row and column
    kGridSizeColumns = 0x000010,        // by mouse
    kGridSizeRows = 0x000020,
    kGridTextRight = 0x000040,       // text cells are right-aligned
    kGridNumbersLeft = 0x000080,     // number cells are not
    kGridStoredOnly = 0x000100,      // no behaviour
    kGridMarkRows = 0x000200,        // the header column shows the selection
    kGridMarkColumns = 0x000400,     // the header row does
    kGridEditable = 0x000800,        // and paste is allowed
    kGridMultiSelect = 0x001000,     // several cells; header clicks select whole rows and columns
    kGridRowNumbers = 0x002000,      // in the header column
    kGridColumnLetters = 0x004000,   // in the header row
    kGridCellColours = 0x008000,     // each cell's own are honoured
    kGridMarkChanged = 0x010000,     // changed cells get the changed colour
    kGridBlendSelection = 0x020000,  // a cell's fill is blended into the selection
    kGridNoHorizontalBar = 0x040000,
    kGridNoVerticalBar = 0x080000,
    kGridOffscreen = 0x100000,  // painted through a bitmap
    kGridDefaultStyle = 0x12FF01,
};

// Alignment of one cell, as GRM_SETALIGN and GRM_GETALIGN have it; 0 for none of its own.
enum GridAlign : std::uint32_t {
    kGridAlignTop = 0x01,
    kGridAlignMiddle = 0x02,
    kGridAlignBottom = 0x04,
    kGridAlignLeft = 0x08,
    kGridAlignCentre = 0x10,
    kGridAlignRight = 0x20,
};

// Indices of GRM_SETCOLOR and GRM_GETCOLOR.
enum GridColour : std::uint32_t {
    kGridTitleText = 0,
    kGridProtectedFill = 1,
    kGridCellFill = 2,
    kGridCellText = 3,
    kGridCursorFrame = 4,
    kGridSelectedHeading = 5,  // with the focus
    kGridStoredColour = 6,     // no effect
    kGridLine = 7,
    kGridHeadingFill = 8,
    kGridChangedText = 9,
    kGridOverlayFill = 10,
    kGridColourCount = 11,
};

enum class GridCellType { kText = 1, kNumber = 2 };

// To the parent, as WM_COMMAND with the control id in the low word and the code in the high word of wParam. lParam is
// the cursor's address where nothing else is said.
enum GridCode : std::uint32_t {
    kGridBadAddress = 3,        // lParam 0
    kGridCursorMoved = 5,       // by key or click
    kGridSelectionDragged = 6,  // the selection changed by dragging
    kGridEditBegun = 8,
    kGridDeleteKey = 9,
    kGridEditEnded = 10,    // by commit, when what was typed is not stored yet, or by Escape
    kGridFirstFKey = 11,    // F1 to F12: 11 to 22
    kGridFocusGained = 23,  // lParam 0
    kGridFocusLost = 24,    // lParam 0
    kGridCellClicked = 25,
    kGridTextStored = 26,  // lParam: the address of that cell
};

}  // namespace corvex
