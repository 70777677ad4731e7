#include "tests/controls/gauge/FigureRecorder.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <map>
#include <utility>

namespace corvex {

namespace {

std::string Printed(const char* format, ...) {
    char text[192];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

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

struct State {
    std::string pen = PenText(PS_SOLID, 0, 0), brush = BrushText(BS_SOLID, 0xFFFFFF), font = " font none";
    COLORREF textColour = 0, backColour = 0xFFFFFF;
    DWORD align = 0, backMode = OPAQUE, mapMode = MM_TEXT, arcDirection = AD_COUNTERCLOCKWISE;
    SIZEL window{};
    POINTL place{};
};

class Player {
public:
    void Play(const ENHMETARECORD* record);
    std::vector<std::string> figures;

private:
    template <class Record>
    static const Record& As(const ENHMETARECORD* record) {
        return *reinterpret_cast<const Record*>(record);
    }
    bool PlayState(const ENHMETARECORD* record);
    bool PlayObject(const ENHMETARECORD* record);
    void PlayFigure(const ENHMETARECORD* record);
    void Select(DWORD index);
    void Restore(LONG steps);
    void AddMapping(const SIZEL& viewport);
    void AddFill(const EMRBITBLT& fill);
    void AddText(const EMREXTTEXTOUTW& record);
    void AddPolygon(const EMRPOLYGON16& record);
    void AddArc(const EMRARC& record);
    void Add(const char* what, const RECTL& box, const std::string& tools);

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
            Restore(As<EMRRESTOREDC>(record).iRelative);
            return true;
        case EMR_SETMAPMODE:
            now_.mapMode = As<EMRSETMAPMODE>(record).iMode;
            return true;
        case EMR_SETWINDOWEXTEX:
            now_.window = As<EMRSETWINDOWEXTEX>(record).szlExtent;
            return true;
        case EMR_SETTEXTCOLOR:
            now_.textColour = As<EMRSETTEXTCOLOR>(record).crColor;
            return true;
        case EMR_SETBKCOLOR:
            now_.backColour = As<EMRSETTEXTCOLOR>(record).crColor;
            return true;
        case EMR_SETTEXTALIGN:
            now_.align = As<EMRSETTEXTALIGN>(record).iMode;
            return true;
        case EMR_SETBKMODE:
            now_.backMode = As<EMRSETBKMODE>(record).iMode;
            return true;
        case EMR_SETARCDIRECTION:
            now_.arcDirection = As<EMRSETARCDIRECTION>(record).iArcDirection;
            return true;
        case EMR_MOVETOEX:
            now_.place = As<EMRMOVETOEX>(record).ptl;
            return true;
        default:
            return false;
    }
}

bool Player::PlayObject(const ENHMETARECORD* record) {
    switch (record->iType) {
        case EMR_CREATEPEN: {
            const auto& made = As<EMRCREATEPEN>(record);
            objects_[made.ihPen] = PenText(made.lopn.lopnStyle, made.lopn.lopnWidth.x, made.lopn.lopnColor);
            return true;
        }
        case EMR_CREATEBRUSHINDIRECT: {
            const auto& made = As<EMRCREATEBRUSHINDIRECT>(record);
            objects_[made.ihBrush] = BrushText(made.lb.lbStyle, made.lb.lbColor);
            return true;
        }
        case EMR_EXTCREATEFONTINDIRECTW: {
            const auto& made = As<EMREXTCREATEFONTINDIRECTW>(record);
            objects_[made.ihFont] = FontText(made.elfw.elfLogFont);
            return true;
        }
        case EMR_SELECTOBJECT:
            Select(As<EMRSELECTOBJECT>(record).ihObject);
            return true;
        default:
            return false;
    }
}

void Player::Restore(LONG steps) {
    for (LONG i = steps; i < 0 && !saved_.empty(); ++i) {
        now_ = saved_.back();
        saved_.pop_back();
    }
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
            AddMapping(As<EMRSETVIEWPORTEXTEX>(record).szlExtent);
            break;
        case EMR_BITBLT:
            AddFill(As<EMRBITBLT>(record));
            break;
        case EMR_ELLIPSE:
            Add("ellipse", As<EMRELLIPSE>(record).rclBox, now_.pen + now_.brush);
            break;
        case EMR_RECTANGLE:
            Add("rectangle", As<EMRRECTANGLE>(record).rclBox, now_.pen + now_.brush);
            break;
        case EMR_ARC:
            AddArc(As<EMRARC>(record));
            break;
        case EMR_POLYGON16:
            AddPolygon(As<EMRPOLYGON16>(record));
            break;
        case EMR_LINETO: {
            const POINTL from = std::exchange(now_.place, As<EMRLINETO>(record).ptl);
            figures.push_back(Printed("line %ld,%ld to %ld,%ld", from.x, from.y, now_.place.x, now_.place.y) +
                              now_.pen);
            break;
        }
        case EMR_EXTTEXTOUTW:
            AddText(As<EMREXTTEXTOUTW>(record));
            break;
        case EMR_POLYGON:
        case EMR_CHORD:
        case EMR_PIE:
        case EMR_POLYLINE16:
        case EMR_STRETCHBLT:
            figures.push_back(Printed("unexpected record %lu", record->iType));
            break;
        default:
            break;
    }
}

void Player::AddMapping(const SIZEL& viewport) {
    const char* mode = "other";
    if (now_.mapMode == MM_ISOTROPIC) mode = "isotropic";
    if (now_.mapMode == MM_ANISOTROPIC) mode = "anisotropic";
    figures.push_back(Printed("mapping %s window %ld,%ld viewport %ld,%ld", mode, now_.window.cx, now_.window.cy,
                              viewport.cx, viewport.cy));
}

void Player::AddFill(const EMRBITBLT& fill) {
    figures.push_back(
        Printed("fill %ld,%ld,%ld,%ld", fill.xDest, fill.yDest, fill.xDest + fill.cxDest, fill.yDest + fill.cyDest) +
        now_.brush);
}

void Player::Add(const char* what, const RECTL& box, const std::string& tools) {
    figures.push_back(Printed("%s %ld,%ld,%ld,%ld", what, box.left, box.top, box.right + 1, box.bottom + 1) + tools);
}

void Player::AddArc(const EMRARC& record) {
    const char* const direction = now_.arcDirection == AD_COUNTERCLOCKWISE ? "ccw" : "cw";
    Add("arc", record.rclBox,
        Printed(" from %ld,%ld to %ld,%ld %s", record.ptlStart.x, record.ptlStart.y, record.ptlEnd.x, record.ptlEnd.y,
                direction) +
            now_.pen);
}

void Player::AddPolygon(const EMRPOLYGON16& record) {
    std::string line = "polygon";
    for (DWORD i = 0; i < record.cpts; ++i)
        line.append(Printed(" %d,%d", record.apts[i].x, record.apts[i].y));
    figures.push_back(line + now_.pen + now_.brush);
}

void Player::AddText(const EMREXTTEXTOUTW& record) {
    const auto* const letters =
        reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(&record) + record.emrtext.offString);
    std::string line =
        Printed("text %ld,%ld align %lu", record.emrtext.ptlReference.x, record.emrtext.ptlReference.y, now_.align);
    line.append(now_.font).append(Printed(" colour %06lx ", now_.textColour));
    line.append(now_.backMode == TRANSPARENT ? "transparent: " : Printed("on %06lx: ", now_.backColour));
    for (DWORD i = 0; i < record.emrtext.nChars; ++i)
        line.push_back(static_cast<char>(letters[i]));
    figures.push_back(line);
}

int CALLBACK OnRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM player) {
    reinterpret_cast<Player*>(player)->Play(record);
    return 1;
}

}  // namespace

std::vector<std::string> FiguresOf(const std::function<void(HDC)>& paint) {
    const HDC dc = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    paint(dc);
    const HENHMETAFILE file = ::CloseEnhMetaFile(dc);
    Player player;
    ::EnumEnhMetaFile(nullptr, file, &OnRecord, &player, nullptr);
    ::DeleteEnhMetaFile(file);
    return player.figures;
}

std::vector<std::string> FiguresOfKind(const std::vector<std::string>& figures, const std::string& kind) {
    std::vector<std::string> found;
    std::copy_if(figures.begin(), figures.end(), std::back_inserter(found),
                 [&](const std::string& line) { return line.starts_with(kind + " "); });
    return found;
}

}  // namespace corvex
