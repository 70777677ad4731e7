#include "bench/gauges/BareCalls.h"

#include <stdexcept>
#include <string>

namespace corvex::bench {

namespace {

using Call = BareCalls::Call;
using Objects = BareCalls::Objects;
using Make = std::function<void(HDC, Objects&)>;
using Kind = BareCalls::Kind;

template <class Record>
const Record& As(const ENHMETARECORD* record) {
    return *reinterpret_cast<const Record*>(record);
}

Make Making(std::size_t number, const std::function<HGDIOBJ()>& made) {
    return [number, made](HDC, Objects& objects) { objects[number] = GdiOwner<HGDIOBJ>(made()); };
}

Make Selecting(DWORD number) {
    constexpr DWORD kStock = 0x80000000;
    if ((number & kStock) == 0)
        return [number](HDC dc, Objects& objects) { ::SelectObject(dc, objects[number].Get()); };
    const int stock = static_cast<int>(number & ~kStock);
    return [stock](HDC dc, Objects&) { ::SelectObject(dc, ::GetStockObject(stock)); };
}

Make Writing(const EMREXTTEXTOUTW& record) {
    const auto* const letters =
        reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(&record) + record.emrtext.offString);
    std::string text;
    for (DWORD i = 0; i < record.emrtext.nChars; ++i)
        text.push_back(static_cast<char>(letters[i]));
    const POINTL place = record.emrtext.ptlReference;
    return [place, text](HDC dc, Objects&) {
        ::TextOutA(dc, place.x, place.y, text.data(), static_cast<int>(text.size()));
    };
}

Make Outlining(const EMRPOLYGON16& record) {
    std::vector<POINT> corners;
    for (DWORD i = 0; i < record.cpts; ++i)
        corners.push_back({record.apts[i].x, record.apts[i].y});
    return [corners](HDC dc, Objects&) { ::Polygon(dc, corners.data(), static_cast<int>(corners.size())); };
}

Make Curving(const EMRARC& record) {
    const RECTL box = record.rclBox;
    const POINTL from = record.ptlStart, to = record.ptlEnd;
    return [box, from, to](HDC dc, Objects&) {
        ::Arc(dc, box.left, box.top, box.right + 1, box.bottom + 1, from.x, from.y, to.x, to.y);
    };
}

Make Clipping(const EMREXTSELECTCLIPRGN& record) {
    std::vector<BYTE> region(record.RgnData, record.RgnData + record.cbRgnData);
    const int mode = static_cast<int>(record.iMode);
    return [region, mode](HDC dc, Objects&) {
        const auto* const data = reinterpret_cast<const RGNDATA*>(region.data());
        const OwnedRegion clip(region.empty() ? nullptr
                                              : ::ExtCreateRegion(nullptr, static_cast<DWORD>(region.size()), data));
        ::ExtSelectClipRgn(dc, clip.Get(), mode);
    };
}

// Null for a record that is no object's.
Make ObjectCall(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_CREATEPEN: {
            const LOGPEN pen = As<EMRCREATEPEN>(record).lopn;
            return Making(As<EMRCREATEPEN>(record).ihPen, [pen] {
                return ::CreatePen(static_cast<int>(pen.lopnStyle), pen.lopnWidth.x, pen.lopnColor);
            });
        }
        case EMR_CREATEBRUSHINDIRECT: {
            const COLORREF colour = As<EMRCREATEBRUSHINDIRECT>(record).lb.lbColor;
            return Making(As<EMRCREATEBRUSHINDIRECT>(record).ihBrush, [colour] { return ::CreateSolidBrush(colour); });
        }
        case EMR_EXTCREATEFONTINDIRECTW: {
            const LOGFONTW font = As<EMREXTCREATEFONTINDIRECTW>(record).elfw.elfLogFont;
            return Making(As<EMREXTCREATEFONTINDIRECTW>(record).ihFont,
                          [font] { return ::CreateFontIndirectW(&font); });
        }
        case EMR_SELECTOBJECT:
            return Selecting(As<EMRSELECTOBJECT>(record).ihObject);
        case EMR_DELETEOBJECT: {
            const DWORD number = As<EMRSELECTOBJECT>(record).ihObject;
            return [number](HDC, Objects& objects) { objects[number].Reset(); };
        }
        default:
            return nullptr;
    }
}

