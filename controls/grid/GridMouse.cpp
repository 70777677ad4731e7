#include "controls/grid/GridMouse.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr int kEdgeReach = 10;  // pixels from the edge of a heading that it can be dragged by

// Which heading the pointer is at the edge of; -1 for none. The one under it wins when both its edges are near. Before
// the first on show lies the header, whatever is scrolled out between them.
int AtEdge(const GridAxis& axis, int at, int after, int before) {
    if (after != at) return at;
    if (before == at) return -1;
    return at == -1 ? axis.Last() : at == axis.first ? 0 : at - 1;
}

bool IsInside(int x, int y, const GridModel& grid) {
    return x >= 0 && y >= 0 && x < grid.clientWidth && y < grid.clientHeight;
}

}  // namespace

int GridMouse::ColumnToSize(int x) const {
    return AtEdge(grid_.columns, grid_.columnAt(x), grid_.columnAt(x + kEdgeReach), grid_.columnAt(x - kEdgeReach));
}

// The title band has no edge to drag.
int GridMouse::RowToSize(int y) const {
    if (y <= grid_.titleHeight) return -1;
    return AtEdge(grid_.rows, grid_.rowAt(y), grid_.rowAt(y + kEdgeReach), grid_.rowAt(y - kEdgeReach));
}

void GridMouse::BeginSizing(int x, int y) {
    if (pointer_ == GridPointer::kArrow) return;
    const bool isColumn = pointer_ == GridPointer::kSizeColumn;
    const GridAxis& axis = isColumn ? grid_.columns : grid_.rows;
    const int index = isColumn ? ColumnToSize(x) : RowToSize(y);
    if (!axis.Has(index)) return;
    if (!IsSizing()) hadWholeLastRow_ = grid_.Has(kGridWholeLastRow);  // or the button was pressed twice
    grid_.style &= ~std::uint32_t{kGridWholeLastRow};
    grid_.Set(isColumn ? kGridSizingColumn : kGridSizingRow, true);
    sized_ = index;
    sizeBefore_ = axis.Size(index);
    sizeStart_ = isColumn ? x : y;
}

void GridMouse::Size(int x, int y) {
    const bool isRow = grid_.Is(kGridSizingRow);
    GridAxis& axis = isRow ? grid_.rows : grid_.columns;
    if (axis.SetSize(sized_, sizeBefore_ + (isRow ? y : x) - sizeStart_)) {
        view_.UpdateShownBar(isRow);
        host_.Repaint();
    }
}

// A click that somebody took the focus from in the middle takes it back and ends.
void GridMouse::OnDown(int x, int y) {
    grid_.Set(kGridButtonDown, true);
    BeginSizing(x, y);
    if (grid_.Is(kGridEditing)) {
        editor_.Commit();
    } else {
        host_.TakeFocus();
    }
    if (!host_.HasFocus()) {
        host_.TakeFocus();
        return EndGesture();
    }
    const std::uint32_t cursor = grid_.CursorCell(), anchor = grid_.AnchorCell();
    const int row = grid_.rowAt(y), column = grid_.columnAt(x);
    if (row > 0 && column > 0) {
        Click(row, column);
    } else if (row >= 0 && column >= 0) {
        SelectFromHeading(row, column);
    }
    const bool hasMoved = grid_.CursorCell() != cursor;
    if (hasMoved) {
        host_.Tell(kGridCursorMoved, grid_.CursorCell());
        view_.ShowCursor();
    }
    if (hasMoved || grid_.AnchorCell() != anchor) host_.Repaint();
    if (grid_.Is(kGridButtonDown)) host_.Capture();  // unless the gesture was ended meanwhile
}

void GridMouse::Click(int row, int column) {
    const bool isExtending = grid_.Has(kGridMultiSelect) && grid_.Is(kGridShiftDown);
    if (isExtending) {
        grid_.Select(grid_.rows.anchor, grid_.columns.anchor, row, column);
    } else {
        grid_.Select(row, column, row, column);
    }
    host_.Tell(kGridCellClicked, grid_.CursorCell());
}

