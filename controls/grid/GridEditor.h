// Storing texts in a grid, and typing them in place.
#pragma once

#include "controls/grid/GridView.h"

namespace corvex {

// What is typed belongs to the cell in which it was begun: whoever is about to move the cursor calls Commit first.
class GridEditor {
public:
    GridEditor(GridModel& grid, IGridHost& host, GridView& view) : grid_(grid), host_(host), view_(view) {}

    // Copies the text and tells the parent. False, of which the parent is told too, for a cell outside of the grid.
    bool Store(std::uint32_t cell, std::string_view text);

    // These do nothing where the cursor's cell may not be edited; false then.
    bool Type(char character);
    bool Backspace();
    void BeginEmpty();

    // These do nothing when nothing is being edited.
    void Commit();
    void Cancel();

private:
    bool Begin();
    void Display();
    void End();
    void GrowToText(std::uint32_t cell, std::string_view text);

    GridModel& grid_;
    IGridHost& host_;
    GridView& view_;
};

}  // namespace corvex
