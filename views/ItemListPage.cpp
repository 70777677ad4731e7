#include "views/ItemListPage.h"

#include <memory>
#include <utility>

#include "controls/gauge/GaugeFont.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"
#include "views/DoubleBufferedControl.h"
#include "views/ItemAlarmModel.h"
#include "views/ItemListRows.h"
#include "views/PageCombo.h"
#include "views/PageDialog.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

struct Column {
    const char* header;  // never shown
    int width, format;
};

// The first column can only be aligned left, hence one without width before the values.
constexpr Column kColumns[] = {{"", 0, LVCFMT_LEFT}, {"Value", 100, LVCFMT_RIGHT}, {"Title", 500, LVCFMT_LEFT}};

constexpr int kBoldHeight = 14;

HWND ListOf(HWND page) {
    return ::GetDlgItem(page, IDC_LIST_VIEW);
}

// One for the page's life. The bold font outlives every context that it is selected in.
struct ItemList : ISampleView {
    ItemList(SessionState& owner, HWND window) : session(owner), page(window) {}

    bool WantsSamples() const override { return ::IsWindowVisible(ListOf(page)) != FALSE; }
    // The rows read the session's last packet when they are painted.
    void Read(const PublishedSample&) override {}
    void Draw() override { RepaintRows(ListOf(page)); }

    SessionState& session;
    const HWND page;
    OwnedFont bold = MakeGaugeFont(kBoldHeight);
    HFONT savedRowFont = nullptr;  // what the last bold cell took the place of
    // The row that is being painted: its text and its colour are asked for once each, in an order that differs from one
    // version of the control to the next.
    const ADXLVENTRY* painted = nullptr;
    bool textIsDue = false, lookIsDue = false;
    ValueCell cell{};  // the control reads the text after the handler has returned
};

ItemList* ItemListOf(HWND page) {
    return reinterpret_cast<ItemList*>(::GetWindowLongPtrA(page, GWLP_USERDATA));
}

void InsertColumns(HWND list) {
    ::SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    for (int i = 0; const Column& column : kColumns) {
        LVCOLUMNA words{};
        words.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        words.pszText = const_cast<char*>(column.header);
        words.cx = column.width;
        words.fmt = column.format;
        words.iSubItem = i;
        ::SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(i++), reinterpret_cast<LPARAM>(&words));
    }
}

void ShowChosenList(SessionState& session, HWND page) {
    const HWND combo = ::GetDlgItem(page, IDC_LIST_COMBO);
    session.currentListView = static_cast<ADXListView*>(SelectedObject(combo, session.definition, kTypeListView));
    FillItemList(ListOf(page), session.currentListView);
}

void LayOutItemLists(HWND page) {
    RECT client{};
    ::GetClientRect(page, &client);
    const HWND list = ListOf(page);
    const int height = static_cast<int>(client.bottom - RectInParent(list).top);
    ::SetWindowPos(list, nullptr, 0, 0, client.right, height, SWP_NOMOVE | SWP_NOZORDER);
}

void BeginItemLists(HWND page, LPARAM session) {
    auto state = std::make_unique<ItemList>(*reinterpret_cast<SessionState*>(session), page);
    state->session.listPage = page;
    state->session.views.Register(SampleViewKind::kList, state.get());
    ::SetWindowLongPtrA(page, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(state.release()));
    InsertColumns(ListOf(page));
    MakeDoubleBuffered(ListOf(page));  // every sample repaints it
}

void EndItemLists(HWND page) {
    const std::unique_ptr<ItemList> state(ItemListOf(page));
    ::SetWindowLongPtrA(page, GWLP_USERDATA, 0);
    state->session.views.Register(SampleViewKind::kList, nullptr);
    state->session.listPage = nullptr;
}

void ReadRow(ItemList& state, const ADXLVENTRY& entry) {
    state.cell = ReadValueCell(entry, state.session.definition, state.session.CopyLastPacket());
}

// A row that is painted is read once; whoever asks at any other time is told how it is then.
void BeginRow(ItemList& state, const NMLVCUSTOMDRAW& row) {
    state.painted = EntryOfRow(row.nmcd.hdr.hwndFrom, static_cast<int>(row.nmcd.dwItemSpec));
    if (state.painted == nullptr) return;
    ReadRow(state, *state.painted);
    state.textIsDue = state.lookIsDue = true;
}

void ReadUnlessDue(ItemList& state, const ADXLVENTRY& entry, bool& isDue) {
    const bool wasDue = std::exchange(isDue, false);
    if (!wasDue || state.painted != &entry) ReadRow(state, entry);
}

