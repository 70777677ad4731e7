#include "tests/views/GaugeRecorder.h"

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/statusgauge/StatusGauge.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/controls/window/FigureRecorder.h"

namespace corvex::test {

namespace {

std::string Number(float value) {
    return Printed("%g", static_cast<double>(value));
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

std::string BandIn(WPARAM index, LPARAM pointer) {
    const auto& band = *reinterpret_cast<const GaugeAlarmBand*>(pointer);
    return std::to_string(index) + " " + Number(band.low) + " " + Number(band.high) + Printed(" %06x", band.colour);
}

// A message of the gauges of a class, and the words for what it brings.
struct Told {
    const char* gauge;
    UINT message;
    const char* word;
    std::string (*rest)(WPARAM, LPARAM) = [](WPARAM, LPARAM) { return std::string(); };
};
const Told kTold[] = {
    {kAnalogGaugeClass, AGM_SETTITLE, "title ", &TextIn},
    {kAnalogGaugeClass, AGM_SETUNITS, "units ", &TextIn},
    {kAnalogGaugeClass, AGM_SETVALUE, "value ",
     [](WPARAM value, LPARAM redraw) { return NumberAt(value) + (redraw != 0 ? " redraw" : ""); }},
    {kAnalogGaugeClass, AGM_SETDIGITS, "digits ", [](WPARAM, LPARAM digits) { return std::to_string(digits); }},
    {kAnalogGaugeClass, AGM_SETRANGE, "range ",
     [](WPARAM low, LPARAM high) { return NumberAt(low) + " " + NumberAt(high); }},
    {kAnalogGaugeClass, AGM_CLEARALARMS, "no alarms"},
    {kAnalogGaugeClass, AGM_SETALARM, "alarm ", &BandIn},
    {kStatusGaugeClass, SGM_SETTITLE, "title ", &TextIn},
    {kStatusGaugeClass, SGM_SETTRUETEXT, "true ", &TextIn},
    {kStatusGaugeClass, SGM_SETFALSETEXT, "false ", &TextIn},
    {kStatusGaugeClass, SGM_SETSTATE, "state ",
     [](WPARAM state, LPARAM redraw) { return std::to_string(state) + (redraw != 0 ? " redraw" : ""); }},
};

}  // namespace

GaugeRecorder::GaugeRecorder(HWND gauge) : spy_(gauge) {
    const std::string name = ClassNameOf(gauge);
    spy_.SetHandler([this, name](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (message == WM_PAINT && onPaint) onPaint();
        for (const Told& told : kTold) {
            if (name == told.gauge && message == told.message) lines.push_back(told.word + told.rest(wParam, lParam));
        }
        return std::nullopt;
    });
}

std::string TextOfGauge(HWND gauge, UINT message) {
    char text[400] = "";
    ::SendMessageA(gauge, message, reinterpret_cast<WPARAM>(text), sizeof text);
    return text;
}

}  // namespace corvex::test
