// The window of a chart with points: the system's messages, as calls on its behaviour.
#pragma once

#include <string_view>
#include <utility>

#include "controls/chart/BoundedText.h"
#include "controls/chart/ChartMouse.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

inline ChartModifiers ModifiersOf(WPARAM keys) {
    return {.control = (keys & MK_CONTROL) != 0, .shift = (keys & MK_SHIFT) != 0};
}

// `Machine` has the model, `chart`, the `mouse`, and what is called here besides; `Host` is the ChartWindowHost through
// which it reaches this window. Built with the window at WM_NCCREATE.
template <class Machine, class Host, class Owner>
class ChartControl : public ControlWindow {
protected:
    // Whatever belongs to the chart calls `owner`.
    ChartControl(HWND window, Owner& owner) : ControlWindow(window), host_(window), machine_(host_, owner) {}

    // Messages of its own, and what it does otherwise than other windows.
    virtual LRESULT OnOwnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    // The whole client.
    virtual void Draw(HDC dc) = 0;
    // As much of it as a title has room for.
    LRESULT SetTitle(LPARAM text);

    Host host_;
    Machine machine_;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnStateMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnInput(UINT message, WPARAM wParam, LPARAM lParam);
    void SetRedraw(bool isOn);
    YUpPoint PlaceOf(LPARAM place) const;
    void Paint();

    OffscreenBitmap offscreen_;
    bool isRedrawOff_ = false, isPaintDue_ = false;  // what was to be painted meanwhile
};

template <class Machine, class Host, class Owner>
LRESULT ChartControl<Machine, Host, Owner>::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE: {
            const char* const text = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName;
            SetTitle(reinterpret_cast<LPARAM>(text == nullptr || *text == '\0' ? machine_.chart.title.c_str() : text));
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
        default:
            return OnStateMessage(message, wParam, lParam);
    }
}

template <class Machine, class Host, class Owner>
LRESULT ChartControl<Machine, Host, Owner>::OnStateMessage(UINT message, WPARAM wParam, LPARAM lParam) {
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
            return SetTitle(lParam);
        case WM_MOUSEACTIVATE:
            ::SetFocus(Window());
            return MA_ACTIVATE;
        case WM_KILLFOCUS:
            machine_.chart.held = {};
            return 0;
        case WM_KEYDOWN:
        case WM_KEYUP:
            machine_.OnKey(static_cast<std::uint32_t>(wParam), message == WM_KEYDOWN);
            return 0;
        default:
            return OnInput(message, wParam, lParam);
    }
}

template <class Machine, class Host, class Owner>
LRESULT ChartControl<Machine, Host, Owner>::OnInput(UINT message, WPARAM wParam, LPARAM lParam) {
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
            machine_.mouse.OnUp();
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != Window()) machine_.mouse.EndGesture();
            return 0;
        default:
            return OnOwnMessage(message, wParam, lParam);
    }
}

// What is cut off is not the window's text either.
template <class Machine, class Host, class Owner>
LRESULT ChartControl<Machine, Host, Owner>::SetTitle(LPARAM text) {
    machine_.chart.title = BoundedText(reinterpret_cast<const char*>(text), decltype(machine_.chart)::kTitleLength);
    return Default(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(machine_.chart.title.c_str()));
}

// A place that stayed to be painted would come up with every turn of the message loop.
template <class Machine, class Host, class Owner>
void ChartControl<Machine, Host, Owner>::SetRedraw(bool isOn) {
    isRedrawOff_ = !isOn;
    if (isOn && std::exchange(isPaintDue_, false)) host_.PaintSoon();
}

template <class Machine, class Host, class Owner>
YUpPoint ChartControl<Machine, Host, Owner>::PlaceOf(LPARAM place) const {
    return {static_cast<short>(LOWORD(place)), machine_.chart.height - static_cast<short>(HIWORD(place))};
}

template <class Machine, class Host, class Owner>
void ChartControl<Machine, Host, Owner>::Paint() {
    if (isRedrawOff_) {
        isPaintDue_ = true;
        ::ValidateRect(Window(), nullptr);
        return;
    }
    if (machine_.chart.Has(kChartOffscreen)) {
        const OffscreenPaint paint(Window(), offscreen_);
        Draw(paint.Dc());
    } else {
        PAINTSTRUCT paint{};
        Draw(::BeginPaint(Window(), &paint));
        ::EndPaint(Window(), &paint);
    }
}

}  // namespace corvex
