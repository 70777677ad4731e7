#include "bench/gauges/PaintBesideBare.h"

#include <vector>

#include "bench/desktop/Figures.h"
#include "bench/gauges/BareCalls.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex::bench {

PaintCost CostOfPaint(int width, int height, int rounds, const std::function<void(HDC)>& paint) {
    BareCalls calls(paint);
    const ShownControl shown("STATIC", width, height);
    const ClientDc screen(shown.Window());
    const MemoryDc memory(screen.Get());
    const OwnedBitmap bitmap(::CreateCompatibleBitmap(screen.Get(), width, height));
    const SelectGuard selected(memory.Get(), bitmap.Get());
    const auto copied = [&](const auto& work) {
        return Microseconds([&] {
            work();
            ::BitBlt(screen.Get(), 0, 0, width, height, memory.Get(), 0, 0, SRCCOPY);
        });
    };
    // One kind of round after the other, so that noise hits both alike.
    std::vector<double> painted, bare;
    for (int round = 0; round < rounds; ++round) {
        painted.push_back(copied([&] { paint(memory.Get()); }));
        bare.push_back(copied([&] { calls.Run(memory.Get()); }));
    }
    return {Median(painted), Median(bare)};
}

}  // namespace corvex::bench
