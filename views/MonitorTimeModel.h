// How the time axis of a monitor prints its labels.
#pragma once

#include <cstdint>

namespace corvex {

class DataChartAxis;

// Minutes and seconds, "-0:05" for a time before 0. Hours are dropped on purpose: 3,661 seconds read "1:01". `length`
// is the buffer's capacity before, and after that the text's length, 0 when text and terminator do not fit. An
// AxisFormatter. Any thread.
void FormatMonitorTime(void* chart, const DataChartAxis& axis, float seconds, char* buffer, std::uint32_t* length);

}  // namespace corvex
