// The 2-D chart: series of points on two crossed axes, to be picked and dragged.
#pragma once

#include "controls/chart/ChartBlocks.h"
#include "controls/chart2d/IQZChart2DSeries.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kChart2DClass[] = "2DCHART";

// wParam and lParam in this order. Where they point to floats, null leaves that value alone. Setters of a range do
// nothing while it follows the data. `redraw` repaints at once. Results are 0 where none is told.
enum Chart2DMessage : UINT {
    CH2M_SETSTYLE = 1135,          // bits of Chart2DStyle to add (0 clears all), redraw
    CH2M_GETSTYLE = 1136,          // the bits
    CH2M_CLEARSTYLE = 1137,        // bits, redraw; without a tick bit that axis has no ticks
    CH2M_REPAINT = 1138,           // at once, with erase
    CH2M_SETTITLE = 1139,          // unused, text of at most 100 bytes; the window's text is the same
    CH2M_SETLABELCALLBACK = 1140,  // unused, Chart2DLabelCallback or null
    CH2M_ADDSERIES = 1141,       // index, redraw: the new IQZChart2DSeries*, there or at the end; 0 for want of memory
    CH2M_DELETESERIES = 1142,    // IQZChart2DSeries*, redraw: 1 if it was found
    CH2M_GETSERIES = 1143,       // index: IQZChart2DSeries*, 0 out of range
    CH2M_GETSERIESCOUNT = 1144,  // the count
    CH2M_CLEARSELECTION = 1145,  // unused, 1 to redraw: of every series
    CH2M_SETCOLOR = 1151,        // Chart2DColour, colour: 1, for an unknown one too
    CH2M_GETCOLOR = 1152,        // Chart2DColour: the colour; 0 for an unknown one
    CH2M_SETXRANGE = 1153,       // pointers to minimum and maximum, here and below
    CH2M_GETXRANGE = 1154,
    CH2M_SETYRANGE = 1155,
    CH2M_GETYRANGE = 1156,
    CH2M_SETXLIMITS = 1157,  // how far points are dragged: as the ranges, but whatever follows the data
    CH2M_GETXLIMITS = 1158,
    CH2M_SETYLIMITS = 1159,
    CH2M_GETYLIMITS = 1160,
    CH2M_SETYTITLE = 1161,  // text, its length: at most 40 bytes
    CH2M_GETYTITLE = 1162,  // buffer, its size: as much as it has room for with the 0 at its end; the text's length
    CH2M_SETXTITLE = 1163,
    CH2M_GETXTITLE = 1164,
    CH2M_SETXTICKCOUNT = 1165,  // unused, count
    CH2M_SETYTICKCOUNT = 1166,
    CH2M_GETXTICKCOUNT = 1167,  // the count
    CH2M_GETYTICKCOUNT = 1168,
    CH2M_SETXTICK = 1169,  // unused, TickBlock with a text to copy: 1
    CH2M_SETYTICK = 1170,
    // Both go on as CH2M_ADDSERIES, with its index, redraw and result: pages expect the new series of them.
    CH2M_CLEARTICKS = 1171,   // of both axes
    CH2M_CLEARYTICKS = 1172,  // of Y alone
    CH2M_SETSUBTITLE = 1173,  // unused, text of at most 60 bytes
    CH2M_GETSUBTITLE = 1174,  // unused, buffer of 60 bytes: the length; a text of 60 bytes has no 0 at its end
};

// The lParam of a WM_NOTIFY, with a Chart2DCode. The series is null, and the point 0, where the code has none.
struct Chart2DNotification {
    NMHDR header;
    IQZChart2DSeries* series;
    int point;
};

// Writes the label of a tick, or of a point, and returns not 0; returns 0 for the chart's own, which a point has none
// of. `kind` is kXTickLabel, kDepthTickLabel for Y, or kPointLabel; the value of a tick is the coordinate of its axis.
// On the window's thread, while the chart is laid out or painted: it may not send the chart messages, nor change
// series.
using Chart2DLabelCallback = int(CALLBACK*)(HWND window, float x, float y, IQZChart2DSeries* series, int point,
                                            int kind, char* text, int* capacity);

// Windows are made with CreateWindowExA, as children of a window that hears the codes. Messages and series' operations
// are for the window's thread; a message from another is handled there.
class Chart2D {
public:
    static bool Register(HINSTANCE instance);
};

}  // namespace corvex
