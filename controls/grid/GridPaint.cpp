#include "controls/grid/GridPaint.h"

#include <algorithm>
#include <map>

namespace corvex {

namespace {

constexpr UINT kTitleEdge = 0x280F, kHeadingEdge = 0x200F;  // all sides, adjusting; the title's filled
constexpr int kTextInset = 2, kEditInset = 2, kEditTextInset = 5;

class GridPainter {
public:
    GridPainter(HDC dc, const GridModel& grid, const GridFonts& fonts, const RECT& due)
        : dc_(dc), grid_(grid), fonts_(fonts), due_(due), saved_(::SaveDC(dc)) {
        ::SetBkMode(dc_, TRANSPARENT);
        ::SelectObject(dc_, line_.Get());
    }
    ~GridPainter() { ::RestoreDC(dc_, saved_); }
    GridPainter(const GridPainter&) = delete;
    GridPainter& operator=(const GridPainter&) = delete;

    void Paint();

private:
    bool IsDue(const RECT& box) const {
        return box.left < due_.right && box.right > due_.left && box.top < due_.bottom && box.bottom > due_.top;
    }
    int LastRow() const;
    void PaintTitle();
    void PaintColumn(int column, int left, int right);
    void PaintHeading(const RECT& box, const GridLook& look);
    void PaintCell(const RECT& box, const GridLook& look);
    void PaintEmpty(int left, int top, int right, int bottom);
    void PaintCursor();
    void Fill(std::uint32_t colour);
    void Frame(const RECT& box) { ::Rectangle(dc_, box.left, box.top, box.right, box.bottom); }
    void Write(const GridLook& look, RECT box);

