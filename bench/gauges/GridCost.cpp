#include "bench/gauges/GridCost.h"

#include <cstdio>
#include <optional>
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

// The same table in a window.
void FillTable(const ShownControl& shown) {
    shown.Send(GRM_CLEARSTYLE, 0x6E01);
    shown.Send(GRM_SETSTYLE, kGridEllipsis);
    shown.Send(GRM_SETSIZE, kTableSize, kTableSize);
    for (int i = 0; i <= kTableSize; ++i) {
        for (int k = 0; k <= kTableSize; ++k)
            putCell(shown.Window(), i, k, NumberAt(i, k).c_str());
    }
    shown.Send(GRM_REPAINT);
}

void ChangeCell(HWND grid, int round) {
    const int row = round % 8 + 5, column = round / 8 % 8 + 5;
    const auto address = cellAddress(static_cast<unsigned>(row), static_cast<unsigned>(column));
    putCell(grid, row, column, NumberAt(row, round).c_str());
    ::SendMessageA(grid, GRM_SETOVERLAY, address, static_cast<LPARAM>(address));
    ::UpdateWindow(grid);
}

// What a change of a cell has painted, paint by paint.
std::vector<RECT> PaintsOfChange(ShownControl& shown, int round) {
    std::vector<RECT> paints;
    shown.Spy().SetHandler([&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        RECT due{};
        if (message == WM_PAINT && ::GetUpdateRect(shown.Window(), &due, FALSE)) paints.push_back(due);
        return std::nullopt;
    });
    ChangeCell(shown.Window(), round);
    shown.Spy().SetHandler(nullptr);
    return paints;
}

// What the system alone takes for such paints of the same table.
class BarePaints {
public:
    BarePaints(HWND window, const std::vector<RECT>& paints)
        : screen_(window),
          memory_(screen_.Get()),
          bitmap_(::CreateCompatibleBitmap(screen_.Get(), kGridWidth, kGridHeight)),
          selected_(memory_.Get(), bitmap_.Get()) {
        FillTable(grid_);
        for (const RECT& due : paints)
            paints_.emplace_back(due, BareCalls([&](HDC dc) { PaintGrid(dc, grid_, fonts_, due); }));
    }
    void Run() {
        for (auto& [due, calls] : paints_) {
            calls.Run(memory_.Get());
            ::BitBlt(screen_.Get(), due.left, due.top, due.right - due.left, due.bottom - due.top, memory_.Get(),
                     due.left, due.top, SRCCOPY);
        }
    }

private:
    GridModel grid_{::GetSysColor(COLOR_BTNFACE)};
    const GridFonts fonts_;
    const ClientDc screen_;
    const MemoryDc memory_;
    const OwnedBitmap bitmap_;
    const SelectGuard selected_;
    std::vector<std::pair<RECT, BareCalls>> paints_;
};

void PrintCellChange(ShownControl& shown) {
    FillTable(shown);
    ChangeCell(shown.Window(), 0);
    const std::vector<RECT> paints = PaintsOfChange(shown, 1);
    BarePaints bare(shown.Window(), paints);
    std::vector<double> whole, cell, calls;
    for (int round = 0; round < kGridRounds; ++round) {
        whole.push_back(Microseconds([&] { shown.Send(GRM_REPAINT); }));
        cell.push_back(Microseconds([&] { ChangeCell(shown.Window(), round); }));
        calls.push_back(Microseconds([&] { bare.Run(); }));
    }
    std::printf(
        "a cell stored and overlaid beside the last: %.0f us until it is drawn, in %zu paints; their calls alone %.0f "
        "us; a "
        "whole repaint %.0f us\n",
        Median(cell), paints.size(), Median(calls), Median(whole));
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
    ShownControl shown(kGridClass, kGridWidth, kGridHeight);
    shown.Resize(kGridWidth, kGridHeight);
    PrintCellChange(shown);
    PrintLargest(shown);
}

}  // namespace corvex::bench
