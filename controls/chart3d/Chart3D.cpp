#include "controls/chart3d/Chart3D.h"

#include <utility>

#include "controls/chart/BoundedText.h"
#include "controls/chart3d/Chart3DMessages.h"
#include "controls/chart3d/Chart3DPaint.h"
#include "controls/gauge/GaugeWindow.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

// Built with the window at WM_NCCREATE. What its page does with a plot directly, no message carries: the chart holds
// itself then, as the parent that is told of it may destroy the window.
class Chart3DControl final : public ControlWindow, private IPlot3DOwner {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnStateMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnInput(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT SetTitle(std::string_view text);
    void SetRedraw(bool isOn);
    YUpPoint PlaceOf(LPARAM place) const;
    void Paint();

    void OnPointSet(const QZChart3DPlot& plot, const Point3D& before, const Point3D& now) override {
        const WindowHold hold(this);
        machine_.OnPointSet(plot, before, now);
    }
    void OnPointsSet() override {
        const WindowHold hold(this);
        machine_.OnPointsSet();
    }
    void OnGridSized() override { machine_.OnGridSized(); }
    void PaintSoon() override { host_.PaintSoon(); }

    Chart3DWindowHost host_{Window()};
    Chart3DMachine machine_{host_, *this};
    const Chart3DFonts fonts_;
    OffscreenBitmap offscreen_;
    bool isRedrawOff_ = false, isPaintDue_ = false;  // what was to be painted meanwhile
};

Chart3DModifiers ModifiersOf(WPARAM keys) {
    return {.control = (keys & MK_CONTROL) != 0, .shift = (keys & MK_SHIFT) != 0};
}

LRESULT Chart3DControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE: {
            const char* const text = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName;
            SetTitle(text == nullptr || *text == '\0' ? machine_.chart.title : text);
            return 0;
        }
        case WM_DESTROY:
            host_.Close();
            machine_.mouse.EndGesture();
            return 0;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTALLKEYS | DLGC_WANTCHARS;
        case WM_CONTEXTMENU:
            return ForwardContextMenu(Window(), kChart3DMenuWanted, lParam);
        default:
            return OnStateMessage(message, wParam, lParam);
    }
}

LRESULT Chart3DControl::OnStateMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE: {
            RECT client{};
            ::GetClientRect(Window(), &client);
            machine_.OnSize(static_cast<int>(client.right), static_cast<int>(client.bottom));
            return 0;
        }
        case WM_SETREDRAW:
            SetRedraw(wParam != FALSE);
            return 0;
        case WM_SETTEXT:
        case CH3M_SETTITLE:
            return SetTitle(BoundedText(reinterpret_cast<const char*>(lParam), Chart3DModel::kTitleLength));
        case WM_MOUSEACTIVATE:
            ::SetFocus(Window());
            return MA_ACTIVATE;
        case WM_KILLFOCUS:
            machine_.OnFocusLost();
            return 0;
        case WM_KEYDOWN:
            machine_.keys.OnDown(static_cast<Chart3DKey>(wParam));
            return 0;
        case WM_KEYUP:
            machine_.keys.OnUp(static_cast<Chart3DKey>(wParam));
            return 0;
        default:
            return OnInput(message, wParam, lParam);
    }
}

LRESULT Chart3DControl::OnInput(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
            machine_.mouse.OnDown(PlaceOf(lParam), ModifiersOf(wParam));
            return 0;
        case WM_LBUTTONDBLCLK:
            machine_.mouse.OnDoubleClick(PlaceOf(lParam), ModifiersOf(wParam));
            return 0;
        case WM_MOUSEMOVE:
            machine_.mouse.OnMove(PlaceOf(lParam));
            return 0;
        case WM_LBUTTONUP:
            machine_.mouse.EndGesture();
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != Window()) machine_.mouse.EndGesture();
            return 0;
        default:
            if (message < CH3M_SETSTYLE || message > CH3M_GETSCALE) return Default(message, wParam, lParam);
            return AnswerChart3DMessage(machine_, host_, message, wParam, lParam);
    }
}

// What is cut off is not the window's text either.
LRESULT Chart3DControl::SetTitle(std::string_view text) {
    machine_.SetTitle(text);
    return Default(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(machine_.chart.title.c_str()));
}

// A place that stayed to be painted would come up with every turn of the message loop.
void Chart3DControl::SetRedraw(bool isOn) {
    isRedrawOff_ = !isOn;
    if (isOn && std::exchange(isPaintDue_, false)) host_.PaintSoon();
}

YUpPoint Chart3DControl::PlaceOf(LPARAM place) const {
    return {static_cast<short>(LOWORD(place)), machine_.chart.height - static_cast<short>(HIWORD(place))};
}

void Chart3DControl::Paint() {
    if (isRedrawOff_) {
        isPaintDue_ = true;
        ::ValidateRect(Window(), nullptr);
        return;
    }
    const auto draw = [this](HDC dc) {
        PaintChart3D(dc, machine_.chart, fonts_, host_);
        PaintChart3DBand(dc, machine_.chart);
    };
    if (machine_.chart.Has(kChart3DOffscreen)) {
        const OffscreenPaint paint(Window(), offscreen_);
        draw(paint.Dc());
    } else {
        PAINTSTRUCT paint{};
        draw(::BeginPaint(Window(), &paint));
        ::EndPaint(Window(), &paint);
    }
}

}  // namespace

bool Chart3D::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kChart3DClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<Chart3DControl>(instance, windowClass);
}

}  // namespace corvex
