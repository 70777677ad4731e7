#include "controls/grid/GridMessages.h"

#include "controls/grid/Grid.h"
#include "controls/grid/GridTextModel.h"

namespace corvex {

namespace {

std::uint32_t Word(WPARAM value) {
    return static_cast<std::uint32_t>(value);
}
std::uint32_t Word(LPARAM value) {
    return static_cast<std::uint32_t>(value);
}
int Index(WPARAM value) {
    return value > GridAxis::kLargest ? -1 : static_cast<int>(value);
}
int Pixels(LPARAM value) {
    return value > GridAxis::kLargest ? GridAxis::kLargest : value < 0 ? 0 : static_cast<int>(value);
}

// Each operation hands on what it does not know, down to the cells'.
class Answerer {
public:
    Answerer(GridMachine& machine, GridWindowHost& host) : machine_(machine), host_(host) {}
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    LRESULT OnSelectionMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnLookMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnCellMessage(UINT message, std::uint32_t cell, LPARAM lParam);
    LRESULT OnFoundCell(UINT message, GridCell& found, std::uint32_t cell, LPARAM lParam);
    static void Change(UINT message, GridCell& found, std::uint32_t value);

    GridMachine& machine_;
    GridModel& grid_ = machine_.grid;
    GridWindowHost& host_;
};

LRESULT Answerer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case GRM_SETSTYLE:
            machine_.SetStyle(Word(wParam), lParam != 0);
            return 0;
        case GRM_GETSTYLE:
            return static_cast<LRESULT>(grid_.style);
        case GRM_CLEARSTYLE:
            machine_.ClearStyle(Word(wParam), lParam != 0);
            return 0;
        case GRM_CLEARALL:
            machine_.ClearAll();
            return 0;
        case GRM_SETSIZE:
            machine_.SetSize(Word(wParam), Word(lParam));
            return 0;
        case GRM_GETROWS:
            return grid_.rows.Last();
        case GRM_GETCOLS:
            return grid_.columns.Last();
        case GRM_CLEARCHANGED:
            machine_.ClearChanged(lParam != 0);
            return 0;
        case GRM_ISMODIFIED:
            return grid_.Is(kGridModified) ? 1 : 0;
        case GRM_SETMODIFIED:
            grid_.Set(kGridModified, wParam != 0);
            return 0;
        case GRM_REPAINT:
            host_.Repaint();
            return 0;
        case GRM_RESERVED:
            return 0;
        default:
            return OnSelectionMessage(message, wParam, lParam);
    }
}

LRESULT Answerer::OnSelectionMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case GRM_SETCURSOR:
            machine_.SetCursor(Word(wParam), Word(lParam));
            return 0;
        case GRM_GETCURSORROW:
            return grid_.rows.cursor;
        case GRM_GETCURSORCOL:
            return grid_.columns.cursor;
        case GRM_GETSELECTION:
            if (wParam != 0) *reinterpret_cast<std::uint32_t*>(wParam) = grid_.AnchorCell();
            if (lParam != 0) *reinterpret_cast<std::uint32_t*>(lParam) = grid_.CursorCell();
            return 1;
        case GRM_SETSELECTION:
            machine_.SetSelection(Word(wParam), Word(lParam));
            return 0;
        case GRM_SETOVERLAY:
            machine_.SetOverlay(Word(wParam), Word(lParam));
            return 0;
        case GRM_COPY:
            machine_.keys.Copy();
            return 0;
        case GRM_PASTE:
            machine_.keys.Paste();
            return 0;
        default:
            return OnLookMessage(message, wParam, lParam);
    }
}

