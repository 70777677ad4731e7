// The scroll bar under the monitors: what it says of the time on show, and the other way round.
#pragma once

namespace corvex {

// What the time axis of the charts says, in seconds.
struct MonitorTimes {
    float visibleLow, visibleHigh, lowLimit, highLimit;
};

// Numbers of a scroll bar. The range is in milliseconds less the span in seconds, and the position is the end of what
// is visible: a drag begins there, and what it shows depends on that.
struct MonitorScroll {
    int maximum, page, position;
};

// Is there a time that was on show and is not now?
bool NeedsMonitorScroll(const MonitorTimes& times);
MonitorScroll MonitorScrollOf(const MonitorTimes& times);
// The seconds at which the visible time begins for a position.
float MonitorTimeAt(int position);

}  // namespace corvex
