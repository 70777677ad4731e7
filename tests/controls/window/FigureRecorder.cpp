#include "tests/controls/window/FigureRecorder.h"

#include <algorithm>
#include <map>
#include <utility>

#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {

namespace {

std::string PenText(UINT style, LONG width, COLORREF colour) {
    return Printed(" pen %u %ld %06lx", style, width, colour);
}

std::string BrushText(UINT style, COLORREF colour) {
    return style == BS_NULL ? " brush none" : Printed(" brush %06lx", colour);
}

std::string FontText(const LOGFONTW& font) {
    std::string text = " font ";
    for (const WCHAR* letter = font.lfFaceName; *letter != 0; ++letter)
        text.push_back(static_cast<char>(*letter));
    return text.append(Printed(" %ld %ld %u %x", font.lfHeight, font.lfWeight, font.lfQuality, font.lfPitchAndFamily));
}

std::string ClipText(const EMREXTSELECTCLIPRGN& record) {
    if (record.cbRgnData < sizeof(RGNDATAHEADER)) return {};
    const RECT& box = reinterpret_cast<const RGNDATA*>(record.RgnData)->rdh.rcBound;
    return Printed("clip %ld,%ld,%ld,%ld ", box.left, box.top, box.right, box.bottom);
}

struct State {
    std::string pen = PenText(PS_SOLID, 0, 0), brush = BrushText(BS_SOLID, 0xFFFFFF), font, clip;
    COLORREF textColour = 0, backColour = 0xFFFFFF;
    DWORD align = 0, backMode = OPAQUE, mapMode = MM_TEXT, arcDirection = AD_COUNTERCLOCKWISE;
    SIZEL window{};
    POINTL place{};
};

class Player {
public:
    void Play(const ENHMETARECORD* record);
    Figures figures;

private:
    template <class Record>
    static const Record& As(const ENHMETARECORD* record) {
        return *reinterpret_cast<const Record*>(record);
    }
    template <class Word, class Value>
    static bool Set(Word& word, const Value& value) {
        word = value;
        return true;
    }
    bool PlayState(const ENHMETARECORD* record);
    bool PlayObject(const ENHMETARECORD* record);
    void PlayFigure(const ENHMETARECORD* record);
    void Select(DWORD index);
    bool Restore(LONG steps);
    void AddMapping(const SIZEL& viewport);
    void AddFill(const EMRBITBLT& fill);
    void AddText(const EMREXTTEXTOUTW& record);
    void AddPolygon(const EMRPOLYGON16& polygon);
    void AddArc(const EMRARC& arc);
    void Add(const std::string& figure) { figures.push_back(now_.clip + figure); }
    void AddBox(const char* what, const RECTL& box, const std::string& tools);

    State now_;
    std::vector<State> saved_;
    std::map<DWORD, std::string> objects_;
};

void Player::Play(const ENHMETARECORD* record) {
    if (!PlayState(record) && !PlayObject(record)) PlayFigure(record);
}

bool Player::PlayState(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_SAVEDC:
            saved_.push_back(now_);
            return true;
        case EMR_RESTOREDC:
            return Restore(As<EMRRESTOREDC>(record).iRelative);
        case EMR_SETMAPMODE:
            return Set(now_.mapMode, As<EMRSETMAPMODE>(record).iMode);
        case EMR_SETWINDOWEXTEX:
            return Set(now_.window, As<EMRSETWINDOWEXTEX>(record).szlExtent);
        case EMR_SETTEXTCOLOR:
            return Set(now_.textColour, As<EMRSETTEXTCOLOR>(record).crColor);
        case EMR_SETBKCOLOR:
            return Set(now_.backColour, As<EMRSETTEXTCOLOR>(record).crColor);
        case EMR_SETTEXTALIGN:
            return Set(now_.align, As<EMRSETTEXTALIGN>(record).iMode);
        case EMR_SETBKMODE:
            return Set(now_.backMode, As<EMRSETBKMODE>(record).iMode);
        case EMR_SETARCDIRECTION:
            return Set(now_.arcDirection, As<EMRSETARCDIRECTION>(record).iArcDirection);
        case EMR_MOVETOEX:
            return Set(now_.place, As<EMRMOVETOEX>(record).ptl);
        case EMR_EXTSELECTCLIPRGN:
            return Set(now_.clip, ClipText(As<EMREXTSELECTCLIPRGN>(record)));
        default:
            return false;
    }
}

