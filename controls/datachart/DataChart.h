// The strip chart of a monitor: line series against linear axes on the four sides of a plot.
#pragma once

#include "controls/datachart/DataChartModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kDataChartClass[] = "QZDATACHART";
// With this code, its control id and the screen coordinates in lParam it sends WM_COMMAND to its parent when a menu is
// wanted.
inline constexpr UINT kDataChartMenuCode = 1;

// lParam is not used. Axes and series belong to the chart and are used on its thread alone; it is told by a message
// when they have changed.
enum DataChartMessage : UINT {
    DCM_ADDSERIES = 1474,       // the new DataChartSeries*; 0 for want of memory
    DCM_GETSERIES = 1475,       // wParam index; 0 when it is out of range
    DCM_DELETESERIES = 1476,    // wParam index; 1, also when it is out of range
    DCM_GETSERIESCOUNT = 1477,  // the count
    DCM_CLEARSERIES = 1478,     // 1
    DCM_CLEARSAMPLES = 1479,    // 1; the series stay
    DCM_ADDAXIS = 1480,         // the new DataChartAxis*; 0 for want of memory
    DCM_GETAXIS = 1481,         // wParam index; 0 when it is out of range
    DCM_DELETEAXIS = 1483,      // wParam index; 0 while a series uses it, else 1
    DCM_GETAXISCOUNT = 1484,    // the count
    DCM_CLEARAXES = 1485,       // 1; the series go first
    DCM_RELAYOUT = 1486,        // 1; lays out and repaints
    DCM_REPAINT = 1487,         // 1; paints at once
};

// Windows are made with CreateWindowExA, as children of a window that hears of their context menu. The title comes by
// WM_SETTEXT, at most 150 characters of it, and shows with the next layout.
class DataChart {
public:
    static bool Register(HINSTANCE instance);
};

}  // namespace corvex
