// What a grid control shows and where everything lies.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "controls/grid/GridAxis.h"
#include "controls/grid/GridCellStore.h"
#include "controls/grid/GridTerms.h"

namespace corvex {

struct GridBox {
    int left = 0, top = 0, right = 0, bottom = 0;  // right and bottom outside
    bool operator==(const GridBox&) const = default;
};

enum GridState : std::uint32_t {
    kGridCtrlDown = 0x00001,
    kGridShiftDown = 0x00002,
    kGridEditing = 0x00004,
    kGridButtonDown = 0x00008,
    kGridFocused = 0x00020,
    kGridSizingColumn = 0x00040,
    kGridSizingRow = 0x00080,
    kGridSkipRepaint = 0x00100,  // of the next change of size
    kGridVerticalBar = 0x00200,  // shown
    kGridHorizontalBar = 0x00400,
    kGridPartlyRow = 0x00800,  // of the last visible row only a part is
    kGridPartlyColumn = 0x01000,
    kGridDisabled = 0x02000,
    kGridModified = 0x04000,  // by editing
    kGridDraggingColumns = 0x08000,
    kGridDraggingRows = 0x10000,
    kGridRedrawOff = 0x20000,
};

// Coordinates are the client's. On the thread of the grid's window alone.
class GridModel {
public:
    explicit GridModel(std::uint32_t headingFill);

    bool Has(GridStyle bit) const { return (style & bit) != 0; }
    bool Is(GridState bit) const { return (state & bit) != 0; }
    void Set(GridState bit, bool isIt) { state = isIt ? state | bit : state & ~bit; }

    bool HasBody() const { return rows.Last() > 0 && columns.Last() > 0; }
    bool IsInBody(int row, int column) const { return rows.IsInBody(row) && columns.IsInBody(column); }
    // False, and all stays, for want of memory. Cursor, anchor, the first on show and the overlay are cut into the
    // body.
    bool Resize(int bodyRows, int bodyColumns);

    std::uint32_t CursorCell() const;
    std::uint32_t AnchorCell() const;
    // Cursor and anchor of both directions.
    void Select(int anchorRow, int anchorColumn, int cursorRow, int cursorColumn);
    bool IsSelected(int row, int column) const { return rows.IsSelected(row) && columns.IsSelected(column); }
    bool IsOverlaid(int row, int column) const;
    bool MayEditCursorCell() const;

    int BodyTop() const { return titleHeight + rows.Size(0); }
    int BodyLeft() const { return columns.Size(0); }
    int RowRoom() const { return clientHeight - BodyTop(); }
    int ColumnRoom() const { return clientWidth - BodyLeft(); }

    // -1 at or above the title band's bottom and behind the last row, 0 in the header row.
    int rowAt(int y) const;
    // 0 in the header column and left of it, -1 behind the last column, even where that is stretched.
    int columnAt(int x) const;
    // Of any cell that there is, as if the client had no edge. One before the first on show lies where that does.
    GridBox CellBox(int row, int column) const { return Box(row, column, INT_MAX, INT_MAX); }
    // The same where it can be seen; anywhere outside of the client where it can't, at a cost that does not grow with
    // the table.
    GridBox SeenBox(int row, int column) const { return Box(row, column, clientWidth, clientHeight); }
    // Of all cells between two opposite corners.
    GridBox SeenBox(std::array<std::uint32_t, 2> corners) const;
    // The last visible row and column of each direction, and whether they are cut.
    void FindVisible();
    bool IsCursorVisible() const { return rows.IsCursorShown() && columns.IsCursorShown(); }

    GridCellStore cells{kFreshSize, kFreshSize};
    GridAxis rows{kFreshSize, kGridRowHeight}, columns{kFreshSize, kGridColumnWidth};
    std::uint32_t style = kGridDefaultStyle, state = 0;
    std::string title;
    std::string edited;  // typed so far, while editing
    int titleHeight = 0, clientWidth = 0, clientHeight = 0;
    std::array<std::uint32_t, 2> overlay{};  // opposite corners; both 0 for none
    std::array<std::uint32_t, kGridColourCount> colours;

private:
    GridBox Box(int row, int column, int enoughAcross, int enoughDown) const;

    static constexpr int kFreshSize = 10;  // rows and columns of a new grid
};

}  // namespace corvex
