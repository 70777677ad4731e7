#include "controls/grid/GridModel.h"

#include <algorithm>
#include <new>

namespace corvex {

namespace {

bool IsBetween(int value, int one, int other) {
    return value >= std::min(one, other) && value <= std::max(one, other);
}

}  // namespace

GridModel::GridModel(std::uint32_t headingFill)
    : colours{0x000000, 0xE6E6E6, 0xFFFFFF,    0x000000, 0xFFFFFF, 0x9EEDF8,
              0xFFFFFF, 0xDCDCDC, headingFill, 0x0000FF, 0x00FFFF} {}

bool GridModel::Resize(int bodyRows, int bodyColumns) {
    if (!cells.Resize(bodyRows, bodyColumns)) return false;
    rows.Resize(bodyRows);
    columns.Resize(bodyColumns);
    if (overlay[0] == 0 && overlay[1] == 0) return true;
    for (std::uint32_t& corner : overlay) {
        const int row = std::max(1, std::min(RowOfCell(corner), bodyRows));
        const int column = std::max(1, std::min(ColumnOfCell(corner), bodyColumns));
        corner = cellAddress(static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(column));
    }
    return true;
}

std::uint32_t GridModel::CursorCell() const {
    return cellAddress(static_cast<std::uint32_t>(rows.cursor), static_cast<std::uint32_t>(columns.cursor));
}

std::uint32_t GridModel::AnchorCell() const {
    return cellAddress(static_cast<std::uint32_t>(rows.anchor), static_cast<std::uint32_t>(columns.anchor));
}

void GridModel::Select(int anchorRow, int anchorColumn, int cursorRow, int cursorColumn) {
    rows.anchor = anchorRow;
    columns.anchor = anchorColumn;
    rows.cursor = cursorRow;
    columns.cursor = cursorColumn;
}

bool GridModel::IsOverlaid(int row, int column) const {
    if (overlay[0] == 0 && overlay[1] == 0) return false;
    return IsBetween(row, RowOfCell(overlay[0]), RowOfCell(overlay[1])) &&
           IsBetween(column, ColumnOfCell(overlay[0]), ColumnOfCell(overlay[1]));
}

bool GridModel::MayEditCursorCell() const {
    return Has(kGridEditable) && HasBody() && !cells.At(rows.cursor, columns.cursor).IsProtected();
}

int GridModel::rowAt(int y) const {
    if (y <= titleHeight) return -1;  // by design y 0 too, where there is no title
    return y < BodyTop() ? 0 : rows.At(y - BodyTop());
}

int GridModel::columnAt(int x) const {
    return x < BodyLeft() || x < 0 ? 0 : columns.At(x - BodyLeft());
}

GridBox GridModel::Box(int row, int column, int enoughAcross, int enoughDown) const {
    GridBox box;
    box.left = column == 0 ? 0 : BodyLeft() + columns.StartOf(column, enoughAcross);
    box.right = box.left + columns.Size(column);
    const bool isLast = columns.Size(column) != 0 && columns.Next(column, 1) == 0;
    if (Has(kGridStretchLastColumn) && isLast) box.right = std::max(box.right, clientWidth);
    box.top = row == 0 ? titleHeight : BodyTop() + rows.StartOf(row, enoughDown);
    box.bottom = box.top + rows.Size(row);
    return box;
}

GridBox GridModel::SeenBox(std::array<std::uint32_t, 2> corners) const {
    const GridBox one = SeenBox(RowOfCell(corners[0]), ColumnOfCell(corners[0]));
    const GridBox other = SeenBox(RowOfCell(corners[1]), ColumnOfCell(corners[1]));
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

// The two directions differ by design: of columns the one behind the cut one counts as visible too.
void GridModel::FindVisible() {
    const GridAxis::Walk across = columns.WalkFromFirst(ColumnRoom()), down = rows.WalkFromFirst(RowRoom());
    columns.lastVisible = ColumnRoom() < 0 ? columns.first - 1 : std::min(across.stop, columns.Last());
    rows.lastVisible = std::min(down.isPartly ? down.stop - 1 : down.stop, rows.Last());
    Set(kGridPartlyColumn, across.isPartly);
    Set(kGridPartlyRow, down.isPartly);
}

}  // namespace corvex
