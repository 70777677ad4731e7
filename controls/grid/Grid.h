// The grid control: a table of text cells under a title band, with a header row, a header column, editing in place,
// selection, and text exchange with the clipboard.
#pragma once

#include "controls/grid/GridTerms.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kGridClass[] = "QZGRIDCONTROL";

// wParam and lParam in this order. A `cell` is a cellAddress, headers included; for one outside of the grid the parent
// gets kGridBadAddress, and the result is 0 where nothing else is said. Row, column and colour indices out of range are
// ignored, and getters give 0 for them. Results are 0 where none is told. Colours are 0x00BBGGRR.
enum GridMessage : UINT {
    GRM_SETSTYLE = 1325,           // bits to set (0 clears all), redraw
    GRM_GETSTYLE = 1326,           // the bits, of GridStyle
    GRM_CLEARSTYLE = 1327,         // bits, redraw
    GRM_PUTCELL = 1328,            // cell, text, which is copied: 1. The parent gets kGridTextStored
    GRM_GETCELL = 1329,            // cell, buffer of GRM_GETCELLTEXTLENGTH + 1 bytes: 1. "" for a cell without text
    GRM_CLEARALL = 1330,           // every text goes, and all rows but the header row
    GRM_SETSIZE = 1331,            // rows, columns of the body, at most 32000 and 256. What survives keeps its size
    GRM_SETCURSOR = 1332,          // row, column: with the anchor, and only when both are inside the body
    GRM_GETCELLTYPE = 1333,        // cell: a GridCellType
    GRM_SETPROTECT = 1334,         // cell, flag: 0; -1 for a bad address
    GRM_GETPROTECT = 1335,         // cell: not 0 when it is protected; -1 for a bad address
    GRM_GETCHANGED = 1336,         // cell: the flag
    GRM_SETCHANGED = 1337,         // cell, flag
    GRM_CLEARCHANGED = 1338,       // unused, redraw: of every cell
    GRM_SETCELLFILL = 1339,        // cell, colour
    GRM_GETCELLFILL = 1340,        // cell: the colour
    GRM_SETCELLTEXTCOLOR = 1341,   // cell, colour
    GRM_GETCELLTEXTCOLOR = 1342,   // cell: the colour
    GRM_GETROWS = 1343,            // of the body
    GRM_GETCOLS = 1344,            // of the body
    GRM_GETCURSORROW = 1345,       // its row, from 1
    GRM_GETCURSORCOL = 1346,       // its column, from 1
    GRM_GETSELECTION = 1347,       // pointers to std::uint32_t, for the anchor's address and the cursor's: 1
    GRM_SETSELECTION = 1348,       // the anchor's address, the cursor's: only when both are inside the body
    GRM_REPAINT = 1349,            // at once, with erase
    GRM_SETCOLWIDTH = 1350,        // column, pixels
    GRM_GETCOLWIDTH = 1351,        // column
    GRM_SETROWHEIGHT = 1352,       // row, pixels
    GRM_GETROWHEIGHT = 1353,       // row
    GRM_SETTITLEHEIGHT = 1354,     // pixels, until the next title
    GRM_SETTITLEFONT = 1355,       // HFONT, the grid's from now on; null is ignored
    GRM_SETHEADINGFONT = 1356,     // the same
    GRM_COPY = 1357,               // the selection as text to the clipboard: tabs between cells, \r\n after rows
    GRM_PASTE = 1358,              // the clipboard's text from the selection's corner on, whole or not at all
    GRM_RESERVED = 1359,           // 0
    GRM_ISMODIFIED = 1360,         // whether editing has changed a text
    GRM_SETMODIFIED = 1361,        // flag
    GRM_SETALIGN = 1362,           // cell, bits of GridAlign; 0 takes its alignment away
    GRM_GETALIGN = 1363,           // cell: the bits
    GRM_SETOVERLAY = 1364,         // two opposite corners, both included, of what is filled with kGridOverlayFill; 0, 0
                                   // for none
    GRM_SETCOLOR = 1365,           // a GridColour, colour
    GRM_GETCOLOR = 1366,           // a GridColour: the colour
    GRM_GETCELLTEXTLENGTH = 1367,  // cell: characters
    GRM_GETCELLRECT = 1368,        // cell, RECT pointer, of the client: 1
};

// Windows are made with CreateWindowExA, as children of a window that hears the codes. The window's text is the title:
// at most 300 characters, of several lines if wanted; a longer one is replaced by a text that says so. WM_SETFONT gives
// the grid a cell font to own. All is done on the window's thread; messages from others are handled there.
//
// Between WM_SETREDRAW with FALSE and with TRUE nothing is painted, and nothing is counted as painted either: who
// switches it off switches it on again before he works off messages, and repaints.
class Grid {
public:
    static bool Register(HINSTANCE instance);
};

// 1; 0 for a cell outside of the grid.
inline LRESULT putCell(HWND window, int row, int column, const char* text) {
    const auto cell = cellAddress(static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(column));
    return ::SendMessageA(window, GRM_PUTCELL, cell, reinterpret_cast<LPARAM>(text));
}
inline LRESULT getCell(HWND window, int row, int column, char* buffer) {
    const auto cell = cellAddress(static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(column));
    return ::SendMessageA(window, GRM_GETCELL, cell, reinterpret_cast<LPARAM>(buffer));
}

}  // namespace corvex