    const HDC dc_;
    const GridModel& grid_;
    const GridFonts& fonts_;
    const RECT due_;
    const OwnedPen line_{::CreatePen(PS_SOLID, 1, grid_.colours[kGridLine])};
    std::map<std::uint32_t, OwnedBrush> brushes_;  // by colour, as most cells have the same
    const int saved_;
};

void GridPainter::Paint() {
    if (grid_.titleHeight > 0) PaintTitle();
    int right = grid_.BodyLeft();
    if (grid_.columns.Size(0) != 0) {
        right = grid_.CellBox(0, 0).right;
        PaintColumn(0, 0, right);
    }
    for (int column = grid_.columns.first; column <= grid_.columns.lastVisible; ++column) {
        if (grid_.columns.Size(column) == 0) continue;
        const bool isLast = column == grid_.columns.Last() || grid_.columns.Next(column, 1) == 0;
        const int left = right;
        right = isLast ? grid_.CellBox(0, column).right : left + grid_.columns.Size(column);
        PaintColumn(column, left, right);
    }
    PaintEmpty(right, grid_.titleHeight, grid_.clientWidth, grid_.clientHeight);
    PaintCursor();
}

void GridPainter::PaintTitle() {
    RECT band{0, 0, grid_.clientWidth, grid_.titleHeight};
    if (!IsDue(band)) return;
    ::DrawEdge(dc_, &band, EDGE_ETCHED, kTitleEdge);
    ::SetTextColor(dc_, grid_.Is(kGridDisabled) ? kGridDisabledText : grid_.colours[kGridTitleText]);
    const SelectGuard font(dc_, fonts_.Get(GridFont::kTitle));
    const auto length = static_cast<int>(grid_.title.size());
    RECT needed = band;
    ::DrawTextA(dc_, grid_.title.c_str(), length, &needed, DT_CENTER | DT_NOPREFIX | DT_CALCRECT);
    band.top += (band.bottom - band.top - (needed.bottom - needed.top)) / 2;
    ::DrawTextA(dc_, grid_.title.c_str(), length, &band, DT_CENTER | DT_NOPREFIX);
}

// With the bar there, a cut row can be scrolled to, so it may be left out.
int GridPainter::LastRow() const {
    const bool isLeftOut = grid_.Is(kGridVerticalBar) && grid_.Has(kGridWholeLastRow) && grid_.Is(kGridPartlyRow);
    return grid_.rows.lastVisible - (isLeftOut ? 1 : 0);
}

void GridPainter::PaintColumn(int column, int left, int right) {
    if (left >= due_.right || right <= due_.left) return;
    int top = grid_.titleHeight, bottom = grid_.BodyTop();
    if (const RECT box{left, top, right, bottom}; bottom > top && IsDue(box))
        PaintHeading(box, LookOfCell(grid_, 0, column));
    const SelectGuard font(dc_, fonts_.Get(GridFont::kCell));
    for (int row = grid_.rows.first; row <= LastRow(); ++row) {
        top = bottom;
        bottom += grid_.rows.Size(row);
        if (const RECT box{left, top, right, bottom}; bottom > top && IsDue(box))
            PaintCell(box, LookOfCell(grid_, row, column));
    }
    PaintEmpty(left, bottom, right, grid_.clientHeight);
}

void GridPainter::PaintHeading(const RECT& box, const GridLook& look) {
    Fill(look.fill);
    Frame(box);
    RECT inside = box;
    ::DrawEdge(dc_, &inside, EDGE_ETCHED, kHeadingEdge);
    const SelectGuard font(dc_, fonts_.Get(GridFont::kHeading));
    Write(look, inside);
}

void GridPainter::PaintCell(const RECT& box, const GridLook& look) {
    Fill(look.fill);
    Frame(box);
    RECT inside = box;
    if (look.isBeingEdited) {
        ::InflateRect(&inside, -kEditInset, -kEditInset);
        Frame(inside);
        ::InflateRect(&inside, -kEditInset, -kEditInset);
        inside.right -= kEditTextInset;
    } else {
        ::InflateRect(&inside, -kTextInset, 0);
    }
    Write(look, inside);
}

void GridPainter::Write(const GridLook& look, RECT box) {
    if (look.text.empty()) return;
    ::SetTextColor(dc_, look.textColour);
    std::string text = look.text;  // the call wants to be allowed to write, which it does not
    ::DrawTextExA(dc_, text.data(), static_cast<int>(text.size()), &box, look.format, nullptr);
}

// A rectangle without a line ends one pixel early.
void GridPainter::PaintEmpty(int left, int top, int right, int bottom) {
    if (const RECT box{left, top, right, bottom}; left >= right || top >= bottom || !IsDue(box)) return;
    const SelectGuard pen(dc_, ::GetStockObject(NULL_PEN)), brush(dc_, ::GetStockObject(GRAY_BRUSH));
    ::Rectangle(dc_, left, top, right + 1, bottom + 1);
}

// Inverts what lies under it, by its white at first.
void GridPainter::PaintCursor() {
    const GridAxis &rows = grid_.rows, &columns = grid_.columns;
    if (!grid_.HasBody() || !grid_.IsCursorVisible() || rows.cursor > LastRow()) return;
    if (rows.Size(rows.cursor) == 0 || columns.Size(columns.cursor) == 0) return;
    const GridBox box = grid_.CellBox(rows.cursor, columns.cursor);
    const OwnedPen frame(::CreatePen(PS_SOLID, grid_.Is(kGridFocused) ? 3 : 1, grid_.colours[kGridCursorFrame]));
    const SelectGuard pen(dc_, frame.Get()), brush(dc_, ::GetStockObject(NULL_BRUSH));
    const int former = ::SetROP2(dc_, R2_XORPEN);
    ::Rectangle(dc_, box.left, box.top, box.right, box.bottom);
    ::SetROP2(dc_, former);
}

void GridPainter::Fill(std::uint32_t colour) {
    OwnedBrush& brush = brushes_[colour];
    if (!brush) brush = OwnedBrush(::CreateSolidBrush(colour));
    ::SelectObject(dc_, brush.Get());
}

}  // namespace

void PaintGrid(HDC dc, const GridModel& grid, const GridFonts& fonts, const RECT& due) {
    GridPainter(dc, grid, fonts, due).Paint();
}

}  // namespace corvex
