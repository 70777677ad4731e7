#include "bench/gauges/GaugePaintCost.h"

#include <cstdio>
#include <memory>
#include <vector>

#include "bench/desktop/Figures.h"
#include "bench/gauges/BareCalls.h"
#include "controls/analoggauge/AnalogGauge.h"
#include "controls/analoggauge/AnalogGaugePaint.h"
#include "controls/analoggauge/DialCurves.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/statusgauge/StatusGauge.h"
#include "controls/statusgauge/StatusGaugePaint.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex::bench {

namespace {

constexpr int kSide = 300;
constexpr RECT kArea{0, 0, kSide, kSide};
constexpr int kStates = 16, kRounds = 192;

// One kind of gauge in its states: how its window comes to show one, and how the paint function draws it.
struct Subject {
    const char* name;
    const char* className;
    std::function<void(HWND)> introduce;
    std::function<void(HWND, int state)> show;
    std::function<void(HDC, int state)> paint;
    // The same with what the window keeps from paint to paint, where it keeps anything.
    std::function<void(HDC, int state)> paintKept = nullptr;
};

WPARAM Word(const void* pointer) {
    return reinterpret_cast<WPARAM>(pointer);
}

float SpeedOf(int state) {
    return 800.0F + 389.0F * static_cast<float>(state);
}

constexpr GaugeAlarmBand kHigh{6200.0F, 7000.0F, 0x0000FF};

Subject Dial() {
    std::vector<AnalogGaugeModel> models;
    AnalogGaugeModel model;
    model.title.Set("Engine Speed", 12);
    model.units.Set("rpm", 3);
    model.scale.rangeMaximum = 7000.0F;
    model.SetAlarm(0, &kHigh);
    for (int i = 0; i < kStates; ++i) {
        model.SetValue(SpeedOf(i));
        models.push_back(model);
    }
    const auto name = [](HWND gauge) {
        const float low = 0.0F, high = 7000.0F;
        ::SendMessageA(gauge, AGM_SETTITLE, Word("Engine Speed"), 12);
        ::SendMessageA(gauge, AGM_SETUNITS, Word("rpm"), 3);
        ::SendMessageA(gauge, AGM_SETRANGE, Word(&low), reinterpret_cast<LPARAM>(&high));
        ::SendMessageA(gauge, AGM_SETALARM, 0, reinterpret_cast<LPARAM>(&kHigh));
    };
    const auto show = [](HWND gauge, int state) {
        const float value = SpeedOf(state);
        ::SendMessageA(gauge, AGM_SETVALUE, Word(&value), TRUE);
    };
    const auto paint = [models](HDC dc, int state) {
        PaintAnalogGauge(dc, kArea, models[static_cast<std::size_t>(state)]);
    };
    const auto kept = [models, curves = std::make_shared<KeptDialCurves>()](HDC dc, int state) {
        PaintAnalogGauge(dc, kArea, models[static_cast<std::size_t>(state)], *curves);
    };
    return {"analog gauge", kAnalogGaugeClass, name, show, paint, kept};
}

float VoltsOf(int state) {
    return 10.3F + 0.4F * static_cast<float>(state);
}

Subject Readout() {
    std::vector<DigitalReadoutModel> models;
    DigitalReadoutModel model;
    model.SetTitle("Battery Voltage");
    model.SetUnits("V");
    model.SetFormat(1, 1);
    model.SetLowLimit(11.5F);
    model.EnableLowLimit(1);
    for (int i = 0; i < kStates; ++i) {
        model.SetValue(VoltsOf(i));
        models.push_back(model);
    }
    const auto name = [](HWND gauge) {
        DigitalReadoutSetTitle(gauge, "Battery Voltage");
        DigitalReadoutSetUnits(gauge, "V");
        DigitalReadoutSetFormat(gauge, 1, 1);
        DigitalReadoutSetLowLimit(gauge, 11.5F);
        DigitalReadoutEnableLowLimit(gauge, 1);
    };
    const auto show = [](HWND gauge, int state) { DigitalReadoutSetValue(gauge, VoltsOf(state)); };
    return {"digital readout", kDigitalReadoutClass, name, show,
            [models](HDC dc, int state) { PaintDigitalReadout(dc, kArea, models[static_cast<std::size_t>(state)]); }};
}

Subject Lamp() {
    std::vector<StatusGaugeModel> models(kStates);
    for (int i = 0; i < kStates; ++i) {
        StatusGaugeModel& model = models[static_cast<std::size_t>(i)];
        model.title.Set("Check Engine Lamp", 17);
        model.trueText.Set("on", 2);
        model.falseText.Set("off", 3);
        model.state = static_cast<std::uint32_t>(i % 2);
    }
    const auto name = [](HWND gauge) {
        ::SendMessageA(gauge, SGM_SETTITLE, Word("Check Engine Lamp"), 17);
        ::SendMessageA(gauge, SGM_SETTRUETEXT, Word("on"), 2);
        ::SendMessageA(gauge, SGM_SETFALSETEXT, Word("off"), 3);
    };
    const auto show = [](HWND gauge, int state) {
        ::SendMessageA(gauge, SGM_SETSTATE, static_cast<WPARAM>(state % 2), TRUE);
    };
    return {"status gauge", kStatusGaugeClass, name, show,
            [models](HDC dc, int state) { PaintStatusGauge(dc, kArea, models[static_cast<std::size_t>(state)]); }};
}

void PrintBeside(const char* what, const std::vector<double>& measured, const std::vector<double>& bare) {
    std::printf("  %s: %.0f us, bare calls %.0f us, ratio %.2f\n", what, Median(measured), Median(bare),
                Median(measured) / Median(bare));
}

void PrintCost(const Subject& subject) {
    const ShownControl gauge(subject.className, kSide, kSide);
    subject.introduce(gauge.Window());
    std::vector<BareCalls> bare, curves;
    for (int i = 0; i < kStates; ++i) {
        bare.emplace_back([&](HDC dc) { subject.paint(dc, i); });
        curves.push_back(bare.back().Curves());
    }
    const ClientDc shown(gauge.Window());
    const MemoryDc memory(shown.Get());
    const OwnedBitmap bitmap(::CreateCompatibleBitmap(shown.Get(), kSide, kSide));
    const SelectGuard selected(memory.Get(), bitmap.Get());
    std::vector<double> whole, wholeBare, paint, paintBare, paintKept, curved;
    // One kind of round after the other, so that noise hits all alike.
    for (int round = 0; round < kRounds; ++round) {
        const int state = round % kStates;
        BareCalls& calls = bare[static_cast<std::size_t>(state)];
        whole.push_back(Microseconds([&] { subject.show(gauge.Window(), state); }));
        wholeBare.push_back(Microseconds([&] {
            calls.Run(memory.Get());
            ::BitBlt(shown.Get(), 0, 0, kSide, kSide, memory.Get(), 0, 0, SRCCOPY);
        }));
        paint.push_back(Microseconds([&] { subject.paint(memory.Get(), state); }));
        paintBare.push_back(Microseconds([&] { calls.Run(memory.Get()); }));
        if (!subject.paintKept) continue;
        paintKept.push_back(Microseconds([&] { subject.paintKept(memory.Get(), state); }));
        curved.push_back(Microseconds([&] { curves[static_cast<std::size_t>(state)].Run(memory.Get()); }));
    }
    std::printf("%s at %d by %d, medians of %d rounds:\n", subject.name, kSide, kSide, kRounds);
    PrintBeside("value set with redraw", whole, wholeBare);
    PrintBeside("paint function", paint, paintBare);
    if (!subject.paintKept) return;
    PrintBeside("paint function with kept curves", paintKept, paintBare);
    std::printf("  the curves alone, bare: %.0f us, %.0f %% of the paint's bare calls\n", Median(curved),
                100.0 * Median(curved) / Median(paintBare));
}

}  // namespace

void PrintGaugePaintCost() {
    const HINSTANCE instance = ::GetModuleHandleA(nullptr);
    AnalogGauge::Register(instance);
    DigitalReadout::Register(instance);
    StatusGauge::Register(instance);
    for (const Subject& subject : {Dial(), Readout(), Lamp()})
        PrintCost(subject);
}

}  // namespace corvex::bench
