#include "bench/gauges/ChartCost.h"

#include <array>
#include <cmath>
#include <cstdio>
// After windows.h, which it leans on.
#include "platform/WindowsApi.h"
// clang-format off
#include <psapi.h>
// clang-format on

#include "bench/desktop/Figures.h"
#include "bench/gauges/BareCalls.h"
#include "controls/datachart/DataChart.h"
#include "controls/datachart/DataChartPaint.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex::bench {

namespace {

constexpr int kChartWidth = 640, kChartHeight = 300, kChartRounds = 100;
constexpr std::size_t kSeriesShown = 4, kVisible = 1000;
constexpr float kSpan = 20.0F;
constexpr std::array<std::size_t, 3> kHistories = {1000, 100000, 1000000};

float ValueAt(std::size_t sample, std::size_t series) {
    return 100.0F + 90.0F * std::sin(static_cast<float>(sample % 628) / 100.0F + static_cast<float>(series));
}

// The last samples of a history fill the time on show.
void FillChart(DataChartModel& chart, std::size_t history) {
    DataChartAxis& time = *chart.AddAxis();
    time.setPosition(AxisPosition::kBottom);
    for (std::size_t i = 0; i < kSeriesShown; ++i) {
        DataChartAxis& axis = *chart.AddAxis();
        axis.setRange(0.0F, 200.0F);
        axis.setPosition(i % 2 == 0 ? AxisPosition::kLeft : AxisPosition::kRight);
        DataChartSeries& series = *chart.AddSeries();
        series.setXAxis(&time);
        series.setYAxis(&axis);
        series.colour = RGB(60 * i, 0, 200 - 60 * i);
        for (std::size_t n = 0; n < history; ++n)
            series.addSample(static_cast<float>(n) * kSpan / kVisible, ValueAt(n + 1000000 - history, i));
    }
    const float end = static_cast<float>(history) * kSpan / kVisible;
    time.setRange(end - kSpan, end);
}

// One chart with one history, and its paint as the system sees it.
struct Measured {
    explicit Measured(std::size_t history) {
        FillChart(chart, history);
        const MemoryDc measure;
        layout = chart.LayOut(kChartWidth, kChartHeight, DataChartFonts(measure.Get()), nullptr).value();
    }
    void Paint(HDC dc) const { PaintChartLines(dc, chart, layout.plot); }

    DataChartModel chart;
    ChartBackground layout;
    std::vector<double> painted, bare;
};

void PrintPaint() {
    std::array<Measured, 3> charts{Measured(kHistories[0]), Measured(kHistories[1]), Measured(kHistories[2])};
    std::vector<BareCalls> calls;
    for (const Measured& chart : charts)
        calls.emplace_back([&](HDC dc) { chart.Paint(dc); });
    const ShownControl shown("STATIC", kChartWidth, kChartHeight);
    const ClientDc screen(shown.Window());
    const MemoryDc memory(screen.Get());
    const OwnedBitmap bitmap(::CreateCompatibleBitmap(screen.Get(), kChartWidth, kChartHeight));
    const SelectGuard selected(memory.Get(), bitmap.Get());
    const auto copied = [&](const auto& paint) {
        return Microseconds([&] {
            paint();
            ::BitBlt(screen.Get(), 0, 0, kChartWidth, kChartHeight, memory.Get(), 0, 0, SRCCOPY);
        });
    };
    // One kind of round after the other, so that noise hits all alike.
    for (int round = 0; round < kChartRounds; ++round) {
        for (std::size_t i = 0; i < charts.size(); ++i) {
            charts[i].painted.push_back(copied([&] { charts[i].Paint(memory.Get()); }));
            charts[i].bare.push_back(copied([&] { calls[i].Run(memory.Get()); }));
        }
    }
    const double shortest = Median(charts[0].painted);
    for (std::size_t i = 0; i < charts.size(); ++i) {
        const double painted = Median(charts[i].painted), bare = Median(charts[i].bare);
        std::printf(
            "chart of %zu series, %zu samples visible of %zu: paint %.0f us, to that of %zu %.2f (wanted: at most "
            "1.3), bare calls %.0f us, ratio %.2f (wanted: at most 1.2)\n",
            kSeriesShown, kVisible, kHistories[i], painted, kHistories[0], painted / shortest, bare, painted / bare);
    }
}

void PrintAppend() {
    constexpr int kSamples = 1000000;
    DataChartModel chart;
    FillChart(chart, 10);
    DataChartSeries& series = *chart.Series(0);
    const double still = Microseconds([&] {
        for (int i = 0; i < kSamples; ++i)
            series.addSample(series.XAxis()->Maximum(), 100.0F);
    });
    series.XAxis()->flags = kAxisAutoScroll;
    const double scrolling = Microseconds([&] {
        for (int i = 0; i < kSamples; ++i)
            series.addSample(series.XAxis()->Maximum() + 1.0F, 100.0F);
    });
    std::printf("sample appended: %.3f us, with a scroll %.3f us\n", still / kSamples, scrolling / kSamples);
}

void PrintLayout() {
    DataChart::Register(::GetModuleHandleA(nullptr));
    const ShownControl shown(kDataChartClass, kChartWidth, kChartHeight);
    for (std::size_t i = 0; i <= kSeriesShown; ++i) {
        auto* const axis = reinterpret_cast<DataChartAxis*>(shown.Send(DCM_ADDAXIS));
        axis->setPosition(i == 0 ? AxisPosition::kBottom : i % 2 == 0 ? AxisPosition::kLeft : AxisPosition::kRight);
    }
    std::vector<double> layouts, repaints;
    for (int round = 0; round < kChartRounds; ++round) {
        layouts.push_back(Microseconds([&] { shown.Send(WM_SIZE); }));
        repaints.push_back(Microseconds([&] { shown.Send(DCM_REPAINT); }));
    }
    std::printf("layout of five axes: %.0f us, an empty repaint %.0f us, ratio %.1f\n", Median(layouts),
                Median(repaints), Median(layouts) / Median(repaints));
}

std::size_t BytesInUse() {
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

// At the rate of a line of 8192 baud.
void PrintMemory() {
    constexpr std::size_t kSixteen = 16, kHour = 11 * 3600;
    const std::size_t before = BytesInUse();
    DataChartModel chart;
    for (std::size_t i = 0; i < kSixteen; ++i) {
        DataChartSeries& series = *chart.AddSeries();
        for (std::size_t n = 0; n < kHour; ++n)
            series.addSample(static_cast<float>(n), 1.0F);
    }
    std::printf("an hour of %zu series at 11 Hz: %zu samples, %.2f MB\n", kSixteen, kSixteen * kHour,
                static_cast<double>(BytesInUse() - before) / 1e6);
}

}  // namespace

void PrintChartCost() {
    PrintPaint();
    PrintAppend();
    PrintLayout();
    PrintMemory();
}

}  // namespace corvex::bench
