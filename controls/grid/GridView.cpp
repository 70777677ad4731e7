#include "controls/grid/GridView.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr int kSlow = 16, kMedium = 48;  // pixels outside below which a drag scrolls slowly, and at middle speed
constexpr int kNotch = 120;              // of a wheel
constexpr int kEditInset = 4, kCaretFromRight = 4;

}  // namespace

int AutoScrollStep(int position, int extent, unsigned tick) {
    if (position >= 0 && position < extent) return 0;
    const int distance = position < 0 ? -1 - position : position - extent;
    const unsigned divisor = distance < kSlow ? 8 : distance < kMedium ? 3 : 1;
    if (tick % divisor != 0) return 0;
    return position < 0 ? -1 : 1;
}

void GridView::SetBarOf(bool isVertical) {
    const GridAxis& axis = Axis(isVertical);
    if (axis.isBarShown) host_.SetBar(isVertical, axis.barMaximum, axis.first);
}

// The range counts the header too, or the last one could not be reached.
bool GridView::UpdateBar(bool isVertical, int room) {
    GridAxis& axis = Axis(isVertical);
    const int fit = std::max(1, axis.Fit(axis.Last(), -1, room));
    const bool wasShown = axis.isBarShown;
    axis.isBarShown = fit < axis.Last();
    grid_.Set(isVertical ? kGridVerticalBar : kGridHorizontalBar, axis.isBarShown);
    const int maximum = axis.isBarShown ? axis.Last() + 1 - fit : 1;
    const bool wasAtEnd = wasShown && axis.first >= axis.barMaximum;
    axis.first = wasAtEnd ? maximum : std::min(axis.first, maximum);
    axis.barMaximum = maximum;
    if (axis.isBarShown != wasShown) host_.ShowBar(isVertical, axis.isBarShown);
    SetBarOf(isVertical);
    return axis.isBarShown != wasShown;
}

// Two bars may stand there for no more than the room that they take from each other.
bool GridView::IsEachBarForTheOther() const {
    const GridAxis &rows = grid_.rows, &columns = grid_.columns;
    if (!rows.isBarShown || !columns.isBarShown) return false;
    return rows.Fit(rows.Last(), -1, grid_.RowRoom() + host_.BarThickness(false)) == rows.Last() &&
           columns.Fit(columns.Last(), -1, grid_.ColumnRoom() + host_.BarThickness(true)) == columns.Last();
}

bool GridView::UpdateBars() {
    const bool isFreed = IsEachBarForTheOther();
    const auto update = [&](bool isVertical) {
        return UpdateBar(isVertical, Room(isVertical) + (isFreed ? host_.BarThickness(!isVertical) : 0));
    };
    const bool across = !grid_.Has(kGridNoHorizontalBar) && update(false);
    const bool down = !grid_.Has(kGridNoVerticalBar) && update(true);
    return across || down;
}

void GridView::UpdateShownBar(bool isVertical) {
    if (Axis(isVertical).isBarShown) UpdateBar(isVertical, Room(isVertical));
}

bool GridView::MoveFirst(bool isVertical, int first) {
    GridAxis& axis = Axis(isVertical);
    if (axis.first == first) return false;
    axis.first = first;
    SetBarOf(isVertical);
    return true;
}

bool GridView::ShowCursor() {
    const bool down = MoveFirst(true, grid_.rows.FirstToShowCursor(grid_.RowRoom()));
    const bool across = MoveFirst(false, grid_.columns.FirstToShowCursor(grid_.ColumnRoom()));
    grid_.FindVisible();
    return down || across;
}

bool GridView::ScrollTo(bool isVertical, long long first) {
    const GridAxis& axis = Axis(isVertical);
    if (!axis.isBarShown) return false;
    const auto place = std::clamp<long long>(first, 1, axis.barMaximum);
    if (!MoveFirst(isVertical, static_cast<int>(place))) return false;
    host_.Repaint();
    PlaceCaret();
    return true;
}

void GridView::OnScroll(bool isVertical, GridScroll how, int thumb) {
    grid_.FindVisible();
    const GridAxis& axis = Axis(isVertical);
    const int room = Room(isVertical);
    // At least one, though not even that fits.
    const auto page = [&](int step) { return std::max(1, axis.Fit(axis.first, step, room)); };
    switch (how) {
        case GridScroll::kLineBack:
            ScrollTo(isVertical, axis.first - 1);
            break;
        case GridScroll::kLineOn:
            ScrollTo(isVertical, axis.first + 1);
            break;
        case GridScroll::kPageBack:
            ScrollTo(isVertical, axis.first - page(-1));
            break;
        case GridScroll::kPageOn:  // down, the last row on show becomes the first
            ScrollTo(isVertical, isVertical ? std::max(axis.first + 1, axis.lastVisible) : axis.first + page(1));
            break;
        case GridScroll::kThumbEnd:
            if (!isVertical) ScrollTo(isVertical, thumb);
            break;
        case GridScroll::kThumbMoves:
            ScrollTo(isVertical, thumb);
            break;
    }
    host_.TakeFocus();
}

bool GridView::OnWheel(int delta, std::uint32_t lines) {
    const GridAxis& rows = grid_.rows;
    if (!rows.isBarShown) return false;
    const long long step =
        lines == kGridWheelPage ? std::max(1, rows.Fit(rows.first, 1, grid_.RowRoom())) : static_cast<long long>(lines);
    ScrollTo(true, rows.first + -delta / kNotch * step);
    return true;
}

void GridView::PlaceCaret() {
    if (!grid_.Is(kGridEditing)) return;
    grid_.FindVisible();
    if (!grid_.IsCursorVisible()) return host_.HideCaret();
    const GridBox box = grid_.CellBox(grid_.rows.cursor, grid_.columns.cursor);
    const int height = grid_.rows.Size(grid_.rows.cursor);
    host_.ShowCaretAt(box.right - kEditInset - kCaretFromRight,
                      box.top + kEditInset + height / 2 - host_.CaretHeight() + 2);
}

}  // namespace corvex