bool Player::PlayObject(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_CREATEPEN: {
            const auto& [header, index, pen] = As<EMRCREATEPEN>(record);
            return Set(objects_[index], PenText(pen.lopnStyle, pen.lopnWidth.x, pen.lopnColor));
        }
        case EMR_CREATEBRUSHINDIRECT: {
            const auto& [header, index, brush] = As<EMRCREATEBRUSHINDIRECT>(record);
            return Set(objects_[index], BrushText(brush.lbStyle, brush.lbColor));
        }
        case EMR_EXTCREATEFONTINDIRECTW: {
            const auto& made = As<EMREXTCREATEFONTINDIRECTW>(record);
            return Set(objects_[made.ihFont], FontText(made.elfw.elfLogFont));
        }
        case EMR_SELECTOBJECT:
            Select(As<EMRSELECTOBJECT>(record).ihObject);
            return true;
        default:
            return false;
    }
}

bool Player::Restore(LONG steps) {
    for (LONG i = steps; i < 0 && !saved_.empty(); ++i) {
        now_ = saved_.back();
        saved_.pop_back();
    }
    return true;
}

void Player::Select(DWORD index) {
    constexpr DWORD kStock = 0x80000000;
    std::string text;
    if ((index & kStock) == 0) {
        text = objects_[index];
    } else {
        const HGDIOBJ stock = ::GetStockObject(static_cast<int>(index & ~kStock));
        LOGPEN pen{};
        LOGBRUSH brush{};
        if (::GetObjectA(stock, sizeof brush, &brush) == sizeof brush && ::GetObjectType(stock) == OBJ_BRUSH) {
            text = BrushText(brush.lbStyle, brush.lbColor);
        } else if (::GetObjectType(stock) == OBJ_PEN && ::GetObjectA(stock, sizeof pen, &pen) != 0) {
            text = PenText(pen.lopnStyle, pen.lopnWidth.x, pen.lopnColor);
        } else {
            text = " font stock";
        }
    }
    std::string& place = text.starts_with(" pen") ? now_.pen : text.starts_with(" brush") ? now_.brush : now_.font;
    place = text;
}

void Player::PlayFigure(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_SETVIEWPORTEXTEX:
            return AddMapping(As<EMRSETVIEWPORTEXTEX>(record).szlExtent);
        case EMR_BITBLT:
            return AddFill(As<EMRBITBLT>(record));
        case EMR_ELLIPSE:
            return AddBox("ellipse", As<EMRELLIPSE>(record).rclBox, now_.pen + now_.brush);
        case EMR_RECTANGLE:
            return AddBox("rectangle", As<EMRRECTANGLE>(record).rclBox, now_.pen + now_.brush);
        case EMR_ARC:
            return AddArc(As<EMRARC>(record));
        case EMR_POLYGON16:
            return AddPolygon(As<EMRPOLYGON16>(record));
        case EMR_LINETO: {
            const POINTL from = std::exchange(now_.place, As<EMRLINETO>(record).ptl);
            return Add(Printed("line %ld,%ld to %ld,%ld", from.x, from.y, now_.place.x, now_.place.y) + now_.pen);
        }
        case EMR_EXTTEXTOUTW:
            return AddText(As<EMREXTTEXTOUTW>(record));
        case EMR_POLYGON:
        case EMR_CHORD:
        case EMR_PIE:
        case EMR_POLYLINE16:
        case EMR_STRETCHBLT:
            return Add(Printed("unexpected record %lu", record->iType));
        default:
            return;
    }
}

