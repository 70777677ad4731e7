// A window for the behaviour of a grid, without a system under it: it paints nothing and writes down what it is told.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/grid/GridMachine.h"

namespace corvex {

using GridNotes = std::vector<std::pair<std::uint32_t, std::uint32_t>>;  // code and value
using GridCodes = std::vector<std::uint32_t>;

class GridHostFake final : public IGridHost {
public:
    static constexpr int kLetterWidth = 7, kLetterHeight = 14;

    // What has been told since the last call.
    GridNotes TakeNotes() { return std::exchange(notes, {}); }
    GridCodes TakeCodes();

    void Tell(std::uint32_t code, std::uint32_t value) override;
    void Repaint() override;
    void PaintSoon(const GridBox& part) override { parts.push_back(part); }
    void PaintNow(const GridBox& part) override { parts.push_back(part); }
    GridTextSize Measure(GridFont, std::string_view line) override {
        return {kLetterWidth * static_cast<int>(line.size()), kLetterHeight};
    }
    bool HasFocus() override { return hasFocus; }
    void TakeFocus() override { SetFocus(true); }
    void PassFocusToParent() override { SetFocus(false); }
    void MakeCaret() override { hasCaret = true; }
    void DropCaret() override { hasCaret = isCaretShown = false; }
    void ShowCaretAt(int x, int y) override;
    void HideCaret() override { isCaretShown = false; }
    int CaretHeight() override { return kLetterHeight; }
    void Beep() override { ++beeps; }
    void Capture() override { hasCapture = true; }
    void Release() override { hasCapture = false; }
    void StartTimer() override { ++timerStarts; }
    void StopTimer() override { ++timerStops; }
    void SetPointer(GridPointer shape) override { pointer = shape; }
    void ShowBar(bool, bool) override {}
    int BarThickness(bool) override { return 0; }
    void SetBar(bool, int, int) override {}
    void SizeAnew() override { machine->OnSize(width, height); }
    void PutOnClipboard(const std::string& text) override { clipboard = text; }
    std::optional<std::string> TextOfClipboard() override { return clipboard; }

    void SetFocus(bool isHere);

    GridMachine* machine = nullptr;
    std::function<void(std::uint32_t code)> handler;
    GridNotes notes;
    std::vector<GridBox> parts;
    std::optional<std::string> clipboard;
    GridPointer pointer = GridPointer::kArrow;
    std::pair<int, int> caret;
    int width = 0, height = 0, repaints = 0, beeps = 0, timerStarts = 0, timerStops = 0;
    bool hasFocus = false, hasCaret = false, isCaretShown = false, hasCapture = false;
};

// A grid on a client of this size, without title and focus. The body begins at 50, 21.
struct FakeGrid {
    FakeGrid(int width, int height, int rows, int columns);

    GridNotes Click(int x, int y);  // pressed and released
    GridCodes Type(std::string_view text);
    GridCodes Press(GridKey key);
    std::string Text(int row, int column) { return std::string(grid.cells.At(row, column).Text()); }
    // Anchor row and column, cursor row and column.
    std::vector<int> Selection() const;

    GridHostFake host;
    GridMachine machine{0xF0F0F0, host};
    GridModel& grid = machine.grid;
};

}  // namespace corvex
