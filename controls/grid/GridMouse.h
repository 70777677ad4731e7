// The mouse on a grid: clicks, drags that select or resize, and the scrolling of a drag that leaves the client.
#pragma once

#include "controls/grid/GridEditor.h"

namespace corvex {

// Coordinates are the client's, and may lie outside of it while the mouse is captured.
class GridMouse {
public:
    GridMouse(GridModel& grid, IGridHost& host, GridView& view, GridEditor& editor)
        : grid_(grid), host_(host), view_(view), editor_(editor) {}

    void OnDown(int x, int y);
    void OnMove(int x, int y);
    void OnDoubleClick(int x, int y);
    // The button is up, or the capture is lost: the same for both.
    void EndGesture();
    // Of the timer that runs while a drag is outside of the client.
    void OnTick(int x, int y);

private:
    void BeginSizing(int x, int y);
    void Size(int x, int y);
    void Click(int row, int column);
    void SelectFromHeading(int row, int column);
    void DragTo(int row, int column);
    void SetTimer(bool isDue);
    void DecidePointer(int x, int y);
    bool IsSizing() const { return grid_.Is(kGridSizingColumn) || grid_.Is(kGridSizingRow); }
    int ColumnToSize(int x) const;
    int RowToSize(int y) const;

    GridModel& grid_;
    IGridHost& host_;
    GridView& view_;
    GridEditor& editor_;

    GridPointer pointer_ = GridPointer::kArrow;
    int sized_ = 0, sizeBefore_ = 0, sizeStart_ = 0;  // index, pixels, and where the pointer was
    bool hadWholeLastRow_ = false;                    // the style that is off while a size is dragged
    bool isTimerRunning_ = false;
    unsigned ticks_ = 0;
};

}  // namespace corvex
