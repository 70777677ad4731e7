#include "controls/grid/GridKeys.h"

#include <algorithm>

#include "controls/grid/GridTextModel.h"

namespace corvex {

namespace {

constexpr std::uint32_t kCtrlA = 0x01, kCtrlC = 0x03, kCtrlV = 0x16;
constexpr std::uint32_t kFirstTyped = 0x20, kLastTyped = 0x7D;

}  // namespace

bool GridKeys::OnDown(GridKey key) {
    if (key >= GridKey::kF1 && key <= GridKey::kF12) {
        const auto number = static_cast<std::uint32_t>(key) - static_cast<std::uint32_t>(GridKey::kF1);
        host_.Tell(kGridFirstFKey + number, grid_.CursorCell());
        return true;
    }
    switch (key) {
        case GridKey::kShift:
        case GridKey::kCtrl:
            grid_.Set(key == GridKey::kShift ? kGridShiftDown : kGridCtrlDown, true);
            return true;
        case GridKey::kBackspace:
            return editor_.Backspace();
        case GridKey::kEscape:
            editor_.Cancel();
            return true;
        case GridKey::kTab:
            host_.PassFocusToParent();
            return true;
        case GridKey::kDelete:
            host_.Tell(kGridDeleteKey, grid_.CursorCell());
            return true;
        default:
            return OnMovement(key);
    }
}

bool GridKeys::OnUp(GridKey key) {
    if (key != GridKey::kShift && key != GridKey::kCtrl) return false;
    grid_.Set(key == GridKey::kShift ? kGridShiftDown : kGridCtrlDown, false);
    return true;
}

bool GridKeys::OnMovement(GridKey key) {
    const auto along = [&](GridAxis& axis, int step) { return Step(axis, step), true; };
    switch (key) {
        case GridKey::kDown:
        case GridKey::kEnter:
            return along(grid_.rows, 1);
        case GridKey::kUp:
            return along(grid_.rows, -1);
        case GridKey::kRight:
            return along(grid_.columns, 1);
        case GridKey::kLeft:
            return along(grid_.columns, -1);
        case GridKey::kPageDown:
        case GridKey::kPageUp:
            return Page(key == GridKey::kPageDown ? 1 : -1), true;
        default:
            return false;
    }
}

void GridKeys::Step(GridAxis& along, int step) {
    editor_.Commit();
    if (grid_.HasBody()) {
        const bool isExtending = grid_.Is(kGridShiftDown) && grid_.Has(kGridMultiSelect);
        if (const int next = along.Next(along.cursor, step)) along.cursor = next;
        const int next = along.Next(along.anchor, step);
        if (!isExtending) {
            grid_.rows.anchor = grid_.rows.cursor;
            grid_.columns.anchor = grid_.columns.cursor;
        } else if (grid_.Is(kGridCtrlDown) && next != 0) {
            along.anchor = next;
        }
    }
    Moved();
}

// Over hidden rows too, and with Shift whatever the style says; the anchor's column stays.
void GridKeys::Page(int step) {
    editor_.Commit();
    if (grid_.HasBody()) {
        GridAxis& rows = grid_.rows;
        rows.cursor = std::clamp(rows.cursor + step * rows.Fit(rows.cursor, step, grid_.RowRoom()), 1, rows.Last());
        if (!grid_.Is(kGridShiftDown)) rows.anchor = rows.cursor;
    }
    Moved();
}

void GridKeys::Moved() {
    host_.Tell(kGridCursorMoved, grid_.CursorCell());
    view_.ShowCursor();
    host_.Repaint();
}

bool GridKeys::OnCharacter(std::uint32_t character) {
    if (character >= kFirstTyped && character <= kLastTyped) return editor_.Type(static_cast<char>(character));
    switch (character) {
        case kCtrlA:
            SelectAll();
            return true;
        case kCtrlC:
            Copy();
            return true;
        case kCtrlV:
            Paste();
            return true;
        default:
            return false;
    }
}

void GridKeys::SelectAll() {
    editor_.Commit();
    if (grid_.HasBody()) grid_.Select(1, 1, grid_.rows.Last(), grid_.columns.Last());
    host_.Repaint();
}

// Hidden rows and columns are in it.
std::string GridKeys::SelectionAsText() const {
    const auto [top, bottom] = std::minmax(grid_.rows.anchor, grid_.rows.cursor);
    const auto [left, right] = std::minmax(grid_.columns.anchor, grid_.columns.cursor);
    std::string text;
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            text.append(grid_.cells.At(row, column).Text().substr(0, kGridFieldLength));
            text.append(column == right ? "\r\n" : "\t");
        }
    }
    return text;
}

void GridKeys::Copy() {
    if (grid_.HasBody()) host_.PutOnClipboard(SelectionAsText());
}

// The whole block or nothing. Protected cells too are overwritten.
void GridKeys::Paste() {
    editor_.Commit();
    if (!grid_.Has(kGridEditable) || !grid_.HasBody()) return;
    const auto text = host_.TextOfClipboard();
    if (!text) return;
    const int top = std::min(grid_.rows.anchor, grid_.rows.cursor);
    const int left = std::min(grid_.columns.anchor, grid_.columns.cursor);
    const auto fields = ParseGridFields(*text, grid_.rows.Last() + 1 - top, grid_.columns.Last() + 1 - left);
    if (!fields) return;
    std::size_t next = 0;
    for (int row = top; row < top + fields->rows; ++row) {
        for (int column = left; column < left + fields->columns; ++column) {
            const auto cell = cellAddress(static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(column));
            const std::string& field = fields->texts[next++];
            GridCell* const found = grid_.cells.Find(cell);
            if (found != nullptr && found->Text() != field) found->SetChanged(true);
            editor_.Store(cell, field);
        }
    }
    const int bottom = top + fields->rows - 1, right = left + fields->columns - 1;
    if (grid_.IsInBody(bottom, right)) grid_.Select(top, left, bottom, right);
    host_.Repaint();
}

}  // namespace corvex
