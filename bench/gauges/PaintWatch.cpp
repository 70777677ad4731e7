#include "bench/gauges/PaintWatch.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/window/WindowSubclass.h"

namespace corvex::bench {

namespace {

bool IsDial(HWND window) {
    char name[64] = "";
    ::GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, kAnalogGaugeClass) == 0;
}

}  // namespace

// In front of a gauge for as long as it is watched.
class PaintWatch::Subclass final : public WindowSubclass {
public:
    Subclass(PaintWatch& watch, Gauge& gauge) : WindowSubclass(gauge.window), watch_(watch), gauge_(gauge) {}

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        const auto begin = std::chrono::steady_clock::now();
        const LRESULT result = Former(message, wParam, lParam);
        if (message == WM_PAINT) watch_.Note(gauge_, begin);
        return result;
    }

private:
    PaintWatch& watch_;
    Gauge& gauge_;
};

PaintWatch::PaintWatch(const std::vector<HWND>& gauges) {
    for (const HWND window : gauges) {
        gauges_.push_back(std::make_unique<Gauge>(Gauge{window, IsDial(window), false}));
        if (!Attach(std::make_unique<Subclass>(*this, *gauges_.back())))
            throw std::runtime_error("a gauge that cannot be watched");
    }
}

PaintWatch::~PaintWatch() {
    for (const auto& gauge : gauges_)
        Detach<Subclass>(gauge->window);
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
