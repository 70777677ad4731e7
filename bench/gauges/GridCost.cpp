#include "bench/gauges/GridCost.h"

#include <cstdio>
#include <string>
// After windows.h, which it leans on.
#include "platform/WindowsApi.h"
// clang-format off
#include <psapi.h>
// clang-format on

#include "bench/desktop/Figures.h"
#include "bench/gauges/BareCalls.h"
#include "controls/grid/Grid.h"
#include "controls/grid/GridPaint.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex::bench {

namespace {

constexpr int kGridWidth = 1000, kGridHeight = 600, kGridRounds = 200;
constexpr int kTableSize = 64;

std::string NumberAt(int row, int column) {
    return std::to_string(row * 37 % 200) + "." + std::to_string(column % 10);
}

// As the page of the histograms has it.
void FillTable(GridModel& grid) {
    grid.style = (kGridDefaultStyle & ~0x6E01u) | kGridEllipsis;
    grid.Resize(kTableSize, kTableSize);
    for (int i = 0; i <= kTableSize; ++i) {
        for (int k = 0; k <= kTableSize; ++k)
            grid.cells.At(i, k).SetText(NumberAt(i, k));
    }
    grid.overlay = {cellAddress(5, 5), cellAddress(5, 5)};
    grid.clientWidth = kGridWidth;
    grid.clientHeight = kGridHeight;
    grid.FindVisible();
}

void PrintGridPaint() {
    GridModel grid(::GetSysColor(COLOR_BTNFACE));
    const GridFonts fonts;
    FillTable(grid);
    const auto paint = [&](HDC dc) { PaintGrid(dc, grid, fonts, {0, 0, kGridWidth, kGridHeight}); };
    BareCalls calls(paint);
    const ShownControl shown("STATIC", kGridWidth, kGridHeight);
    const ClientDc screen(shown.Window());
    const MemoryDc memory(screen.Get());
    const OwnedBitmap bitmap(::CreateCompatibleBitmap(screen.Get(), kGridWidth, kGridHeight));
    const SelectGuard selected(memory.Get(), bitmap.Get());
    const auto copied = [&](const auto& work) {
        return Microseconds([&] {
            work();
            ::BitBlt(screen.Get(), 0, 0, kGridWidth, kGridHeight, memory.Get(), 0, 0, SRCCOPY);
        });
    };
    std::vector<double> painted, bare;
    for (int round = 0; round < kGridRounds; ++round) {
        painted.push_back(copied([&] { paint(memory.Get()); }));
        bare.push_back(copied([&] { calls.Run(memory.Get()); }));
    }
    std::printf("screen of %d by %d cells: paint %.0f us, bare calls %.0f us, ratio %.2f (wanted: at most 1.3)\n",
                grid.rows.lastVisible, grid.columns.lastVisible, Median(painted), Median(bare),
                Median(painted) / Median(bare));
}

std::size_t WorkingSet() {
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

void PrintCellChange(const ShownControl& shown) {
    shown.Send(GRM_SETSIZE, kTableSize, kTableSize);
    std::vector<double> whole, cell;
    for (int round = 0; round < kGridRounds; ++round) {
        const int row = round % 8 + 5, column = round / 8 % 8 + 5;
        const auto address = cellAddress(static_cast<unsigned>(row), static_cast<unsigned>(column));
        const std::string text = NumberAt(row, round);
        whole.push_back(Microseconds([&] { shown.Send(GRM_REPAINT); }));
        cell.push_back(Microseconds([&] {
            putCell(shown.Window(), row, column, text.c_str());
            shown.Send(GRM_SETOVERLAY, address, static_cast<LPARAM>(address));
        }));
    }
    std::printf("a cell stored and overlaid beside the last: %.0f us until it is drawn, a whole repaint %.0f us\n",
                Median(cell), Median(whole));
}

void PrintLargest(const ShownControl& shown) {
    const std::size_t before = WorkingSet();
    const double sized = Microseconds([&] { shown.Send(GRM_SETSIZE, kGridMaxRows, kGridMaxColumns); });
    const double megabytes = static_cast<double>(WorkingSet() - before) / 1e6;
    const double jumped = Microseconds([&] { shown.Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, kGridMaxRows), 0); });
    shown.Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 1), 0);
    int pages = 0;
    const double paged = Microseconds([&] {
        for (int last = 0; last != ::GetScrollPos(shown.Window(), SB_VERT); ++pages) {
            last = ::GetScrollPos(shown.Window(), SB_VERT);
            shown.Send(WM_VSCROLL, SB_PAGEDOWN, 0);
        }
    });
    std::printf(
        "%d by %d cells: sized in %.0f ms, %.0f MB (%zu bytes a cell); to the end in %.2f ms, in %d pages %.0f us "
        "each\n",
        kGridMaxRows, kGridMaxColumns, sized / 1e3, megabytes, sizeof(GridCell), jumped / 1e3, pages, paged / pages);
}

}  // namespace

void PrintGridCost() {
    PrintGridPaint();
    Grid::Register(::GetModuleHandleA(nullptr));
    const ShownControl shown(kGridClass, kGridWidth, kGridHeight);
    shown.Resize(kGridWidth, kGridHeight);
    PrintCellChange(shown);
    PrintLargest(shown);
}

}  // namespace corvex::bench
