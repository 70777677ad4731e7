// The keyboard of a grid.
#pragma once

#include "controls/grid/GridEditor.h"

namespace corvex {

// By the numbers in which the system tells them.
enum class GridKey : std::uint32_t {
    kBackspace = 0x08,
    kTab = 0x09,
    kEnter = 0x0D,
    kShift = 0x10,
    kCtrl = 0x11,
    kEscape = 0x1B,
    kPageUp = 0x21,
    kPageDown = 0x22,
    kLeft = 0x25,
    kUp = 0x26,
    kRight = 0x27,
    kDown = 0x28,
    kDelete = 0x2E,
    kF1 = 0x70,
    kF12 = 0x7B,
};

class GridKeys {
public:
    GridKeys(GridModel& grid, IGridHost& host, GridView& view, GridEditor& editor)
        : grid_(grid), host_(host), view_(view), editor_(editor) {}

    // False for a key that means nothing here.
    bool OnDown(GridKey key);
    bool OnUp(GridKey key);
    // False for one that means nothing here.
    bool OnCharacter(std::uint32_t character);

    void Copy();
    void Paste();
    void SelectAll();

private:
    bool OnMovement(GridKey key);
    void Step(GridAxis& along, int step);
    void Page(int step);
    void Moved();
    std::string SelectionAsText() const;

    GridModel& grid_;
    IGridHost& host_;
    GridView& view_;
    GridEditor& editor_;
};

}  // namespace corvex
