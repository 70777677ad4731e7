#include "views/MonitorTimeModel.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace corvex {

namespace {

constexpr float kMostSeconds = 2147483520.0F;  // the largest float that is an int

}  // namespace

void FormatMonitorTime(void*, const DataChartAxis&, float seconds, char* buffer, std::uint32_t* length) {
    const float whole = std::isnan(seconds) ? 0.0F : std::min(std::fabs(seconds), kMostSeconds);
    const int time = static_cast<int>(whole);
    const int printed =
        std::snprintf(buffer, *length, "%s%i:%.2i", seconds >= 0.0F ? "" : "-", time / 60 % 60, time % 60);
    *length = static_cast<std::uint32_t>(printed) < *length ? static_cast<std::uint32_t>(printed) : 0;
}

}  // namespace corvex