INT_PTR AnswerText(ItemList& state, LVITEMA& asked) {
    const auto* const entry = reinterpret_cast<const ADXLVENTRY*>(asked.lParam);
    if ((asked.mask & LVIF_TEXT) == 0 || asked.iSubItem != kValueColumn || entry == nullptr) return TRUE;
    ReadUnlessDue(state, *entry, state.textIsDue);
    asked.pszText = state.cell.text;
    return TRUE;
}

// Only a bold cell leaves its font behind: the cells after it have it until one takes the saved font back. A heading's
// bold is saved for too, or all rows would follow the first of them.
void SelectCellFont(ItemList& state, HDC dc, CellFont font) {
    if (font == CellFont::kOrdinary && state.savedRowFont != nullptr) ::SelectObject(dc, state.savedRowFont);
    if (font != CellFont::kBold || !state.bold) return;
    const auto former = static_cast<HFONT>(::SelectObject(dc, state.bold.Get()));
    if (former != state.bold.Get()) state.savedRowFont = former;
}

LONG_PTR DrawCell(ItemList& state, NMLVCUSTOMDRAW& cell) {
    const ADXLVENTRY* const entry = EntryOfRow(cell.nmcd.hdr.hwndFrom, static_cast<int>(cell.nmcd.dwItemSpec));
    if (entry == nullptr) return CDRF_DODEFAULT;
    const bool isValue = cell.iSubItem == kValueColumn;
    if (isValue) ReadUnlessDue(state, *entry, state.lookIsDue);
    const CellLook look = isValue ? state.cell.look : TitleLook(*entry);
    SelectCellFont(state, cell.nmcd.hdc, look.font);
    cell.clrText = look.colour;
    return CDRF_DODEFAULT;
}

LONG_PTR Draw(ItemList& state, NMLVCUSTOMDRAW& draw) {
    switch (draw.nmcd.dwDrawStage) {
        case CDDS_ITEMPREPAINT:
            BeginRow(state, draw);
            return CDRF_NOTIFYITEMDRAW;
        case CDDS_PREPAINT:
            return CDRF_NOTIFYITEMDRAW;
        case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
            return DrawCell(state, draw);
        default:
            return CDRF_DODEFAULT;
    }
}

INT_PTR OnNotify(HWND page, ItemList& state, LPARAM lParam) {
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.idFrom != IDC_LIST_VIEW) return FALSE;
    if (header.code == static_cast<UINT>(LVN_GETDISPINFOA))
        return AnswerText(state, reinterpret_cast<NMLVDISPINFOA*>(lParam)->item);
    if (header.code == static_cast<UINT>(NM_CUSTOMDRAW))
        return DialogResult(page, Draw(state, *reinterpret_cast<NMLVCUSTOMDRAW*>(lParam)));
    return FALSE;
}

INT_PTR CALLBACK ItemListProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        BeginItemLists(page, lParam);
        return FALSE;
    }
    ItemList* const state = ItemListOf(page);
    if (state == nullptr) return FALSE;
    switch (message) {
        case WM_COMMAND:
            if (wParam == MAKEWPARAM(IDC_LIST_COMBO, CBN_SELCHANGE)) ShowChosenList(state->session, page);
            return TRUE;
        case WM_NOTIFY:
            return OnNotify(page, *state, lParam);
        case WM_WINDOWPOSCHANGED:
            state->session.views.Announce();  // it may have been shown or hidden
            return FALSE;
        case WM_SIZE:
            LayOutItemLists(page);
            return TRUE;
        case WM_ERASEBKGND:
            return DialogResult(page, 1);
        case WM_PAINT:
            PaintPageGround(page);
            return TRUE;
        case WM_DESTROY:
            EndItemLists(page);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void CreateItemListPage(SessionState& session) {
    const HWND page = TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), &ItemListProcedure,
                                              static_cast<HINSTANCE>(session.instance), IDD_LIST_PAGE, "Item Lists", -1,
                                              reinterpret_cast<LPARAM>(&session), false);
    if (page == nullptr) return;
    FillItemList(ListOf(page), static_cast<ADXListView*>(session.definition.GetObject(kTypeListView, 0)));
}

void RefreshItemListPage(SessionState& session) {
    const HWND page = static_cast<HWND>(session.listPage);
    session.currentListView = nullptr;
    if (page == nullptr) return;
    // First of all, as the rows point at entries that are gone.
    FillItemList(ListOf(page), nullptr);
    FillPageCombo(::GetDlgItem(page, IDC_LIST_COMBO), session.definition, kTypeListView);
    ShowChosenList(session, page);
}

}  // namespace corvex