// The corner has both 0, and the edge of its column does not keep it from selecting everything.
void GridMouse::SelectFromHeading(int row, int column) {
    if (!grid_.Has(kGridMultiSelect) || !grid_.HasBody()) return;
    const int lastRow = grid_.rows.Last(), lastColumn = grid_.columns.Last();
    if (row == 0 && column > 0 && pointer_ != GridPointer::kSizeColumn) {
        grid_.Set(kGridDraggingColumns, true);
        grid_.Select(1, column, lastRow, column);
    } else if (column == 0 && row > 0 && pointer_ != GridPointer::kSizeRow) {
        grid_.Set(kGridDraggingRows, true);
        grid_.Select(row, 1, row, lastColumn);
    } else if (row == 0 && column == 0 && pointer_ != GridPointer::kSizeRow) {
        grid_.Select(1, 1, lastRow, lastColumn);
    }
}

void GridMouse::OnMove(int x, int y) {
    if (IsSizing()) {
        Size(x, y);
    } else if (grid_.Is(kGridButtonDown) && grid_.Has(kGridMultiSelect)) {
        DragTo(grid_.rowAt(y), grid_.columnAt(x));
        SetTimer(grid_.Is(kGridButtonDown) && !IsInside(x, y, grid_));
    }
    DecidePointer(x, y);
}

void GridMouse::DragTo(int row, int column) {
    GridAxis &rows = grid_.rows, &columns = grid_.columns;
    const bool rowFollows = row > 0 && row != rows.cursor && !grid_.Is(kGridDraggingColumns);
    const bool columnFollows = column > 0 && column != columns.cursor && !grid_.Is(kGridDraggingRows);
    if (!grid_.HasBody() || (!rowFollows && !columnFollows)) return;
    editor_.Commit();
    if (rowFollows && rows.IsInBody(row)) rows.cursor = row;
    if (columnFollows && columns.IsInBody(column)) columns.cursor = column;
    host_.Tell(kGridSelectionDragged, grid_.CursorCell());
    host_.Repaint();
}

void GridMouse::OnDoubleClick(int x, int y) {
    if (grid_.rowAt(y) == grid_.rows.cursor && grid_.columnAt(x) == grid_.columns.cursor) editor_.BeginEmpty();
}

void GridMouse::EndGesture() {
    const bool wasSizing = IsSizing();
    for (const GridState bit :
         {kGridButtonDown, kGridDraggingColumns, kGridDraggingRows, kGridSizingColumn, kGridSizingRow})
        grid_.Set(bit, false);
    SetTimer(false);
    if (wasSizing) {
        if (hadWholeLastRow_) grid_.style |= kGridWholeLastRow;
        pointer_ = GridPointer::kArrow;
        host_.SetPointer(pointer_);
        host_.SizeAnew();
    }
    host_.Release();
}

void GridMouse::SetTimer(bool isDue) {
    if (isDue == isTimerRunning_) return;
    isTimerRunning_ = isDue;
    ticks_ = 0;
    if (isDue) {
        host_.StartTimer();
    } else {
        host_.StopTimer();
    }
}

// The selection follows each step, to the first on show where the pointer is before the body.
void GridMouse::OnTick(int x, int y) {
    if (!isTimerRunning_) return;
    const int across = AutoScrollStep(x, grid_.clientWidth, ticks_);
    const int down = AutoScrollStep(y, grid_.clientHeight, ticks_);
    ++ticks_;
    const bool hasMovedAcross = across != 0 && view_.ScrollTo(false, grid_.columns.first + across);
    const bool hasMovedDown = down != 0 && view_.ScrollTo(true, grid_.rows.first + down);
    if (!hasMovedAcross && !hasMovedDown) return;
    const int row = y < std::max(grid_.BodyTop(), grid_.titleHeight + 1) ? grid_.rows.first : grid_.rowAt(y);
    const int column = x < grid_.BodyLeft() ? grid_.columns.first : grid_.columnAt(x);
    DragTo(row == -1 ? grid_.rows.Last() : row, column == -1 ? grid_.columns.Last() : column);
}

void GridMouse::DecidePointer(int x, int y) {
    if (IsSizing()) return;
    pointer_ = GridPointer::kArrow;
    if (grid_.Has(kGridSizeColumns) && grid_.rowAt(y) == 0 && grid_.columns.Has(ColumnToSize(x))) {
        pointer_ = GridPointer::kSizeColumn;
    } else if (grid_.Has(kGridSizeRows) && grid_.columnAt(x) == 0 && grid_.rows.Has(RowToSize(y))) {
        pointer_ = GridPointer::kSizeRow;
    }
    host_.SetPointer(pointer_);
}

}  // namespace corvex
