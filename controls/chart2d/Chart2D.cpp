#include "controls/chart2d/Chart2D.h"

#include "controls/chart/ChartControl.h"
#include "controls/chart/ChartPaint.h"
#include "controls/chart2d/Chart2DMessages.h"
#include "controls/chart2d/Chart2DPaint.h"

namespace corvex {

namespace {

// What its page does with a series directly, no message carries: the chart holds itself then, as the parent that is
// told of it may destroy the window.
class Chart2DControl final : private ISeries2DOwner,
                             public ChartControl<Chart2DMachine, Chart2DWindowHost, ISeries2DOwner> {
public:
    explicit Chart2DControl(HWND window) : ChartControl(window, *this) {}

private:
    LRESULT OnOwnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Draw(HDC dc) override;

    void OnPointChanged(const Point2D* before, const Point2D* now) override {
        const WindowHold hold(this);
        machine_.OnPointChanged(before, now);
    }
    void OnPointsCleared() override {
        const WindowHold hold(this);
        machine_.OnPointsCleared();
    }
    void PaintSoon() override { host_.PaintSoon(); }

    const Chart2DFonts fonts_;
};

LRESULT Chart2DControl::OnOwnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == CH2M_SETTITLE) return SetTitle(lParam);
    if (message < CH2M_SETSTYLE || message > CH2M_GETSUBTITLE) return Default(message, wParam, lParam);
    return AnswerChart2DMessage(machine_, host_, message, wParam, lParam);
}

void Chart2DControl::Draw(HDC dc) {
    PaintChart2D(dc, machine_.chart, fonts_, host_);
    PaintChartBand(dc, machine_.chart, machine_.chart.height);
}

}  // namespace

bool Chart2D::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kChart2DClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<Chart2DControl>(instance, windowClass);
}

}  // namespace corvex
