// The round dial of a dash page: a needle on a scale with title, units, digits, extreme values and alarm bands.
#pragma once

#include "controls/analoggauge/AnalogGaugeData.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kAnalogGaugeClass[] = "QZANALOGGAUGE";
// With this code, its control id and the screen coordinates in lParam it sends WM_COMMAND to its parent when a menu is
// wanted.
inline constexpr UINT kAnalogGaugeMenuCode = 1574;

// To be sent from any thread; a pointer is read, or written to, during the call alone. Results are 0 where none is
// told. "Redraw" other than 0 repaints at once, everything else shows with the next paint. Null pointers do nothing.
enum AnalogGaugeMessage : UINT {
    AGM_SETFLAGS = 1524,    // bits to add, or 0 to clear them all; redraw
    AGM_CLEARFLAGS = 1526,  // bits; redraw
    AGM_SETCOLOR = 1527,    // AnalogGaugeColour; colour 0x00BBGGRR
    AGM_GETCOLOR = 1528,    // AnalogGaugeColour; the colour, 0 for an index that is none
    AGM_SETRANGE = 1529,    // pointers to float: minimum; maximum. The value stays, inside or not
    AGM_SETVALUE = 1532,    // pointer to float; redraw
    AGM_GETVALUE = 1533,    // truncated toward zero
    AGM_SETSWEEP = 1534,    // pointers to float: start; end, degrees clockwise from straight down
    AGM_RESETMIN = 1537,    // forgets the lowest value seen
    AGM_RESETMAX = 1538,    // forgets the highest
    AGM_SETTITLE = 1539,    // text; its length. No text or no length: none; too small a length: an empty one
    AGM_GETTITLE = 1540,    // buffer; its size, which the text is cut to
    AGM_SETUNITS = 1541,    // as the title
    AGM_GETUNITS = 1542,    // as the title
    AGM_SETDIGITS = 1543,   // unused; decimals of numbers with a fraction
    AGM_SETALARM = 1544,    // index; GaugeAlarmBand. See AnalogGaugeModel::SetAlarm
    AGM_GETALARM = 1545,    // index; GaugeAlarmBand to fill, or null. 1 for an index that is there
    AGM_CLEARALARMS = 1546,
};

// Windows are made with CreateWindowExA and WS_CHILD, and belong to the thread that made them.
class AnalogGauge {
public:
    static bool Register(HINSTANCE instance);
};

}  // namespace corvex
