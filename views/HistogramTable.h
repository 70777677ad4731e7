// The table of the "Histograms" tab: one histogram's cells in a grid control, which the page drives.
#pragma once

#include <optional>
#include <string>

#include "definition/HistogramFeed.h"
#include "export/HistogramCells.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Columns that the grid has no room for are not shown, but counted and copied. Main thread.
class HistogramTable {
public:
    // The grid outlives it. A null one shows nothing.
    explicit HistogramTable(HWND grid) : grid_(grid) {}

    // First of all: a table without letters and numbers of its own, that is not typed into, and whose cut texts show
    // it.
    void Begin() const;
    // All of it anew, as a `mode` of GetCellValue has it. Null for none.
    void Show(const ADXHistogram* histogram, const std::string& title, int mode) const;
    // That cell's figure anew.
    void ShowCell(const ADXHistogram& histogram, HistogramCell cell, int mode) const;
    // The cell that was hit last; none takes the mark away.
    void Mark(std::optional<HistogramCell> cell) const;
    // What is selected of that histogram, and all of it when that is one cell.
    HistogramPart Selection(const ADXHistogram& histogram) const;

private:
    HWND grid_;
};

}  // namespace corvex
