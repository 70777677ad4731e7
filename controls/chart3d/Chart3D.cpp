#include "controls/chart3d/Chart3D.h"

#include "controls/chart/ChartControl.h"
#include "controls/chart/ChartPaint.h"
#include "controls/chart3d/Chart3DMessages.h"
#include "controls/chart3d/Chart3DPaint.h"

namespace corvex {

namespace {

// What its page does with a plot directly, no message carries: the chart holds itself then, as the parent that is told
// of it may destroy the window.
class Chart3DControl final : private IPlot3DOwner,
                             public ChartControl<Chart3DMachine, Chart3DWindowHost, IPlot3DOwner> {
public:
    explicit Chart3DControl(HWND window) : ChartControl(window, *this) {}

private:
    LRESULT OnOwnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Draw(HDC dc) override;

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

    const Chart3DFonts fonts_;
};

LRESULT Chart3DControl::OnOwnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CONTEXTMENU) return ForwardContextMenu(Window(), kChart3DMenuWanted, lParam);
    if (message == CH3M_SETTITLE) return SetTitle(lParam);
    if (message < CH3M_SETSTYLE || message > CH3M_GETSCALE) return Default(message, wParam, lParam);
    return AnswerChart3DMessage(machine_, host_, message, wParam, lParam);
}

void Chart3DControl::Draw(HDC dc) {
    PaintChart3D(dc, machine_.chart, fonts_, host_);
    PaintChartBand(dc, machine_.chart, machine_.chart.height);
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
