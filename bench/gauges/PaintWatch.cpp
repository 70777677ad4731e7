#include "bench/gauges/PaintWatch.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "controls/analoggauge/AnalogGauge.h"

namespace corvex::bench {

namespace {

constexpr char kProperty[] = "CorvexPaintWatch";

bool IsDial(HWND window) {
    char name[64] = "";
    ::GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, kAnalogGaugeClass) == 0;
}

}  // namespace

PaintWatch::PaintWatch(const std::vector<HWND>& gauges) {
    for (const HWND window : gauges) {
        gauges_.push_back(std::make_unique<Gauge>(Gauge{this, window, IsDial(window), nullptr, false}));
        ::SetPropA(window, kProperty, gauges_.back().get());
        gauges_.back()->former = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PaintWatch::Procedure)));
    }
}

PaintWatch::~PaintWatch() {
    for (const auto& gauge : gauges_) {
        ::SetWindowLongPtrA(gauge->window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gauge->former));
        ::RemovePropA(gauge->window, kProperty);
    }
}

LRESULT CALLBACK PaintWatch::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Gauge& gauge = *static_cast<Gauge*>(::GetPropA(window, kProperty));
    const auto begin = std::chrono::steady_clock::now();
    const LRESULT result = ::CallWindowProcA(gauge.former, window, message, wParam, lParam);
    if (message == WM_PAINT) gauge.watch->Note(gauge, begin);
    return result;
}

void PaintWatch::Note(Gauge& gauge, std::chrono::steady_clock::time_point begin) {
    const auto end = std::chrono::steady_clock::now();
    const double microseconds = std::chrono::duration<double, std::micro>(end - begin).count();
    const std::lock_guard lock(mutex_);
    paints_.last = end;
    paints_.microseconds += microseconds;
    if (gauge.isDial) paints_.dialMicroseconds += microseconds;
    gauge.painted = true;
    if (AllPainted()) painted_.notify_one();
}

void PaintWatch::Forget() {
    const std::lock_guard lock(mutex_);
    for (const auto& gauge : gauges_)
        gauge->painted = false;
    paints_ = {};
}

PaintWatch::Paints PaintWatch::WaitForAll() {
    std::unique_lock lock(mutex_);
    const bool all = painted_.wait_for(lock, std::chrono::seconds(10), [this] { return AllPainted(); });
    if (!all) throw std::runtime_error("a reply left a gauge unpainted");
    return paints_;
}

bool PaintWatch::AllPainted() const {
    return std::all_of(gauges_.begin(), gauges_.end(), [](const auto& gauge) { return gauge->painted; });
}

}  // namespace corvex::bench
