#include "controls/grid/Grid.h"

#include "controls/grid/GridMessages.h"
#include "controls/grid/GridPaint.h"
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
    LRESULT SetTitle(const char* text);
    void OnTimer();
    void SetRedraw(bool isOn);
    void Paint();

    GridWindowHost host_{Window()};
    GridMachine machine_{::GetSysColor(COLOR_BTNFACE), host_};
    GridModel& grid_ = machine_.grid;
    OffscreenBitmap offscreen_;
    RECT heldBack_{};  // what was to be painted while the drawing was off
};

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
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTALLKEYS | DLGC_DEFPUSHBUTTON | DLGC_WANTCHARS;
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
            SetRedraw(wParam != FALSE);
            return 0;
        case WM_SETTEXT:
            return SetTitle(reinterpret_cast<const char*>(lParam));
        case WM_SETFONT:
            host_.Adopt(GridFont::kCell, reinterpret_cast<HFONT>(wParam));
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
            return machine_.keys.OnCharacter(static_cast<std::uint32_t>(wParam)) ? 0 : 1;
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
            if (message < GRM_SETSTYLE || message > GRM_GETCELLRECT) return Default(message, wParam, lParam);
            return AnswerGridMessage(machine_, host_, message, wParam, lParam);
    }
}

// What stands for a title that is too long becomes the window's text too.
LRESULT GridControl::SetTitle(const char* text) {
    machine_.SetTitle(text == nullptr ? "" : text);
    return Default(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(grid_.title.c_str()));
}

void GridControl::OnTimer() {
    POINT place{};
    ::GetCursorPos(&place);
    ::ScreenToClient(Window(), &place);
    machine_.mouse.OnTick(static_cast<int>(place.x), static_cast<int>(place.y));
}

void GridControl::SetRedraw(bool isOn) {
    grid_.Set(kGridRedrawOff, !isOn);
    if (!isOn || ::IsRectEmpty(&heldBack_) != FALSE) return;
    ::InvalidateRect(Window(), &heldBack_, TRUE);
    heldBack_ = {};
}

// The bars come first: a client that they change while it is being painted would be painted twice.
void GridControl::Paint() {
    if (grid_.Is(kGridRedrawOff)) {
        // What stayed to be painted would come up with every turn of the message loop, for ever.
        RECT due{};
        ::GetUpdateRect(Window(), &due, FALSE);
        ::UnionRect(&heldBack_, &heldBack_, &due);
        ::ValidateRect(Window(), nullptr);
        return;
    }
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
