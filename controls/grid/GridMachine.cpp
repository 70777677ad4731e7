#include "controls/grid/GridMachine.h"

#include <algorithm>
#include <array>

#include "controls/grid/GridTextModel.h"

namespace corvex {

namespace {

constexpr char kTitleTooLong[] = "Title too long (300 chars max)";
constexpr double kTitleLeading = 1.2;

}  // namespace

void GridMachine::SetStyle(std::uint32_t bits, bool redraws) {
    grid.style = bits == 0 ? 0 : grid.style | bits;
    if (redraws) host_.Repaint();
}

void GridMachine::ClearStyle(std::uint32_t bits, bool redraws) {
    grid.style &= ~bits;
    if (redraws) host_.Repaint();
}

void GridMachine::SetSize(std::uint32_t rows, std::uint32_t columns) {
    Resize(static_cast<int>(std::min<std::uint32_t>(rows, kGridMaxRows)),
           static_cast<int>(std::min<std::uint32_t>(columns, kGridMaxColumns)));
}

// What is typed goes into its cell before that goes.
void GridMachine::Resize(int rows, int columns) {
    if (grid.rows.cursor > rows || grid.columns.cursor > columns) editor.Commit();
    grid.Resize(rows, columns);
    host_.Repaint();
}

// Only the header row stays, and nothing of what the cells under it were.
void GridMachine::ClearAll() {
    editor.Commit();
    grid.cells.ClearTexts();
    grid.columns.first = 1;
    Resize(0, grid.columns.Last());
}

void GridMachine::SetCursor(std::uint32_t row, std::uint32_t column) {
    if (row > kGridMaxRows || column > kGridMaxColumns) return;
    const std::uint32_t cell = cellAddress(row, column);
    if (grid.IsInBody(RowOfCell(cell), ColumnOfCell(cell))) SetSelection(cell, cell);
}

void GridMachine::SetSelection(std::uint32_t anchor, std::uint32_t cursor) {
    const auto isInBody = [&](std::uint32_t cell) { return grid.IsInBody(RowOfCell(cell), ColumnOfCell(cell)); };
    if (!isInBody(anchor) || !isInBody(cursor)) return host_.Tell(kGridBadAddress, 0);
    if (cursor != grid.CursorCell()) editor.Commit();
    if (!isInBody(anchor) || !isInBody(cursor)) return;  // any more
    grid.Select(RowOfCell(anchor), ColumnOfCell(anchor), RowOfCell(cursor), ColumnOfCell(cursor));
    host_.Repaint();
}

void GridMachine::SetOverlay(std::uint32_t corner, std::uint32_t opposite) {
    if (Find(corner) == nullptr || Find(opposite) == nullptr) return;
    host_.PaintSoon(grid.SeenBox(grid.overlay));
    grid.overlay = {corner, opposite};
    host_.PaintNow(grid.SeenBox(grid.overlay));
}

GridCell* GridMachine::Find(std::uint32_t cell) {
    GridCell* const found = grid.cells.Find(cell);
    if (found == nullptr) host_.Tell(kGridBadAddress, 0);
    return found;
}

void GridMachine::Changed(std::uint32_t cell) {
    host_.PaintSoon(grid.SeenBox(RowOfCell(cell), ColumnOfCell(cell)));
}

void GridMachine::ClearChanged(bool redraws) {
    grid.cells.ClearChanged();
    if (redraws) host_.Repaint();
}

void GridMachine::SetSizeOf(bool isRow, int index, int pixels) {
    if (!(isRow ? grid.rows : grid.columns).SetSize(index, pixels)) return;
    view.UpdateShownBar(isRow);
    host_.Repaint();
}

void GridMachine::SetTitle(std::string_view text) {
    grid.title = text.size() > kGridTitleLength ? std::string_view(kTitleTooLong) : text;
    const int height = host_.Measure(GridFont::kTitle, "Xy").height;
    grid.titleHeight = grid.title.empty() ? 0 : static_cast<int>(height * kTitleLeading * CountLines(grid.title));
    host_.SizeAnew();
}

void GridMachine::SetTitleHeight(int height) {
    grid.titleHeight = std::clamp(height, 0, GridAxis::kLargest);
    view.ShowCursor();
    host_.Repaint();
}

void GridMachine::SetColour(std::uint32_t index, std::uint32_t colour) {
    if (index >= kGridColourCount) return;
    grid.colours[index] = colour & 0xFFFFFF;
    host_.Repaint();
}

void GridMachine::OnSize(int width, int height) {
    grid.clientWidth = std::clamp(width, 0, GridAxis::kLargest);
    grid.clientHeight = std::clamp(height, 0, GridAxis::kLargest);
    if (!grid.Is(kGridSkipRepaint)) host_.Repaint();
    grid.Set(kGridSkipRepaint, false);
}

void GridMachine::OnFocus(bool isGained) {
    if (!isGained) host_.DropCaret();
    for (const GridState bit : {kGridShiftDown, kGridCtrlDown})
        grid.Set(bit, grid.Is(bit) && isGained);
    grid.Set(kGridFocused, isGained);
    host_.Tell(isGained ? kGridFocusGained : kGridFocusLost, 0);
    if (isGained && grid.Is(kGridFocused)) host_.MakeCaret();  // unless the parent gave it away again
    if (!isGained) editor.Commit();
    host_.Repaint();
}

void GridMachine::OnEnable(bool isEnabled) {
    grid.Set(kGridDisabled, !isEnabled);
    host_.Repaint();
}

}  // namespace corvex
