#include "tests/views/GaugeRecorder.h"

#include <cstdio>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/statusgauge/StatusGauge.h"

namespace corvex::test {

namespace {

constexpr char kProperty[] = "CorvexGaugeRecorder";

std::string Number(float value) {
    char text[64];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(value));
    return text;
}

template <class Word>
std::string NumberAt(Word pointer) {
    return Number(*reinterpret_cast<const float*>(pointer));
}

// Told with its own length, or the gauge would empty it.
std::string TextIn(WPARAM pointer, LPARAM length) {
    const std::string text = reinterpret_cast<const char*>(pointer);
    return static_cast<LPARAM>(text.size()) == length ? text : "of another length: " + text;
}

std::string Redraw(LPARAM redraw) {
    return redraw != 0 ? " redraw" : "";
}

std::string BandIn(WPARAM index, LPARAM pointer) {
    const auto& band = *reinterpret_cast<const GaugeAlarmBand*>(pointer);
    char colour[16];
    std::snprintf(colour, sizeof colour, "%06x", band.colour);
    return "alarm " + std::to_string(index) + " " + Number(band.low) + " " + Number(band.high) + " " + colour;
}

}  // namespace

GaugeRecorder::GaugeRecorder(HWND gauge) : gauge_(gauge), isAnalog_(ClassNameOf(gauge) == kAnalogGaugeClass) {
    ::SetPropA(gauge, kProperty, this);
    former_ = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(gauge, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&GaugeRecorder::Procedure)));
}

GaugeRecorder::~GaugeRecorder() {
    ::SetWindowLongPtrA(gauge_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former_));
    ::RemovePropA(gauge_, kProperty);
}

LRESULT CALLBACK GaugeRecorder::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& recorder = *static_cast<GaugeRecorder*>(::GetPropA(window, kProperty));
    if (message == WM_PAINT) {
        ++recorder.paints;
        if (recorder.onPaint) recorder.onPaint();
    }
    if (recorder.isAnalog_) {
        recorder.NoteAnalog(message, wParam, lParam);
    } else {
        recorder.NoteStatus(message, wParam, lParam);
    }
    return ::CallWindowProcA(recorder.former_, window, message, wParam, lParam);
}

void GaugeRecorder::NoteAnalog(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case AGM_SETTITLE:
            return lines.push_back("title " + TextIn(wParam, lParam));
        case AGM_SETUNITS:
            return lines.push_back("units " + TextIn(wParam, lParam));
        case AGM_SETVALUE:
            return lines.push_back("value " + NumberAt(wParam) + Redraw(lParam));
        case AGM_SETDIGITS:
            return lines.push_back("digits " + std::to_string(lParam));
        case AGM_SETRANGE:
            return lines.push_back("range " + NumberAt(wParam) + " " + NumberAt(lParam));
        case AGM_CLEARALARMS:
            return lines.push_back("no alarms");
        case AGM_SETALARM:
            return lines.push_back(BandIn(wParam, lParam));
        default:
            return;
    }
}

void GaugeRecorder::NoteStatus(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case SGM_SETTITLE:
            return lines.push_back("title " + TextIn(wParam, lParam));
        case SGM_SETTRUETEXT:
            return lines.push_back("true " + TextIn(wParam, lParam));
        case SGM_SETFALSETEXT:
            return lines.push_back("false " + TextIn(wParam, lParam));
        case SGM_SETSTATE:
            return lines.push_back("state " + std::to_string(wParam) + Redraw(lParam));
        default:
            return;
    }
}

std::string ClassNameOf(HWND window) {
    char name[100] = "";
    ::GetClassNameA(window, name, sizeof name);
    return name;
}

std::string TextOfGauge(HWND gauge, UINT message) {
    char text[400] = "";
    ::SendMessageA(gauge, message, reinterpret_cast<WPARAM>(text), sizeof text);
    return text;
}

}  // namespace corvex::test
