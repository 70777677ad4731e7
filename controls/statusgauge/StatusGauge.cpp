#include "controls/statusgauge/StatusGauge.h"

#include "controls/gauge/GaugeWindow.h"
#include "controls/statusgauge/StatusGaugePaint.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

class StatusGaugeWindow final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnStandardMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT RedrawIf(LPARAM wanted);
    void PaintOffscreen();

    StatusGaugeModel model_;
};

LRESULT Store(GaugeText& text, WPARAM source, LPARAM length) {
    text.Set(reinterpret_cast<const char*>(source), static_cast<std::uint32_t>(length));
    return 0;
}

LRESULT Fetch(const GaugeText& text, WPARAM buffer, LPARAM size) {
    text.CopyTo(reinterpret_cast<char*>(buffer), static_cast<std::uint32_t>(size));
    return 0;
}

LRESULT StatusGaugeWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto word = static_cast<std::uint32_t>(wParam);
    switch (message) {
        case SGM_SETFLAGS:
            model_.AddFlags(word);
            return RedrawIf(lParam);
        case SGM_CLEARFLAGS:
            model_.flags &= ~word;
            return RedrawIf(lParam);
        case SGM_SETSTATE:
            model_.state = word;
            return RedrawIf(lParam);
        case SGM_SETTITLE:
            return Store(model_.title, wParam, lParam);
        case SGM_GETTITLE:
            return Fetch(model_.title, wParam, lParam);
        case SGM_SETTRUETEXT:
            return Store(model_.trueText, wParam, lParam);
        case SGM_GETTRUETEXT:
            return Fetch(model_.trueText, wParam, lParam);
        case SGM_SETFALSETEXT:
            return Store(model_.falseText, wParam, lParam);
        case SGM_GETFALSETEXT:
            return Fetch(model_.ToldFalseText(), wParam, lParam);
        default:
            return OnStandardMessage(message, wParam, lParam);
    }
}

LRESULT StatusGaugeWindow::OnStandardMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
        case WM_ERASEBKGND:
            return 1;
        case WM_CREATE:
        case WM_SIZE:
        case WM_DESTROY:
        case WM_LBUTTONDBLCLK:
            return 0;
        case WM_PAINT:
            PaintOffscreen();
            return 0;
        case WM_CONTEXTMENU:
            return ForwardContextMenu(Window(), kStatusGaugeMenuCode, lParam);
        default:
            return Default(message, wParam, lParam);
    }
}

LRESULT StatusGaugeWindow::RedrawIf(LPARAM wanted) {
    if (wanted != 0) RepaintGauge(Window());
    return 0;
}

void StatusGaugeWindow::PaintOffscreen() {
    const OffscreenPaint paint(Window());
    PaintStatusGauge(paint.Dc(), paint.Area(), model_);
}

}  // namespace

bool StatusGauge::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kStatusGaugeClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<StatusGaugeWindow>(instance, windowClass);
}

}  // namespace corvex
