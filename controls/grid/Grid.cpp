#include "controls/grid/Grid.h"

#include "controls/grid/GridMachine.h"
#include "controls/grid/GridPaint.h"
#include "controls/grid/GridTextModel.h"
#include "controls/grid/GridWindowHost.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

constexpr int kBarRounds = 3;  // one bar takes room from the other, so that it may come to need one too

// Built with the window at WM_NCCREATE.
class GridControl final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnStateMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnInput(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnScrolling(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnTableMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnCellMessage(UINT message, std::uint32_t cell, LPARAM lParam);
    LRESULT OnFoundCell(UINT message, GridCell& found, std::uint32_t cell, LPARAM lParam);
    LRESULT OnSelectionMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnLookMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT SetTitle(const char* text);
    void Adopt(GridFont role, WPARAM font);
    void OnTimer();
    void Paint();

    GridWindowHost host_{Window()};
    GridMachine machine_{::GetSysColor(COLOR_BTNFACE), host_};
    GridModel& grid_ = machine_.grid;
    OffscreenBitmap offscreen_;
};

std::uint32_t Word(WPARAM value) {
    return static_cast<std::uint32_t>(value);
}
std::uint32_t Word(LPARAM value) {
    return static_cast<std::uint32_t>(value);
}
int Index(WPARAM value) {
    return value > GridAxis::kLargest ? -1 : static_cast<int>(value);
}
int Pixels(LPARAM value) {
    return value > GridAxis::kLargest ? GridAxis::kLargest : value < 0 ? 0 : static_cast<int>(value);
}
int XOf(LPARAM place) {
    return static_cast<short>(LOWORD(place));
}
int YOf(LPARAM place) {
    return static_cast<short>(HIWORD(place));
}

LRESULT GridControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            host_.controlId = static_cast<WORD>(::GetDlgCtrlID(Window()) & 0xFFFF);
            ::SendMessageA(Window(), WM_SETTEXT, 0,
                           reinterpret_cast<LPARAM>(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName));
            return 0;
        case WM_PAINT:
            if (!grid_.Is(kGridRedrawOff)) Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_GETDLGCODE:
            return 0x95;
        case WM_SETCURSOR:  // or the parent's pointer would show in between
            if (LOWORD(lParam) != HTCLIENT) return Default(message, wParam, lParam);
            host_.ShowPointer();
            return TRUE;
        default:
            return OnStateMessage(message, wParam, lParam);
    }
}

LRESULT GridControl::OnStateMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE: {
            RECT client{};
            ::GetClientRect(Window(), &client);
            machine_.OnSize(static_cast<int>(client.right), static_cast<int>(client.bottom));
            return 0;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            machine_.OnFocus(message == WM_SETFOCUS);
            return 0;
        case WM_ENABLE:
            machine_.OnEnable(wParam != FALSE);
            return 0;
        case WM_SETREDRAW:
            grid_.Set(kGridRedrawOff, wParam == FALSE);
            return 0;
        case WM_SETTEXT:
            return SetTitle(reinterpret_cast<const char*>(lParam));
        case WM_SETFONT:
            Adopt(GridFont::kCell, wParam);
            return 0;
        default:
            return OnInput(message, wParam, lParam);
    }
}

LRESULT GridControl::OnInput(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
            if (machine_.keys.OnDown(static_cast<GridKey>(wParam))) return 0;
            return Default(message, wParam, lParam);
        case WM_SYSKEYDOWN:  // F10 comes so, and opens the menu as well
            if (wParam == VK_F10) machine_.keys.OnDown(static_cast<GridKey>(wParam));
            return Default(message, wParam, lParam);
        case WM_KEYUP:
            if (machine_.keys.OnUp(static_cast<GridKey>(wParam))) return 0;
            return Default(message, wParam, lParam);
        case WM_CHAR:
            return machine_.keys.OnCharacter(Word(wParam)) ? 0 : 1;
        case WM_LBUTTONDOWN:
            machine_.mouse.OnDown(XOf(lParam), YOf(lParam));
            return 0;
        case WM_MOUSEMOVE:
            machine_.mouse.OnMove(XOf(lParam), YOf(lParam));
            return 0;
        case WM_LBUTTONDBLCLK:
            machine_.mouse.OnDoubleClick(XOf(lParam), YOf(lParam));
            return 0;
        case WM_LBUTTONUP:
            machine_.mouse.EndGesture();
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != Window()) machine_.mouse.EndGesture();
            return 0;
        default:
            return OnScrolling(message, wParam, lParam);
    }
}

