#include "tests/views/GaugeRecorder.h"

#include <cstdio>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/statusgauge/StatusGauge.h"
#include "tests/controls/window/ControlTestHelper.h"

namespace corvex::test {

namespace {

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

// Empty for any other message, as below.
std::string AnalogWords(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case AGM_SETTITLE:
            return "title " + TextIn(wParam, lParam);
        case AGM_SETUNITS:
            return "units " + TextIn(wParam, lParam);
        case AGM_SETVALUE:
            return "value " + NumberAt(wParam) + Redraw(lParam);
        case AGM_SETDIGITS:
            return "digits " + std::to_string(lParam);
        case AGM_SETRANGE:
            return "range " + NumberAt(wParam) + " " + NumberAt(lParam);
        case AGM_CLEARALARMS:
            return "no alarms";
        case AGM_SETALARM:
            return BandIn(wParam, lParam);
        default:
            return {};
    }
}

std::string StatusWords(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case SGM_SETTITLE:
            return "title " + TextIn(wParam, lParam);
        case SGM_SETTRUETEXT:
            return "true " + TextIn(wParam, lParam);
        case SGM_SETFALSETEXT:
            return "false " + TextIn(wParam, lParam);
        case SGM_SETSTATE:
            return "state " + std::to_string(wParam) + Redraw(lParam);
        default:
            return {};
    }
}

}  // namespace

GaugeRecorder::GaugeRecorder(HWND gauge) : spy_(gauge) {
    const auto words = ClassNameOf(gauge) == kAnalogGaugeClass ? &AnalogWords : &StatusWords;
    spy_.SetHandler([this, words](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (message == WM_PAINT && onPaint) onPaint();
        const std::string line = words(message, wParam, lParam);
        if (!line.empty()) lines.push_back(line);
        return std::nullopt;
    });
}

std::string TextOfGauge(HWND gauge, UINT message) {
    char text[400] = "";
    ::SendMessageA(gauge, message, reinterpret_cast<WPARAM>(text), sizeof text);
    return text;
}

}  // namespace corvex::test