void Player::AddMapping(const SIZEL& viewport) {
    const char* const mode = now_.mapMode == MM_ISOTROPIC     ? "isotropic"
                             : now_.mapMode == MM_ANISOTROPIC ? "anisotropic"
                                                              : "other";
    Add(Printed("mapping %s window %ld,%ld viewport %ld,%ld", mode, now_.window.cx, now_.window.cy, viewport.cx,
                viewport.cy));
}

void Player::AddFill(const EMRBITBLT& fill) {
    Add(Printed("fill %ld,%ld,%ld,%ld", fill.xDest, fill.yDest, fill.xDest + fill.cxDest, fill.yDest + fill.cyDest) +
        now_.brush);
}

void Player::AddBox(const char* what, const RECTL& box, const std::string& tools) {
    Add(Printed("%s %ld,%ld,%ld,%ld", what, box.left, box.top, box.right + 1, box.bottom + 1) + tools);
}

void Player::AddArc(const EMRARC& arc) {
    const char* const direction = now_.arcDirection == AD_COUNTERCLOCKWISE ? "ccw" : "cw";
    AddBox(
        "arc", arc.rclBox,
        Printed(" from %ld,%ld to %ld,%ld %s", arc.ptlStart.x, arc.ptlStart.y, arc.ptlEnd.x, arc.ptlEnd.y, direction) +
            now_.pen);
}

void Player::AddPolygon(const EMRPOLYGON16& polygon) {
    std::string line = "polygon";
    for (DWORD i = 0; i < polygon.cpts; ++i)
        line.append(Printed(" %d,%d", polygon.apts[i].x, polygon.apts[i].y));
    Add(line + now_.pen + now_.brush);
}

void Player::AddText(const EMREXTTEXTOUTW& record) {
    const EMRTEXT& text = record.emrtext;
    const auto* const letters = reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(&record) + text.offString);
    std::string line = Printed("text %ld,%ld align %lu", text.ptlReference.x, text.ptlReference.y, now_.align);
    line.append(now_.font).append(Printed(" colour %06lx ", now_.textColour));
    line.append(now_.backMode == TRANSPARENT ? "transparent: " : Printed("on %06lx: ", now_.backColour));
    for (DWORD i = 0; i < text.nChars; ++i)
        line.push_back(static_cast<char>(letters[i]));
    Add(line);
}

int CALLBACK OnRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM player) {
    reinterpret_cast<Player*>(player)->Play(record);
    return 1;
}

}  // namespace

Figures FiguresOf(const std::function<void(HDC)>& paint) {
    const OwnedFont font = MakeTestFont();
    const HDC dc = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        const SelectGuard selected(dc, font.Get());
        paint(dc);
    }
    const HENHMETAFILE file = ::CloseEnhMetaFile(dc);
    Player player;
    ::EnumEnhMetaFile(nullptr, file, &OnRecord, &player, nullptr);
    ::DeleteEnhMetaFile(file);
    return player.figures;
}

Figures FiguresOfKind(const Figures& figures, const std::string& kind) {
    Figures found;
    std::copy_if(figures.begin(), figures.end(), std::back_inserter(found),
                 [&](const std::string& line) { return line.starts_with(kind + " "); });
    return found;
}

std::string CentredText(const std::string& text, int width, int height, COLORREF colour) {
    const OwnedFont font = MakeTestFont();
    const MemoryDc dc;
    const SelectGuard selected(dc.Get(), font.Get());
    SIZE size{};
    ::GetTextExtentPoint32A(dc.Get(), text.c_str(), static_cast<int>(text.size()), &size);
    return Printed("text %ld,%ld align 0 font Arial -13 400 3 0 colour %06lx transparent: ", (width - size.cx) / 2,
                   (height - size.cy) / 2, colour) +
           text;
}

}  // namespace corvex
