// The 3-D chart: surfaces in a box that the user turns, shifts and scales, with points to pick and drag.
#pragma once

#include "controls/chart/ChartBlocks.h"
#include "controls/chart3d/IQZChart3DPlot.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kChart3DClass[] = "3DCHART";

// wParam and lParam in this order. Where they point to floats, null leaves that value alone. Setters of a range do
// nothing while it follows the data. `redraw` repaints at once. Results are 0 where none is told.
enum Chart3DMessage : UINT {
    CH3M_SETSTYLE = 1244,        // bits of Chart3DStyle to add (0 clears all), redraw
    CH3M_GETSTYLE = 1245,        // the bits
    CH3M_CLEARSTYLE = 1246,      // bits, redraw; without a tick bit that axis has no ticks
    CH3M_REPAINT = 1247,         // at once, with erase
    CH3M_ADDPLOT = 1248,         // index, redraw: the new IQZChart3DPlot*, there or at the end; 0 for want of memory
    CH3M_DELETEPLOT = 1249,      // IQZChart3DPlot*, redraw: 1 if it was found
    CH3M_GETPLOTCOUNT = 1250,    // the count
    CH3M_GETPLOT = 1251,         // index: IQZChart3DPlot*, 0 out of range
    CH3M_CLEARSELECTION = 1252,  // unused, 1 to redraw: of every plot
    CH3M_SETTITLE = 1253,        // unused, text of at most 100 bytes; the window's text is the same
    CH3M_SETCOLOR = 1254,        // Chart3DColour, colour
    CH3M_GETCOLOR = 1255,        // Chart3DColour: the colour
    CH3M_SETXRANGE = 1256,       // pointers to minimum and maximum, here and below
    CH3M_GETXRANGE = 1257,       //
    CH3M_SETDEPTHRANGE = 1258,   //
    CH3M_GETDEPTHRANGE = 1259,   //
    CH3M_SETVERTRANGE = 1260,    //
    CH3M_GETVERTRANGE = 1261,    //
    CH3M_SETXTITLE = 1262,       // text, its length: at most 40 bytes
    CH3M_SETDEPTHTITLE = 1263,   //
    CH3M_SETVERTTITLE = 1264,    //
    CH3M_SETXTICKCOUNT = 1268,   // unused, count
    CH3M_SETDEPTHTICKCOUNT = 1269,
    CH3M_SETVERTTICKCOUNT = 1270,
    CH3M_GETXTICKCOUNT = 1271,  // the count
    CH3M_GETDEPTHTICKCOUNT = 1272,
    CH3M_GETVERTTICKCOUNT = 1273,
    CH3M_SETXTICK = 1274,  // unused, Chart3DTick with a text to copy: 1
    CH3M_SETDEPTHTICK = 1275,
    CH3M_SETVERTTICK = 1276,
    CH3M_GETXTICK = 1277,  // index, Chart3DTick to fill: 1; 0 out of range, and nothing is written
    CH3M_GETDEPTHTICK = 1278,
    CH3M_GETVERTTICK = 1279,
    CH3M_SETSUBTITLE = 1280,       // unused, text of at most 60 bytes
    CH3M_SETLABELCALLBACK = 1282,  // unused, Chart3DLabelCallback or null
    CH3M_SETBOXSIZE = 1283,        // unused, pointer to pixels
    CH3M_GETBOXSIZE = 1284,        // the same
    CH3M_SETXLIMITS = 1285,        // how far points are dragged: as the ranges, but whatever follows the data
    CH3M_GETXLIMITS = 1286,
    CH3M_SETDEPTHLIMITS = 1287,
    CH3M_GETDEPTHLIMITS = 1288,
    CH3M_SETVERTLIMITS = 1289,
    CH3M_GETVERTLIMITS = 1290,
    CH3M_SETROTATION = 1291,     // pointer to three floats in radians (pitch, yaw, one without effect), redraw
    CH3M_GETROTATION = 1292,     // the same
    CH3M_SETTRANSLATION = 1293,  // pointer to three floats in pixels, redraw
    CH3M_GETTRANSLATION = 1294,  // the same
    CH3M_SETSCALE = 1295,        // pointer to one factor for all three, redraw
    CH3M_GETSCALE = 1296,        // the same
};

// The lParam of CH3M_SETXTICK and its like, and of CH3M_GETXTICK and its like, which have the index in wParam.
using Chart3DTick = TickBlock;

// The lParam of a WM_NOTIFY, with a Chart3DCode. The plot is null, and row and column 0, where the code has none.
struct Chart3DNotification {
    NMHDR header;
    IQZChart3DPlot* plot;
    int row, column;
};

// Writes the label of a tick, or of the selection, and returns not 0; returns 0 for the chart's own. `kind` is a
// ChartLabelKind, and the value of a tick is the coordinate of its axis. On the window's thread, while the chart is
// laid out or painted: it may not send the chart messages.
using Chart3DLabelCallback = int(CALLBACK*)(HWND window, float x, float y, float z, IQZChart3DPlot* plot, int row,
                                            int column, int kind, char* text, int* capacity);

// Windows are made with CreateWindowExA, as children of a window that hears the codes. Messages and plots' operations
// are for the window's thread; a message from another is handled there.
class Chart3D {
public:
    static bool Register(HINSTANCE instance);
};

}  // namespace corvex
