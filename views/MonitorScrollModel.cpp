#include "views/MonitorScrollModel.h"

#include <cmath>
#include <cstdint>

namespace corvex {

namespace {

constexpr std::int64_t kMilliseconds = 1000;
constexpr float kFarthestTime = 1e12F;  // far beyond a scroll bar, whose numbers are cut to 32 bits

std::int64_t Whole(float seconds) {
    if (!(std::fabs(seconds) < kFarthestTime)) return 0;
    return static_cast<std::int64_t>(seconds);
}

int Cut(std::int64_t number) {
    return static_cast<int>(static_cast<std::uint32_t>(number));
}

}  // namespace

bool NeedsMonitorScroll(const MonitorTimes& times) {
    return times.visibleLow > times.lowLimit || times.visibleHigh < times.highLimit;
}

MonitorScroll MonitorScrollOf(const MonitorTimes& times) {
    const std::int64_t span = Whole(times.visibleHigh - times.visibleLow);
    return {Cut(Whole(times.highLimit) * kMilliseconds - span), Cut(span * kMilliseconds),
            Cut(Whole(times.visibleHigh) * kMilliseconds)};
}

float MonitorTimeAt(int position) {
    return static_cast<float>(position / 1000.0);
}

}  // namespace corvex
