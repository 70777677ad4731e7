#include "controls/gauge/LogicalSquare.h"

#include <algorithm>

namespace corvex {

LogicalSquare::LogicalSquare(HDC dc, const RECT& client, int side, bool round) : dc_(dc), saved_(::SaveDC(dc)) {
    const int width = client.right - client.left, height = client.bottom - client.top;
    // In this order: with round units the second extent is fitted to the first.
    ::SetMapMode(dc, round ? MM_ISOTROPIC : MM_ANISOTROPIC);
    ::SetWindowExtEx(dc, side, side, nullptr);
    ::SetViewportExtEx(dc, std::max(width, side), std::max(height, side), nullptr);
}

LogicalSquare::~LogicalSquare() {
    ::RestoreDC(dc_, saved_);
}

}  // namespace corvex
