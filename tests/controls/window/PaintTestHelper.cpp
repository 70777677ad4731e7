#include "tests/controls/window/PaintTestHelper.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>

namespace corvex {

namespace {

std::string Line(const char* format, ...) {
    char text[128];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

std::string Box(const char* what, long left, long top, long right, long bottom) {
    return Line("%s %ld,%ld,%ld,%ld", what, left, top, right, bottom);
}

std::string Text(const EMREXTTEXTOUTW& record) {
    const auto* const letters =
        reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(&record) + record.emrtext.offString);
    std::string line = Line("text %ld,%ld ", record.emrtext.ptlReference.x, record.emrtext.ptlReference.y);
    for (DWORD i = 0; i < record.emrtext.nChars; ++i)
        line.push_back(static_cast<char>(letters[i]));
    return line;
}

std::string Clip(const EMREXTSELECTCLIPRGN& record) {
    if (record.cbRgnData < sizeof(RGNDATAHEADER)) return "clip none";
    const RECT& box = reinterpret_cast<const RGNDATA*>(record.RgnData)->rdh.rcBound;
    return Box("clip", box.left, box.top, box.right, box.bottom);
}

template <class Record>
const Record& As(const ENHMETARECORD* record) {
    return *reinterpret_cast<const Record*>(record);
}

std::string Describe(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_CREATEBRUSHINDIRECT:
            return Line("brush %06lx", As<EMRCREATEBRUSHINDIRECT>(record).lb.lbColor);
        case EMR_CREATEPEN: {
            const LOGPEN& pen = As<EMRCREATEPEN>(record).lopn;
            return Line("pen %u %ld %06lx", pen.lopnStyle, pen.lopnWidth.x, pen.lopnColor);
        }
        case EMR_BITBLT: {
            const auto& fill = As<EMRBITBLT>(record);
            return Box("fill", fill.xDest, fill.yDest, fill.xDest + fill.cxDest, fill.yDest + fill.cyDest);
        }
        case EMR_RECTANGLE: {
            const RECTL& box = As<EMRRECTANGLE>(record).rclBox;
            return Box("rectangle", box.left, box.top, box.right + 1, box.bottom + 1);
        }
        case EMR_SETTEXTCOLOR:
            return Line("text colour %06lx", As<EMRSETTEXTCOLOR>(record).crColor);
        case EMR_SETBKMODE:
            return As<EMRSETBKMODE>(record).iMode == TRANSPARENT ? "transparent" : "opaque";
        case EMR_EXTSELECTCLIPRGN:
            return Clip(As<EMREXTSELECTCLIPRGN>(record));
        case EMR_EXTTEXTOUTW:
            return Text(As<EMREXTTEXTOUTW>(record));
        default:
            return {};
    }
}

int CALLBACK OnRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM lines) {
    const std::string line = Describe(record);
    if (!line.empty()) reinterpret_cast<std::vector<std::string>*>(lines)->push_back(line);
    return 1;
}

SIZE ClientSize(HWND window) {
    RECT area{};
    ::GetClientRect(window, &area);
    return {area.right, area.bottom};
}

}  // namespace

OwnedFont MakeTestFont() {
    return OwnedFont(::CreateFontA(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, NONANTIALIASED_QUALITY, DEFAULT_PITCH, "Arial"));
}

std::vector<std::string> Recorded(const std::function<void(HDC)>& paint) {
    const OwnedFont font = MakeTestFont();
    const HDC dc = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        const SelectGuard selected(dc, font.Get());
        paint(dc);
    }
    const HENHMETAFILE file = ::CloseEnhMetaFile(dc);
    std::vector<std::string> lines;
    ::EnumEnhMetaFile(nullptr, file, &OnRecord, &lines, nullptr);
    ::DeleteEnhMetaFile(file);
    return lines;
}

std::vector<std::size_t> PlacesOf(const std::vector<std::string>& lines, const std::string& line) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] == line) places.push_back(i);
    }
    return places;
}

std::string CentredText(const std::string& text, int width, int height) {
    const OwnedFont font = MakeTestFont();
    const MemoryDc dc;
    const SelectGuard selected(dc.Get(), font.Get());
    SIZE size{};
    ::GetTextExtentPoint32A(dc.Get(), text.c_str(), static_cast<int>(text.size()), &size);
    return Line("text %ld,%ld %s", (width - size.cx) / 2, (height - size.cy) / 2, text.c_str());
}

TestBitmap::TestBitmap(int width, int height, COLORREF ground)
    : width_(width), bitmap_(MakePixelBitmap(width, height, &pixels_)), selected_(dc_.Get(), bitmap_.Get()) {
    const OwnedBrush brush(::CreateSolidBrush(ground));
    const RECT area{0, 0, width, height};
    ::FillRect(Dc(), &area, brush.Get());
}

TestBitmap::TestBitmap(HWND window) : TestBitmap(ClientSize(window).cx, ClientSize(window).cy, 0) {
    const SIZE size = ClientSize(window);
    ::BitBlt(Dc(), 0, 0, size.cx, size.cy, ClientDc(window).Get(), 0, 0, SRCCOPY);
}

COLORREF TestBitmap::At(int x, int y) const {
    ::GdiFlush();
    const std::uint32_t pixel = pixels_[y * width_ + x];
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

std::set<COLORREF> TestBitmap::ColoursIn(int left, int top, int right, int bottom) const {
    std::set<COLORREF> colours;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x)
            colours.insert(At(x, y));
    }
    return colours;
}

std::size_t AllGdiObjects() {
    std::size_t count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (ULONG_PTR handle = 1; handle < 0x10000; ++handle) {
        if (::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
    }
    return count;
}

COLORREF PixelOf(HWND window, int x, int y) {
    return ::GetPixel(ClientDc(window).Get(), x, y);
}

void SetPixelOf(HWND window, int x, int y, COLORREF colour) {
    ::SetPixel(ClientDc(window).Get(), x, y, colour);
}

std::set<COLORREF> ColoursOf(HWND window) {
    const SIZE size = ClientSize(window);
    return TestBitmap(window).ColoursIn(0, 0, size.cx, size.cy);
}

}  // namespace corvex
