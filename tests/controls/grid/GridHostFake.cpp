#include "tests/controls/grid/GridHostFake.h"

namespace corvex {

GridCodes GridHostFake::TakeCodes() {
    GridCodes codes;
    for (const auto& [code, value] : TakeNotes())
        codes.push_back(code);
    return codes;
}

void GridHostFake::Tell(std::uint32_t code, std::uint32_t value) {
    notes.emplace_back(code, value);
    if (handler) handler(code);
}

// As a paint does.
void GridHostFake::Repaint() {
    ++repaints;
    while (machine->view.UpdateBars()) {
    }
    machine->grid.FindVisible();
}

void GridHostFake::ShowCaretAt(int x, int y) {
    isCaretShown = hasCaret;
    caret = {x, y};
}

void GridHostFake::SetFocus(bool isHere) {
    if (std::exchange(hasFocus, isHere) != isHere) machine->OnFocus(isHere);
}

FakeGrid::FakeGrid(int width, int height, int rows, int columns) {
    host.machine = &machine;
    host.width = width;
    host.height = height;
    machine.SetSize(static_cast<std::uint32_t>(rows), static_cast<std::uint32_t>(columns));
    machine.OnSize(width, height);
}

GridNotes FakeGrid::Click(int x, int y) {
    host.notes.clear();
    machine.mouse.OnDown(x, y);
    machine.mouse.EndGesture();
    return host.TakeNotes();
}

GridCodes FakeGrid::Type(std::string_view text) {
    host.notes.clear();
    for (const char c : text)
        machine.keys.OnCharacter(static_cast<unsigned char>(c));
    return host.TakeCodes();
}

GridCodes FakeGrid::Press(GridKey key) {
    host.notes.clear();
    machine.keys.OnDown(key);
    return host.TakeCodes();
}

std::vector<int> FakeGrid::Selection() const {
    return {grid.rows.anchor, grid.columns.anchor, grid.rows.cursor, grid.columns.cursor};
}

}  // namespace corvex
