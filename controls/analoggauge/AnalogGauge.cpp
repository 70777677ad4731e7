#include "controls/analoggauge/AnalogGauge.h"

#include "controls/analoggauge/AnalogGaugePaint.h"
#include "controls/analoggauge/DialCurves.h"
#include "controls/gauge/GaugeNumberModel.h"
#include "controls/gauge/GaugeWindow.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

const float* FloatIn(LPARAM pointer) {
    return reinterpret_cast<const float*>(pointer);
}

const float* FloatIn(WPARAM pointer) {
    return reinterpret_cast<const float*>(pointer);
}

void SetPair(const float* first, const float* second, float& firstField, float& secondField) {
    if (first == nullptr || second == nullptr) return;
    firstField = *first;
    secondField = *second;
}

class AnalogGaugeWindow final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnSetting(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnTextOrAlarm(UINT message, WPARAM wParam, LPARAM lParam);

    void Paint() {
        const OffscreenPaint paint(Window());
        PaintAnalogGauge(paint.Dc(), paint.Area(), model_, curves_);
    }
    LRESULT Done(LPARAM redraw) const {
        if (redraw != 0) RepaintGauge(Window());
        return 0;
    }
    LRESULT SetValue(const float* value, LPARAM redraw);

    AnalogGaugeModel model_;
    KeptDialCurves curves_;
};

LRESULT AnalogGaugeWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;  // the paint covers every pixel
        case WM_PAINT:
            Paint();
            return 0;
        case WM_CONTEXTMENU:
            return ForwardContextMenu(Window(), kAnalogGaugeMenuCode, lParam);
        case WM_LBUTTONDBLCLK:  // without a repaint: the next sample brings it
            model_.ResetLowest();
            model_.ResetHighest();
            return 0;
        default:
            return OnSetting(message, wParam, lParam);
    }
}

LRESULT AnalogGaugeWindow::OnSetting(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case AGM_SETFLAGS:
            model_.SetFlags(static_cast<std::uint32_t>(wParam));
            return Done(lParam);
        case AGM_CLEARFLAGS:
            model_.flags &= ~static_cast<std::uint32_t>(wParam);
            return Done(lParam);
        case AGM_SETCOLOR:
            model_.SetColour(wParam, static_cast<std::uint32_t>(lParam));
            return 0;
        case AGM_GETCOLOR:
            return static_cast<LRESULT>(model_.Colour(wParam));
        case AGM_SETRANGE:
            SetPair(FloatIn(wParam), FloatIn(lParam), model_.scale.rangeMinimum, model_.scale.rangeMaximum);
            return 0;
        case AGM_SETSWEEP:
            SetPair(FloatIn(wParam), FloatIn(lParam), model_.scale.sweepStart, model_.scale.sweepEnd);
            return 0;
        case AGM_SETVALUE:
            return SetValue(FloatIn(wParam), lParam);
        case AGM_GETVALUE:
            return TruncateGaugeValue(model_.Value());
        case AGM_RESETMIN:
            model_.ResetLowest();
            return 0;
        case AGM_RESETMAX:
            model_.ResetHighest();
            return 0;
        case AGM_SETDIGITS:
            model_.digits = static_cast<std::uint32_t>(lParam);
            return 0;
        default:
            return OnTextOrAlarm(message, wParam, lParam);
    }
}

LRESULT AnalogGaugeWindow::OnTextOrAlarm(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto index = static_cast<std::uint32_t>(wParam);
    const auto length = static_cast<std::size_t>(lParam);
    switch (message) {
        case AGM_SETTITLE:
            model_.title.Set(reinterpret_cast<const char*>(wParam), length);
            return 0;
        case AGM_GETTITLE:
            model_.title.CopyTo(reinterpret_cast<char*>(wParam), length);
            return 0;
        case AGM_SETUNITS:
            model_.units.Set(reinterpret_cast<const char*>(wParam), length);
            return 0;
        case AGM_GETUNITS:
            model_.units.CopyTo(reinterpret_cast<char*>(wParam), length);
            return 0;
        case AGM_SETALARM:
            return model_.SetAlarm(index, reinterpret_cast<const GaugeAlarmBand*>(lParam));
        case AGM_GETALARM:
            return model_.GetAlarm(index, reinterpret_cast<GaugeAlarmBand*>(lParam)) ? 1 : 0;
        case AGM_CLEARALARMS:
            model_.ClearAlarms();
            return 0;
        default:
            return Default(message, wParam, lParam);
    }
}

LRESULT AnalogGaugeWindow::SetValue(const float* value, LPARAM redraw) {
    if (value == nullptr) return 0;
    model_.SetValue(*value);
    return Done(redraw);
}

}  // namespace

bool AnalogGauge::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kAnalogGaugeClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<AnalogGaugeWindow>(instance, windowClass);
}

}  // namespace corvex
