#include "controls/digitalreadout/DigitalReadoutWindow.h"

#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/gauge/GaugeWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

LRESULT DigitalReadoutWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            return TRUE;
        case WM_SIZE:
            Redraw();
            return 0;
        case WM_PAINT:
            PaintOffscreen();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_CONTEXTMENU:
            return ForwardContextMenu(Window(), kDigitalReadoutMenuCode, lParam);
        default:
            return Default(message, wParam, lParam);
    }
}

void DigitalReadoutWindow::Redraw() {
    ::RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void DigitalReadoutWindow::PaintOffscreen() {
    DropFonts();
    const OffscreenPaint paint(Window());
    PaintDigitalReadout(paint.Dc(), paint.Area(), model_);
}

void DigitalReadoutWindow::Supply(OwnedFont& place, HFONT font) {
    if (font == nullptr) {
        DropFonts();
    } else if (font != place.Get()) {
        place = OwnedFont(font);
    }
    model_.SetAutomaticSize(font == nullptr);
}

void DigitalReadoutWindow::DropFonts() {
    titleFont_.Reset();
    digitsFont_.Reset();
    unitsFont_.Reset();
}

}  // namespace corvex
