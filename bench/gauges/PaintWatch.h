// Notes when gauges have been painted, and how long that took.
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex::bench {

// Of windows of one thread that live on while it does. Built and torn down on that thread.
class PaintWatch {
public:
    struct Paints {
        std::chrono::steady_clock::time_point last;  // end of the last of them
        double microseconds;                         // all together
        double dialMicroseconds;                     // those of analog gauges
    };

    explicit PaintWatch(const std::vector<HWND>& gauges);
    ~PaintWatch();
    PaintWatch(const PaintWatch&) = delete;
    PaintWatch& operator=(const PaintWatch&) = delete;

    // On another thread: begins anew, and waits until each gauge has been painted since. Throws std::runtime_error
    // after some seconds.
    void Forget();
    Paints WaitForAll();

private:
    struct Gauge {
        HWND window;
        bool isDial;
        bool painted;
    };
    class Subclass;
    void Note(Gauge& gauge, std::chrono::steady_clock::time_point begin);
    bool AllPainted() const;

    std::vector<std::unique_ptr<Gauge>> gauges_;
    std::mutex mutex_;  // for what follows, and which gauges are painted
    std::condition_variable painted_;
    Paints paints_{};
};

}  // namespace corvex::bench
