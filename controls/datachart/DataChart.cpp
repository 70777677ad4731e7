#include "controls/datachart/DataChart.h"

#include "controls/datachart/DataChartPaint.h"
#include "controls/gauge/GaugeWindow.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

class DataChartWindow final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnChartMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT SetTitle(const char* text);
    void LayOut();
    void PaintBackground(HDC dc, const DataChartFonts& fonts);
    void Paint();
    LRESULT Repaint();

    DataChartModel model_;
    // What stands still, as it was last laid out; nothing for a client without pixels.
    std::optional<ChartBackground> layout_;
    OffscreenBitmap background_;
    HDC backgroundDc_ = nullptr;
};

template <class Object>
LRESULT AsResult(Object* object) {
    return reinterpret_cast<LRESULT>(object);
}

LRESULT DataChartWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return 1;
        case WM_SIZE:
            LayOut();
            return 0;
        case WM_SETTEXT:
            return SetTitle(reinterpret_cast<const char*>(lParam));
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_CONTEXTMENU:
            return ForwardContextMenu(Window(), kDataChartMenuCode, lParam);
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTALLKEYS | DLGC_WANTCHARS;
        // A chart whose drawing is switched off goes on drawing: samples come, and nobody would see them.
        case WM_SETREDRAW:
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
            return 0;
        default:
            return OnChartMessage(message, wParam, lParam);
    }
}

LRESULT DataChartWindow::OnChartMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case DCM_ADDSERIES:
            return AsResult(model_.AddSeries());
        case DCM_GETSERIES:
            return AsResult(model_.Series(wParam));
        case DCM_DELETESERIES:
            model_.DeleteSeries(wParam);
            return 1;
        case DCM_GETSERIESCOUNT:
            return static_cast<LRESULT>(model_.SeriesCount());
        case DCM_CLEARSERIES:
            model_.ClearSeries();
            return 1;
        case DCM_CLEARSAMPLES:
            model_.ClearSamples();
            return 1;
        case DCM_ADDAXIS:
            return AsResult(model_.AddAxis());
        case DCM_GETAXIS:
            return AsResult(model_.Axis(wParam));
        case DCM_DELETEAXIS:
            return model_.DeleteAxis(wParam) ? 1 : 0;
        case DCM_GETAXISCOUNT:
            return static_cast<LRESULT>(model_.AxisCount());
        case DCM_CLEARAXES:
            model_.ClearAxes();
            return 1;
        case DCM_RELAYOUT:
            LayOut();
            return ::SendMessageA(Window(), DCM_REPAINT, 0, 0);
        case DCM_REPAINT:
            return Repaint();
        default:
            return Default(message, wParam, lParam);
    }
}

LRESULT DataChartWindow::SetTitle(const char* text) {
    model_.SetTitle(text == nullptr ? "" : text);
    return 1;
}

void DataChartWindow::LayOut() {
    RECT client{};
    ::GetClientRect(Window(), &client);
    const SIZE size{client.right, client.bottom};
    const ClientDc screen(Window());
    const MemoryDc fresh(screen.Get());
    const DataChartFonts fonts(fresh.Get());
    layout_ = model_.LayOut(client.right, client.bottom, fonts, Window());
    backgroundDc_ = layout_ ? background_.Fit(screen.Get(), size, size) : nullptr;
    if (backgroundDc_ != nullptr) PaintBackground(backgroundDc_, fonts);
}

void DataChartWindow::PaintBackground(HDC dc, const DataChartFonts& fonts) {
    const int saved = ::SaveDC(dc);
    PaintChartBackground(dc, *layout_, model_, fonts);
    ::RestoreDC(dc, saved);
}

// A chart that is too large to be kept aside is drawn anew.
void DataChartWindow::Paint() {
    if (model_.IsLayoutDue()) LayOut();
    const OffscreenPaint paint(Window());
    if (!layout_) return;
    if (backgroundDc_ == nullptr) {
        PaintBackground(paint.Dc(), DataChartFonts(paint.Dc()));
    } else {
        ::BitBlt(paint.Dc(), 0, 0, layout_->client.right, layout_->client.bottom, backgroundDc_, 0, 0, SRCCOPY);
    }
    PaintChartLines(paint.Dc(), model_, layout_->plot);
}

LRESULT DataChartWindow::Repaint() {
    RepaintGauge(Window());
    return 1;
}

}  // namespace

bool DataChart::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kDataChartClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<DataChartWindow>(instance, windowClass);
}

}  // namespace corvex
