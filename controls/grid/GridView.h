// Which part of a grid is on show: scroll bars, and the cursor brought into view.
#pragma once

#include "controls/grid/GridHost.h"

namespace corvex {

// By the numbers in which the system tells them.
enum class GridScroll { kLineBack = 0, kLineOn = 1, kPageBack = 2, kPageOn = 3, kThumbEnd = 4, kThumbMoves = 5 };

// Of a wheel's lines: a page.
inline constexpr std::uint32_t kGridWheelPage = 0xFFFFFFFF;

// How far a drag outside of a client of this extent scrolls in one direction at this tick: -1, 0 or 1. The distance
// counts from the first pixel outside.
int AutoScrollStep(int position, int extent, unsigned tick);

class GridView {
public:
    GridView(GridModel& grid, IGridHost& host) : grid_(grid), host_(host) {}

    // Shows, hides and sets the bars that the style leaves to the grid. Whether one was shown or hidden, which changes
    // the client, so that it is to be called again.
    bool UpdateBars();
    // The range of a bar that is shown.
    void UpdateShownBar(bool isVertical);
    // Whether anything moved; repaints nothing.
    bool ShowCursor();
    // Within the bar's range, and repaints. False without a bar, and when that changes nothing.
    bool ScrollTo(bool isVertical, long long first);
    void OnScroll(bool isVertical, GridScroll how, int thumb);
    // False without a vertical bar.
    bool OnWheel(int delta, std::uint32_t lines);
    // In the cell that is being edited; hides it where that is not in view.
    void PlaceCaret();

private:
    GridAxis& Axis(bool isVertical) { return isVertical ? grid_.rows : grid_.columns; }
    int Room(bool isVertical) const { return isVertical ? grid_.RowRoom() : grid_.ColumnRoom(); }
    bool IsEachBarForTheOther() const;
    bool UpdateBar(bool isVertical, int room);
    void SetBarOf(bool isVertical);
    bool MoveFirst(bool isVertical, int first);

    GridModel& grid_;
    IGridHost& host_;
};

}  // namespace corvex