LRESULT Answerer::OnLookMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case GRM_SETCOLWIDTH:
            machine_.SetColumnWidth(Index(wParam), Pixels(lParam));
            return 0;
        case GRM_GETCOLWIDTH:
            return grid_.columns.Size(Index(wParam));
        case GRM_SETROWHEIGHT:
            machine_.SetRowHeight(Index(wParam), Pixels(lParam));
            return 0;
        case GRM_GETROWHEIGHT:
            return grid_.rows.Size(Index(wParam));
        case GRM_SETTITLEHEIGHT:
            machine_.SetTitleHeight(Pixels(static_cast<LPARAM>(wParam)));
            return 0;
        case GRM_SETTITLEFONT:
            host_.Adopt(GridFont::kTitle, reinterpret_cast<HFONT>(wParam));
            return 0;
        case GRM_SETHEADINGFONT:
            host_.Adopt(GridFont::kHeading, reinterpret_cast<HFONT>(wParam));
            return 0;
        case GRM_SETCOLOR:
            machine_.SetColour(Word(wParam), Word(lParam));
            return 0;
        case GRM_GETCOLOR:
            return static_cast<LRESULT>(machine_.Colour(Word(wParam)));
        default:
            return OnCellMessage(message, Word(wParam), lParam);
    }
}

LRESULT Answerer::OnCellMessage(UINT message, std::uint32_t cell, LPARAM lParam) {
    if (message == GRM_PUTCELL) {
        const auto* const text = reinterpret_cast<const char*>(lParam);
        return machine_.editor.Store(cell, text == nullptr ? "" : text) ? 1 : 0;
    }
    if (GridCell* const found = machine_.Find(cell)) return OnFoundCell(message, *found, cell, lParam);
    return message == GRM_SETPROTECT || message == GRM_GETPROTECT ? -1 : 0;
}

LRESULT Answerer::OnFoundCell(UINT message, GridCell& found, std::uint32_t cell, LPARAM lParam) {
    switch (message) {
        case GRM_GETCELL: {
            if (lParam == 0) return 0;
            const std::string_view text = found.Text();
            auto* const buffer = reinterpret_cast<char*>(lParam);
            text.copy(buffer, text.size());
            buffer[text.size()] = '\0';
            return 1;
        }
        case GRM_GETCELLTEXTLENGTH:
            return static_cast<LRESULT>(found.Text().size());
        case GRM_GETCELLTYPE:
            return static_cast<LRESULT>(GridTypeOf(found.Text()));
        case GRM_GETPROTECT:
            return found.IsProtected() ? 1 : 0;
        case GRM_GETCHANGED:
            return found.IsChanged() ? 1 : 0;
        case GRM_GETCELLFILL:
            return static_cast<LRESULT>(found.Fill());
        case GRM_GETCELLTEXTCOLOR:
            return static_cast<LRESULT>(found.TextColour());
        case GRM_GETALIGN:
            return static_cast<LRESULT>(found.Align());
        case GRM_GETCELLRECT: {
            if (lParam == 0) return 0;
            const GridBox box = grid_.CellBox(RowOfCell(cell), ColumnOfCell(cell));
            *reinterpret_cast<RECT*>(lParam) = {box.left, box.top, box.right, box.bottom};
            return 1;
        }
        default:
            Change(message, found, Word(lParam));
            machine_.Changed(cell);
            return 0;
    }
}

void Answerer::Change(UINT message, GridCell& found, std::uint32_t value) {
    switch (message) {
        case GRM_SETPROTECT:
            found.SetProtected(value != 0);
            break;
        case GRM_SETCHANGED:
            found.SetChanged(value != 0);
            break;
        case GRM_SETCELLFILL:
            found.SetFill(value);
            break;
        case GRM_SETCELLTEXTCOLOR:
            found.SetTextColour(value);
            break;
        case GRM_SETALIGN:
            found.SetAlign(value);
            break;
        default:
            break;
    }
}

}  // namespace

LRESULT AnswerGridMessage(GridMachine& machine, GridWindowHost& host, UINT message, WPARAM wParam, LPARAM lParam) {
    return Answerer(machine, host).OnMessage(message, wParam, lParam);
}

}  // namespace corvex
