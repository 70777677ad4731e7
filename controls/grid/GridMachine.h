// The whole behaviour of a grid: what comes in by messages, keys and mouse becomes its state, and calls on its window.
#pragma once

#include "controls/grid/GridKeys.h"
#include "controls/grid/GridMouse.h"

namespace corvex {

// On the window's thread. Each operation holds whatever the parent does when it is told of something, as nothing of the
// grid's is kept over that but numbers, which are looked at again.
class GridMachine {
public:
    GridMachine(std::uint32_t headingFill, IGridHost& host) : host_(host), grid(headingFill) {}
    GridMachine(const GridMachine&) = delete;
    GridMachine& operator=(const GridMachine&) = delete;

    void SetStyle(std::uint32_t bits, bool redraws);  // 0 clears all
    void ClearStyle(std::uint32_t bits, bool redraws);

    // At most 32000 by 256. Nothing changes for want of memory.
    void SetSize(std::uint32_t rows, std::uint32_t columns);
    void ClearAll();
    // Only when all of it is inside the body.
    void SetCursor(std::uint32_t row, std::uint32_t column);
    void SetSelection(std::uint32_t anchor, std::uint32_t cursor);
    void SetOverlay(std::uint32_t corner, std::uint32_t opposite);

    // Null, and the parent is told, for an address outside of the grid.
    GridCell* Find(std::uint32_t cell);
    // Of what is drawn of it; an address that was found.
    void Changed(std::uint32_t cell);
    void ClearChanged(bool redraws);

    // Pixels; an index out of range is ignored.
    void SetColumnWidth(int column, int width) { SetSizeOf(false, column, width); }
    void SetRowHeight(int row, int height) { SetSizeOf(true, row, height); }
    void SetTitle(std::string_view text);
    void SetTitleHeight(int height);
    void SetColour(std::uint32_t index, std::uint32_t colour);
    std::uint32_t Colour(std::uint32_t index) const { return index < kGridColourCount ? grid.colours[index] : 0; }

    void OnSize(int width, int height);
    void OnFocus(bool isGained);
    void OnEnable(bool isEnabled);

private:
    void SetSizeOf(bool isRow, int index, int pixels);
    void Resize(int rows, int columns);

    IGridHost& host_;

public:
    GridModel grid;
    GridView view{grid, host_};
    GridEditor editor{grid, host_, view};
    GridKeys keys{grid, host_, view, editor};
    GridMouse mouse{grid, host_, view, editor};
};

}  // namespace corvex
