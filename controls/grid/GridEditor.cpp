#include "controls/grid/GridEditor.h"

#include <algorithm>
#include <utility>

#include "controls/grid/GridTextModel.h"

namespace corvex {

namespace {

constexpr int kGrowBeside = 5;  // pixels around a text that its cell grows to

}  // namespace

bool GridEditor::Store(std::uint32_t cell, std::string_view text) {
    GridCell* const found = grid_.cells.Find(cell);
    if (found == nullptr) {
        host_.Tell(kGridBadAddress, 0);
        return false;
    }
    if (!found->SetText(text)) return false;
    host_.PaintSoon(grid_.SeenBox(RowOfCell(cell), ColumnOfCell(cell)));
    if (grid_.Has(kGridGrowToText) && !text.empty()) GrowToText(cell, text);
    host_.Tell(kGridTextStored, cell);
    return true;
}

void GridEditor::GrowToText(std::uint32_t cell, std::string_view text) {
    const int row = RowOfCell(cell), column = ColumnOfCell(cell);
    const GridFont font = row == 0 ? GridFont::kHeading : GridFont::kCell;
    const int lines = row != 0 && grid_.Has(kGridEllipsis) ? 1 : CountLines(text);
    GridTextSize size;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        const GridTextSize line = host_.Measure(font, text.substr(from, end - from));
        size = {std::max(size.width, line.width), std::max(size.height, line.height)};
        from = end + 1;
    }
    const int width = size.width + kGrowBeside, height = size.height * lines + kGrowBeside;
    const bool isHigher = grid_.rows.Size(row) < height, isWider = grid_.columns.Size(column) < width;
    if (isHigher) grid_.rows.SetSize(row, height);
    if (isWider) grid_.columns.SetSize(column, width);
    if (isHigher) view_.UpdateShownBar(true);
    if (isWider) view_.UpdateShownBar(false);
    if (isHigher || isWider) host_.Repaint();
}

// The parent may have forbidden it when it was told.
bool GridEditor::Begin() {
    if (!grid_.MayEditCursorCell()) return false;
    if (view_.ShowCursor()) host_.Repaint();
    if (!grid_.Is(kGridEditing)) {
        host_.Tell(kGridEditBegun, grid_.CursorCell());
        if (!grid_.MayEditCursorCell()) return false;
    }
    grid_.Set(kGridEditing, true);
    return true;
}

bool GridEditor::Type(char character) {
    if (!grid_.MayEditCursorCell()) return false;
    if (!Begin()) return true;
    if (grid_.edited.size() < kGridEditLength) {
        grid_.edited.push_back(character);
    } else {
        host_.Beep();
    }
    Display();
    return true;
}

bool GridEditor::Backspace() {
    if (!Begin()) return false;
    if (!grid_.edited.empty()) grid_.edited.pop_back();
    Display();
    return true;
}

void GridEditor::BeginEmpty() {
    if (Begin()) Display();
}

void GridEditor::Display() {
    host_.PaintNow(grid_.CellBox(grid_.rows.cursor, grid_.columns.cursor));
    view_.PlaceCaret();
}

// Ended before anybody is told: a parent that shows a box takes the focus, and that commits as well.
void GridEditor::Commit() {
    if (!grid_.Is(kGridEditing)) return;
    const std::uint32_t cell = grid_.CursorCell();
    const std::string text = std::exchange(grid_.edited, {});
    grid_.Set(kGridEditing, false);
    if (GridCell* const found = grid_.cells.Find(cell); found != nullptr && found->Text() != text) {
        found->SetChanged(true);
        grid_.Set(kGridModified, true);
    }
    host_.Tell(kGridEditEnded, cell);
    Store(cell, text);
    End();
}

void GridEditor::Cancel() {
    if (!grid_.Is(kGridEditing)) return;
    grid_.edited.clear();
    grid_.Set(kGridEditing, false);
    End();
    host_.Tell(kGridEditEnded, grid_.CursorCell());
}

void GridEditor::End() {
    host_.HideCaret();
    host_.Repaint();
}

}  // namespace corvex
