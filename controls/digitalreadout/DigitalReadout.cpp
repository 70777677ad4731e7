#include "controls/digitalreadout/DigitalReadout.h"

#include "controls/digitalreadout/DigitalReadoutWindow.h"
#include "controls/gauge/GaugeNumberModel.h"

namespace corvex {

namespace {

template <class Result>
bool Never(Result) {
    return false;
}

template <class Result>
bool Always(Result) {
    return true;
}

// What the work gives, or `absent` where there is no readout to do it; the result decides on a repaint.
template <class Result, class Work, class Redraw>
Result Ask(HWND window, Result absent, const Work& work, const Redraw& redraw) {
    Result result = absent;
    CallOnOwner<DigitalReadoutWindow>(window, [&](DigitalReadoutWindow& readout) {
        result = work(readout.Model());
        if (redraw(result)) readout.Redraw();
    });
    return result;
}

template <class Result, class Work>
Result Ask(HWND window, Result absent, const Work& work) {
    return Ask(window, absent, work, &Never<Result>);
}

template <class Result, class Work>
Result AskAndRedraw(HWND window, Result absent, const Work& work) {
    return Ask(window, absent, work, &Always<Result>);
}

}  // namespace

bool DigitalReadout::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kDigitalReadoutClass;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<DigitalReadoutWindow>(instance, windowClass);
}

std::uint32_t DigitalReadoutSetInfo(HWND window, const DigitalReadoutInfo* info) {
    if (info == nullptr) return 0;
    return Ask(window, 0u, [&](DigitalReadoutModel& model) {
        model.SetInfo(*info);
        return 1u;
    });
}

std::uint32_t DigitalReadoutGetInfo(HWND window, DigitalReadoutInfo* info) {
    if (info == nullptr) return 0;
    return Ask(window, 0u, [&](const DigitalReadoutModel& model) {
        *info = model.Info();
        return 1u;
    });
}

bool DigitalReadoutSetColor(HWND window, std::uint32_t index, std::uint32_t colour) {
    return AskAndRedraw(window, false, [&](DigitalReadoutModel& model) {
        model.SetColour(index, colour);
        return true;
    });
}

std::int32_t DigitalReadoutGetColor(HWND window, std::uint32_t index) {
    return Ask(window, std::int32_t{-1},
               [&](const DigitalReadoutModel& model) { return static_cast<std::int32_t>(model.Colour(index)); });
}

float DigitalReadoutSetValue(HWND window, float value) {
    return Ask(
        window, 0.0f, [&](DigitalReadoutModel& model) { return model.SetValue(value); },
        [&](float former) { return former != value; });
}

std::int32_t DigitalReadoutSetValueInt(HWND window, std::int32_t value) {
    return Ask(
        window, std::int32_t{0},
        [&](DigitalReadoutModel& model) { return TruncateGaugeValue(model.SetValue(static_cast<float>(value))); },
        [&](std::int32_t former) { return former != value; });
}

float DigitalReadoutSetHighLimit(HWND window, float limit) {
    return AskAndRedraw(window, 0.0f, [&](DigitalReadoutModel& model) { return model.SetHighLimit(limit); });
}

float DigitalReadoutSetHighLimitInt(HWND window, std::int32_t limit) {
    return DigitalReadoutSetHighLimit(window, static_cast<float>(limit));
}

float DigitalReadoutGetHighLimit(HWND window) {
    return Ask(window, 0.0f, [](const DigitalReadoutModel& model) { return model.HighLimit(); });
}

float DigitalReadoutSetLowLimit(HWND window, float limit) {
    return AskAndRedraw(window, 0.0f, [&](DigitalReadoutModel& model) { return model.SetLowLimit(limit); });
}

float DigitalReadoutSetLowLimitInt(HWND window, std::int32_t limit) {
    return DigitalReadoutSetLowLimit(window, static_cast<float>(limit));
}

float DigitalReadoutGetLowLimit(HWND window) {
    return Ask(window, 0.0f, [](const DigitalReadoutModel& model) { return model.LowLimit(); });
}

bool DigitalReadoutEnableHighLimit(HWND window, std::uint32_t flag) {
    return Ask(window, false, [&](DigitalReadoutModel& model) {
        model.EnableHighLimit(flag);
        return true;
    });
}

bool DigitalReadoutEnableLowLimit(HWND window, std::uint32_t flag) {
    return Ask(window, false, [&](DigitalReadoutModel& model) {
        model.EnableLowLimit(flag);
        return true;
    });
}

bool DigitalReadoutSetFormat(HWND window, std::int32_t floating, std::uint32_t decimals) {
    return AskAndRedraw(window, false, [&](DigitalReadoutModel& model) {
        model.SetFormat(floating, decimals);
        return true;
    });
}

std::uint32_t DigitalReadoutSetTitle(HWND window, const char* text) {
    return AskAndRedraw(window, 0u, [&](DigitalReadoutModel& model) { return model.SetTitle(text); });
}

std::uint32_t DigitalReadoutSetUnits(HWND window, const char* text) {
    return AskAndRedraw(window, 0u, [&](DigitalReadoutModel& model) { return model.SetUnits(text); });
}

std::uint32_t DigitalReadoutSetUserWord(HWND window, std::uint32_t word) {
    return Ask(window, 0u, [&](DigitalReadoutModel& model) { return model.SetUserWord(word); });
}

std::uint32_t DigitalReadoutGetUserWord(HWND window) {
    return Ask(window, 0u, [](const DigitalReadoutModel& model) { return model.UserWord(); });
}

}  // namespace corvex