LRESULT GridControl::OnScrolling(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_MOUSEACTIVATE:
            ::SetFocus(Window());
            return MA_ACTIVATE;
        case WM_TIMER:
            OnTimer();
            return 0;
        case WM_VSCROLL:
        case WM_HSCROLL:
            machine_.view.OnScroll(message == WM_VSCROLL, static_cast<GridScroll>(LOWORD(wParam)), HIWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL: {
            UINT lines = 3;
            ::SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
            if (machine_.view.OnWheel(GET_WHEEL_DELTA_WPARAM(wParam), lines)) return 0;
            return Default(message, wParam, lParam);
        }
        default:
            return OnTableMessage(message, wParam, lParam);
    }
}

LRESULT GridControl::OnTableMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case GRM_SETSTYLE:
            machine_.SetStyle(Word(wParam), lParam != 0);
            return 0;
        case GRM_GETSTYLE:
            return static_cast<LRESULT>(grid_.style);
        case GRM_CLEARSTYLE:
            machine_.ClearStyle(Word(wParam), lParam != 0);
            return 0;
        case GRM_CLEARALL:
            machine_.ClearAll();
            return 0;
        case GRM_SETSIZE:
            machine_.SetSize(Word(wParam), Word(lParam));
            return 0;
        case GRM_GETROWS:
            return grid_.rows.Last();
        case GRM_GETCOLS:
            return grid_.columns.Last();
        case GRM_CLEARCHANGED:
            machine_.ClearChanged(lParam != 0);
            return 0;
        case GRM_ISMODIFIED:
            return grid_.Is(kGridModified) ? 1 : 0;
        case GRM_SETMODIFIED:
            grid_.Set(kGridModified, wParam != 0);
            return 0;
        case GRM_REPAINT:
            host_.Repaint();
            return 0;
        case GRM_RESERVED:
            return 0;
        default:
            return OnSelectionMessage(message, wParam, lParam);
    }
}

LRESULT GridControl::OnSelectionMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case GRM_SETCURSOR:
            machine_.SetCursor(Word(wParam), Word(lParam));
            return 0;
        case GRM_GETCURSORROW:
            return grid_.rows.cursor;
        case GRM_GETCURSORCOL:
            return grid_.columns.cursor;
        case GRM_GETSELECTION:
            if (wParam != 0) *reinterpret_cast<std::uint32_t*>(wParam) = grid_.AnchorCell();
            if (lParam != 0) *reinterpret_cast<std::uint32_t*>(lParam) = grid_.CursorCell();
            return 1;
        case GRM_SETSELECTION:
            machine_.SetSelection(Word(wParam), Word(lParam));
            return 0;
        case GRM_SETOVERLAY:
            machine_.SetOverlay(Word(wParam), Word(lParam));
            return 0;
        case GRM_COPY:
            machine_.keys.Copy();
            return 0;
        case GRM_PASTE:
            machine_.keys.Paste();
            return 0;
        default:
            return OnLookMessage(message, wParam, lParam);
    }
}

LRESULT GridControl::OnLookMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case GRM_SETCOLWIDTH:
            machine_.SetColumnWidth(Index(wParam), Pixels(lParam));
            return 0;
        case GRM_GETCOLWIDTH:
            return grid_.columns.Size(Index(wParam));
        case GRM_SETROWHEIGHT:
            machine_.SetRowHeight(Index(wParam), Pixels(lParam));
            return 0;
        case GRM_GETROWHEIGHT:
            return grid_.rows.Size(Index(wParam));
        case GRM_SETTITLEHEIGHT:
            machine_.SetTitleHeight(Pixels(static_cast<LPARAM>(wParam)));
            return 0;
        case GRM_SETTITLEFONT:
            Adopt(GridFont::kTitle, wParam);
            return 0;
        case GRM_SETHEADINGFONT:
            Adopt(GridFont::kHeading, wParam);
            return 0;
        case GRM_SETCOLOR:
            machine_.SetColour(Word(wParam), Word(lParam));
            return 0;
        case GRM_GETCOLOR:
            return static_cast<LRESULT>(machine_.Colour(Word(wParam)));
        default:
            if (message < GRM_SETSTYLE || message > GRM_GETCELLRECT) return Default(message, wParam, lParam);
            return OnCellMessage(message, Word(wParam), lParam);
    }
}

