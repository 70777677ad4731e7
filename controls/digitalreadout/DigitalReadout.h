// The numeric tile of a dash: one value in large digits between a title and a units line. The digits turn to the colour
// of a limit that the value has reached, and shrink as their text grows.
//
// The functions may be called from any thread: the work is done on the thread that owns the window, and the caller
// waits for it, repaint included. A handle that is no readout, or no longer one, gives 0, false or 0.0.
#pragma once

#include <cstdint>

#include "controls/digitalreadout/DigitalReadoutInfo.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kDigitalReadoutClass[] = "QZDIGITALGAUGEREADOUT";
// WM_COMMAND to the parent when the menu is asked for; lParam has the screen coordinates. Not the code of other gauges.
inline constexpr UINT kDigitalReadoutMenuCode = 1424;

class DigitalReadout {
public:
    static bool Register(HINSTANCE instance);
};

// 1, or 0 for a null record. Nothing is repainted and the digits keep their colour. Texts are cut to what fits.
std::uint32_t DigitalReadoutSetInfo(HWND window, const DigitalReadoutInfo* info);
std::uint32_t DigitalReadoutGetInfo(HWND window, DigitalReadoutInfo* info);

// By a DigitalReadoutColour; another index is ignored. Repaints. A colour of the digits is seen from the next value on.
bool DigitalReadoutSetColor(HWND window, std::uint32_t index, std::uint32_t colour);
// 0 for an index that there is none of, -1 for no readout.
std::int32_t DigitalReadoutGetColor(HWND window, std::uint32_t index);

// The old value, which is also what decides whether anything is repainted: only when it differs.
float DigitalReadoutSetValue(HWND window, float value);
std::int32_t DigitalReadoutSetValueInt(HWND window, std::int32_t value);

// The old limit. The value is set again, so that its colour follows; repaints.
float DigitalReadoutSetHighLimit(HWND window, float limit);
float DigitalReadoutSetHighLimitInt(HWND window, std::int32_t limit);
float DigitalReadoutGetHighLimit(HWND window);
float DigitalReadoutSetLowLimit(HWND window, float limit);
float DigitalReadoutSetLowLimitInt(HWND window, std::int32_t limit);
float DigitalReadoutGetLowLimit(HWND window);

// Any word but 0 enables. It counts from the next value on.
bool DigitalReadoutEnableHighLimit(HWND window, std::uint32_t flag);
bool DigitalReadoutEnableLowLimit(HWND window, std::uint32_t flag);

// Floating 0 prints whole numbers, with `decimals` as the least count of digits. -1 keeps the former, 0xFFFFFFFF the
// latter. The value is printed again and painted, in the size that it has.
bool DigitalReadoutSetFormat(HWND window, std::int32_t floating, std::uint32_t decimals);

// How many characters were kept: at most 79 and 49. Repaints. Null empties the text.
std::uint32_t DigitalReadoutSetTitle(HWND window, const char* text);
std::uint32_t DigitalReadoutSetUnits(HWND window, const char* text);

// A word for the caller's own use. The old one is returned.
std::uint32_t DigitalReadoutSetUserWord(HWND window, std::uint32_t word);
std::uint32_t DigitalReadoutGetUserWord(HWND window);

}  // namespace corvex
