#include "views/HistogramTable.h"

#include <algorithm>

#include "controls/grid/Grid.h"

namespace corvex {

namespace {

constexpr int kColumnWidth = 55, kRowHeight = 20;  // pixels
// Of the grid's first style, what this table does without.
constexpr std::uint32_t kStyleTaken =
    kGridColumnLetters | kGridRowNumbers | kGridEditable | kGridMarkColumns | kGridMarkRows | kGridStretchLastColumn;

int CountOf(HWND grid, UINT message) {
    return static_cast<int>(::SendMessageA(grid, message, 0, 0));
}

// 0 for a division without a key.
std::string HeadText(const ADXLookupTable& axis, int index) {
    float key = 0.0F;
    axis.GetEntry(static_cast<std::uint32_t>(index), &key, nullptr);
    return AxisKeyText(key);
}

void PutHeads(HWND grid, const ADXHistogram& histogram, int rows, int columns) {
    for (int column = 1; column <= columns; ++column) {
        ::SendMessageA(grid, GRM_SETCOLWIDTH, static_cast<WPARAM>(column), kColumnWidth);
        putCell(grid, 0, column, HeadText(histogram.XTable(), column - 1).c_str());
    }
    for (int row = 1; row <= rows; ++row) {
        ::SendMessageA(grid, GRM_SETROWHEIGHT, static_cast<WPARAM>(row), kRowHeight);
        putCell(grid, row, 0, HeadText(histogram.YTable(), row - 1).c_str());
    }
}

}  // namespace

void HistogramTable::Begin() const {
    ::SendMessageA(grid_, GRM_CLEARSTYLE, kStyleTaken, TRUE);
    // A number that is cut must not read as a smaller one.
    ::SendMessageA(grid_, GRM_SETSTYLE, kGridEllipsis, FALSE);
    ::SendMessageA(grid_, GRM_SETSIZE, 1, 1);
}

void HistogramTable::Show(const ADXHistogram* histogram, const std::string& title, int mode) const {
    if (histogram == nullptr) {
        ::SetWindowTextA(grid_, "");
        ::SendMessageA(grid_, GRM_SETSIZE, 0, 0);
        return;
    }
    ::SendMessageA(grid_, WM_SETREDRAW, FALSE, 0);
    ::SetWindowTextA(grid_, title.c_str());
    ::SendMessageA(grid_, GRM_SETSIZE, histogram->GetRows(), static_cast<LPARAM>(histogram->GetCols()));
    const int rows = CountOf(grid_, GRM_GETROWS), columns = CountOf(grid_, GRM_GETCOLS);
    PutHeads(grid_, *histogram, rows, columns);
    for (int row = 0; row < rows; ++row) {
        for (int col = 0; col < columns; ++col)
            ShowCell(*histogram, {static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(col)}, mode);
    }
    ::SendMessageA(grid_, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(grid_, nullptr, TRUE);
}

void HistogramTable::ShowCell(const ADXHistogram& histogram, HistogramCell cell, int mode) const {
    const std::string text = HistogramCellText(histogram, mode, cell.row, cell.col);
    putCell(grid_, static_cast<int>(cell.row) + 1, static_cast<int>(cell.col) + 1, text.c_str());
}

void HistogramTable::Mark(std::optional<HistogramCell> cell) const {
    const std::uint32_t address = cell ? cellAddress(cell->row + 1, cell->col + 1) : 0;
    ::SendMessageA(grid_, GRM_SETOVERLAY, address, static_cast<LPARAM>(address));
}

HistogramPart HistogramTable::Selection(const ADXHistogram& histogram) const {
    std::uint32_t anchor = 0, cursor = 0;
    ::SendMessageA(grid_, GRM_GETSELECTION, reinterpret_cast<WPARAM>(&anchor), reinterpret_cast<LPARAM>(&cursor));
    if (anchor == cursor) return WholeOf(histogram);
    const auto [firstRow, lastRow] = std::minmax({RowOfCell(anchor), RowOfCell(cursor)});
    const auto [firstCol, lastCol] = std::minmax({ColumnOfCell(anchor), ColumnOfCell(cursor)});
    return {static_cast<std::uint32_t>(firstRow - 1), static_cast<std::uint32_t>(lastRow),
            static_cast<std::uint32_t>(firstCol - 1), static_cast<std::uint32_t>(lastCol)};
}

}  // namespace corvex