LRESULT GridControl::OnCellMessage(UINT message, std::uint32_t cell, LPARAM lParam) {
    if (message == GRM_PUTCELL) {
        const auto* const text = reinterpret_cast<const char*>(lParam);
        return machine_.editor.Store(cell, text == nullptr ? "" : text) ? 1 : 0;
    }
    if (GridCell* const found = machine_.Find(cell)) return OnFoundCell(message, *found, cell, lParam);
    return message == GRM_SETPROTECT || message == GRM_GETPROTECT ? -1 : 0;
}

LRESULT GridControl::OnFoundCell(UINT message, GridCell& found, std::uint32_t cell, LPARAM lParam) {
    switch (message) {
        case GRM_GETCELL: {
            if (lParam == 0) return 0;
            const std::string_view text = found.Text();
            auto* const buffer = reinterpret_cast<char*>(lParam);
            text.copy(buffer, text.size());
            buffer[text.size()] = '\0';
            return 1;
        }
        case GRM_GETCELLTEXTLENGTH:
            return static_cast<LRESULT>(found.Text().size());
        case GRM_GETCELLTYPE:
            return static_cast<LRESULT>(GridTypeOf(found.Text()));
        case GRM_GETPROTECT:
            return found.IsProtected() ? 1 : 0;
        case GRM_GETCHANGED:
            return found.IsChanged() ? 1 : 0;
        case GRM_GETCELLFILL:
            return static_cast<LRESULT>(found.Fill());
        case GRM_GETCELLTEXTCOLOR:
            return static_cast<LRESULT>(found.TextColour());
        case GRM_GETALIGN:
            return static_cast<LRESULT>(found.Align());
        case GRM_GETCELLRECT: {
            if (lParam == 0) return 0;
            const GridBox box = grid_.CellBox(RowOfCell(cell), ColumnOfCell(cell));
            *reinterpret_cast<RECT*>(lParam) = {box.left, box.top, box.right, box.bottom};
            return 1;
        }
        case GRM_SETPROTECT:
            found.SetProtected(lParam != 0);
            break;
        case GRM_SETCHANGED:
            found.SetChanged(lParam != 0);
            break;
        case GRM_SETCELLFILL:
            found.SetFill(Word(lParam));
            break;
        case GRM_SETCELLTEXTCOLOR:
            found.SetTextColour(Word(lParam));
            break;
        case GRM_SETALIGN:
            found.SetAlign(Word(lParam));
            break;
        default:
            return 0;
    }
    machine_.Changed(cell);
    return 0;
}

// What stands for a title that is too long becomes the window's text too.
LRESULT GridControl::SetTitle(const char* text) {
    machine_.SetTitle(text == nullptr ? "" : text);
    return Default(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(grid_.title.c_str()));
}

void GridControl::Adopt(GridFont role, WPARAM font) {
    if (font == 0) return;
    host_.fonts.Adopt(role, reinterpret_cast<HFONT>(font));
    host_.Repaint();
}

void GridControl::OnTimer() {
    POINT place{};
    ::GetCursorPos(&place);
    ::ScreenToClient(Window(), &place);
    machine_.mouse.OnTick(static_cast<int>(place.x), static_cast<int>(place.y));
}

// The bars come first: a client that they change while it is being painted would be painted twice.
void GridControl::Paint() {
    for (int i = 0; i < kBarRounds; ++i) {
        grid_.Set(kGridSkipRepaint, true);
        const bool hasChanged = machine_.view.UpdateBars();
        grid_.Set(kGridSkipRepaint, false);
        if (!hasChanged) break;
        ::InvalidateRect(Window(), nullptr, TRUE);
    }
    grid_.FindVisible();
    if (grid_.Has(kGridOffscreen)) {
        const OffscreenPaint paint(Window(), offscreen_);
        PaintGrid(paint.Dc(), grid_, host_.fonts, paint.Due());
    } else {
        PAINTSTRUCT paint{};
        PaintGrid(::BeginPaint(Window(), &paint), grid_, host_.fonts, paint.rcPaint);
        ::EndPaint(Window(), &paint);
    }
    machine_.view.PlaceCaret();
}

}  // namespace

bool Grid::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kGridClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.background = static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH));
    windowClass.hasCursor = false;
    return RegisterControl<GridControl>(instance, windowClass);
}

}  // namespace corvex