Make MappingCall(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_SAVEDC:
            return [](HDC dc, Objects&) { ::SaveDC(dc); };
        case EMR_RESTOREDC: {
            const LONG steps = As<EMRRESTOREDC>(record).iRelative;
            return [steps](HDC dc, Objects&) { ::RestoreDC(dc, steps); };
        }
        case EMR_SETMAPMODE: {
            const int mode = static_cast<int>(As<EMRSETMAPMODE>(record).iMode);
            return [mode](HDC dc, Objects&) { ::SetMapMode(dc, mode); };
        }
        case EMR_SETWINDOWEXTEX: {
            const SIZEL size = As<EMRSETWINDOWEXTEX>(record).szlExtent;
            return [size](HDC dc, Objects&) { ::SetWindowExtEx(dc, size.cx, size.cy, nullptr); };
        }
        case EMR_SETVIEWPORTEXTEX: {
            const SIZEL size = As<EMRSETVIEWPORTEXTEX>(record).szlExtent;
            return [size](HDC dc, Objects&) { ::SetViewportExtEx(dc, size.cx, size.cy, nullptr); };
        }
        case EMR_SETVIEWPORTORGEX: {
            const POINTL origin = As<EMRSETVIEWPORTORGEX>(record).ptlOrigin;
            return [origin](HDC dc, Objects&) { ::SetViewportOrgEx(dc, origin.x, origin.y, nullptr); };
        }
        case EMR_EXTSELECTCLIPRGN:
            return Clipping(As<EMREXTSELECTCLIPRGN>(record));
        case EMR_MOVETOEX: {
            const POINTL to = As<EMRMOVETOEX>(record).ptl;
            return [to](HDC dc, Objects&) { ::MoveToEx(dc, to.x, to.y, nullptr); };
        }
        default:
            return nullptr;
    }
}

Make WordCall(const ENHMETARECORD* record) {
    const DWORD word = As<EMRSETBKMODE>(record).iMode;  // of each of these, the one word there is
    switch (record->iType) {
        case EMR_SETBKMODE:
            return [word](HDC dc, Objects&) { ::SetBkMode(dc, static_cast<int>(word)); };
        case EMR_SETTEXTALIGN:
            return [word](HDC dc, Objects&) { ::SetTextAlign(dc, word); };
        case EMR_SETTEXTCOLOR:
            return [word](HDC dc, Objects&) { ::SetTextColor(dc, word); };
        case EMR_SETBKCOLOR:
            return [word](HDC dc, Objects&) { ::SetBkColor(dc, word); };
        case EMR_SETROP2:
            return [word](HDC dc, Objects&) { ::SetROP2(dc, static_cast<int>(word)); };
        case EMR_SETPOLYFILLMODE:
            return [word](HDC dc, Objects&) { ::SetPolyFillMode(dc, static_cast<int>(word)); };
        case EMR_SETARCDIRECTION:
            return [word](HDC dc, Objects&) { ::SetArcDirection(dc, static_cast<int>(word)); };
        default:
            return nullptr;
    }
}

Make FigureCall(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_ARC:
            return Curving(As<EMRARC>(record));
        case EMR_EXTTEXTOUTW:
            return Writing(As<EMREXTTEXTOUTW>(record));
        case EMR_POLYGON16:
            return Outlining(As<EMRPOLYGON16>(record));
        case EMR_LINETO: {
            const POINTL to = As<EMRLINETO>(record).ptl;
            return [to](HDC dc, Objects&) { ::LineTo(dc, to.x, to.y); };
        }
        case EMR_ELLIPSE: {
            const RECTL box = As<EMRELLIPSE>(record).rclBox;
            return [box](HDC dc, Objects&) { ::Ellipse(dc, box.left, box.top, box.right + 1, box.bottom + 1); };
        }
        case EMR_RECTANGLE: {
            const RECTL box = As<EMRRECTANGLE>(record).rclBox;
            return [box](HDC dc, Objects&) { ::Rectangle(dc, box.left, box.top, box.right + 1, box.bottom + 1); };
        }
        case EMR_BITBLT: {
            const auto fill = As<EMRBITBLT>(record);
            return [fill](HDC dc, Objects&) {
                ::PatBlt(dc, fill.xDest, fill.yDest, fill.cxDest, fill.cyDest, fill.dwRop);
            };
        }
        default:
            return nullptr;
    }
}

int CALLBACK OnRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM place) {
    auto& calls = *reinterpret_cast<std::vector<Call>*>(place);
    if (record->iType == EMR_HEADER || record->iType == EMR_EOF) return 1;
    for (const auto& read : {&ObjectCall, &MappingCall, &WordCall}) {
        if (Make make = read(record)) return calls.push_back({Kind::kState, std::move(make)}), 1;
    }
    Make make = FigureCall(record);
    if (!make) return 0;
    const bool curve = record->iType == EMR_ARC || record->iType == EMR_ELLIPSE;
    calls.push_back({curve ? Kind::kCurve : Kind::kOtherFigure, std::move(make)});
    return 1;
}

}  // namespace

BareCalls::BareCalls(const std::function<void(HDC)>& paint) {
    const HDC dc = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    paint(dc);
    const HENHMETAFILE file = ::CloseEnhMetaFile(dc);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(file, sizeof header, &header);
    objects_.resize(header.nHandles);
    const bool whole = ::EnumEnhMetaFile(nullptr, file, &OnRecord, &calls_, nullptr) != FALSE;
    ::DeleteEnhMetaFile(file);
    if (!whole) throw std::runtime_error("a paint with an unknown record");
}

void BareCalls::Run(HDC dc) {
    for (const Call& call : calls_)
        call.make(dc, objects_);
}

BareCalls BareCalls::Curves() const {
    std::vector<Call> kept;
    for (const Call& call : calls_) {
        if (call.kind != Kind::kOtherFigure) kept.push_back(call);
    }
    return {std::move(kept), objects_.size()};
}

}  // namespace corvex::bench
