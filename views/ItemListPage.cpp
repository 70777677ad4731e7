#include "views/ItemListPage.h"

#include <utility>

#include "controls/gauge/GaugeFont.h"
#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"
#include "views/ChosenObject.h"
#include "views/DefinitionPage.h"
#include "views/DoubleBufferedControl.h"
#include "views/ItemAlarmModel.h"
#include "views/ItemListRows.h"
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

void InsertColumns(HWND list) {
    ::SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    for (int i = 0; const Column& column : kColumns) {
        LVCOLUMNA added{};
        added.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        added.pszText = const_cast<char*>(column.header);
        added.cx = column.width;
        added.fmt = column.format;
        added.iSubItem = i;
        ::SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(i++), reinterpret_cast<LPARAM>(&added));
    }
}

// The bold font outlives every context that it is selected in.
class ItemListPage final : public DefinitionPage {
public:
    explicit ItemListPage(SessionState& session)
        : DefinitionPage(session, &SessionState::listPage, SampleViewKind::kList, DialogFocus::kUntouched),
          chosen_(*this, IDC_LIST_COMBO, kTypeListView, &SessionState::currentListView) {}

    void Refresh();
    void Fill(const ADXListView* list) const { FillItemList(List(), list); }

    bool WantsSamples() const override { return ::IsWindowVisible(List()) != FALSE; }
    // The rows read the session's last packet when they are painted.
    void Draw() override { RepaintRows(List()); }

private:
    void OnInit() override;
    void LayOut(int width, int height) override;
    void OnCommand(unsigned control, unsigned code, LPARAM lParam) override;
    DialogAnswer OnNotify(NMHDR& header) override;
    HWND List() const { return Item(IDC_LIST_VIEW); }
    void ReadRow(const ADXLVENTRY& entry);
    void BeginRow(const NMLVCUSTOMDRAW& row);
    void ReadUnlessDue(const ADXLVENTRY& entry, bool& isDue);
    void AnswerText(LVITEMA& asked);
    LONG_PTR OnCustomDraw(NMLVCUSTOMDRAW& draw);
    void DrawCell(NMLVCUSTOMDRAW& cell);
    void SelectCellFont(HDC dc, CellFont font);

    ChosenObject<ADXListView> chosen_;
    OwnedFont bold_ = MakeGaugeFont(kBoldHeight);
    HFONT savedRowFont_ = nullptr;  // what the last bold cell took the place of
    // The row that is being painted: its text and its colour are asked for once each, in an order that differs from one
    // version of the control to the next.
    const ADXLVENTRY* painted_ = nullptr;
    bool textIsDue_ = false, lookIsDue_ = false;
    ValueCell cell_{};  // the control reads the text after the handler has returned
};

void ItemListPage::OnInit() {
    InsertColumns(List());
    MakeDoubleBuffered(List());  // every sample repaints it
}

void ItemListPage::LayOut(int, int) {
    RECT client{};
    ::GetClientRect(Window(), &client);
    const int height = static_cast<int>(client.bottom - RectInParent(List()).top);
    ::SetWindowPos(List(), nullptr, 0, 0, client.right, height, SWP_NOMOVE | SWP_NOZORDER);
}

// The rows go first of all, as they point at entries that are gone.
void ItemListPage::Refresh() {
    Fill(nullptr);
    Fill(chosen_.Offer());
}

void ItemListPage::OnCommand(unsigned control, unsigned code, LPARAM) {
    if (control == IDC_LIST_COMBO && code == CBN_SELCHANGE) Fill(chosen_.Take());
}

void ItemListPage::ReadRow(const ADXLVENTRY& entry) {
    cell_ = ReadValueCell(entry, Definition(), Session().CopyLastPacket());
}

// A row that is painted is read once; whoever asks at any other time is told how it is then.
void ItemListPage::BeginRow(const NMLVCUSTOMDRAW& row) {
    painted_ = EntryOfRow(List(), static_cast<int>(row.nmcd.dwItemSpec));
    if (painted_ == nullptr) return;
    ReadRow(*painted_);
    textIsDue_ = lookIsDue_ = true;
}

void ItemListPage::ReadUnlessDue(const ADXLVENTRY& entry, bool& isDue) {
    const bool wasDue = std::exchange(isDue, false);
    if (!wasDue || painted_ != &entry) ReadRow(entry);
}

void ItemListPage::AnswerText(LVITEMA& asked) {
    const auto* const entry = reinterpret_cast<const ADXLVENTRY*>(asked.lParam);
    if ((asked.mask & LVIF_TEXT) == 0 || asked.iSubItem != kValueColumn || entry == nullptr) return;
    ReadUnlessDue(*entry, textIsDue_);
    asked.pszText = cell_.text;
}

// Only a bold cell leaves its font behind: the cells after it have it until one takes the saved font back. A heading's
// bold is saved for too, or all rows would follow the first of them.
void ItemListPage::SelectCellFont(HDC dc, CellFont font) {
    if (font == CellFont::kOrdinary && savedRowFont_ != nullptr) ::SelectObject(dc, savedRowFont_);
    if (font != CellFont::kBold || !bold_) return;
    const auto former = static_cast<HFONT>(::SelectObject(dc, bold_.Get()));
    if (former != bold_.Get()) savedRowFont_ = former;
}

void ItemListPage::DrawCell(NMLVCUSTOMDRAW& cell) {
    const ADXLVENTRY* const entry = EntryOfRow(List(), static_cast<int>(cell.nmcd.dwItemSpec));
    if (entry == nullptr) return;
    const bool isValue = cell.iSubItem == kValueColumn;
    if (isValue) ReadUnlessDue(*entry, lookIsDue_);
    const CellLook look = isValue ? cell_.look : TitleLook(*entry);
    SelectCellFont(cell.nmcd.hdc, look.font);
    cell.clrText = look.colour;
}

LONG_PTR ItemListPage::OnCustomDraw(NMLVCUSTOMDRAW& draw) {
    switch (draw.nmcd.dwDrawStage) {
        case CDDS_ITEMPREPAINT:
            BeginRow(draw);
            return CDRF_NOTIFYITEMDRAW;
        case CDDS_PREPAINT:
            return CDRF_NOTIFYITEMDRAW;
        case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
            DrawCell(draw);
            return CDRF_DODEFAULT;
        default:
            return CDRF_DODEFAULT;
    }
}

DialogAnswer ItemListPage::OnNotify(NMHDR& header) {
    if (header.idFrom != IDC_LIST_VIEW) return {};
    if (header.code == static_cast<UINT>(LVN_GETDISPINFOA)) {
        AnswerText(reinterpret_cast<NMLVDISPINFOA&>(header).item);
        return 0;
    }
    if (header.code != static_cast<UINT>(NM_CUSTOMDRAW)) return {};
    return OnCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
}

}  // namespace

void CreateItemListPage(SessionState& session) {
    const HWND window = AddPage<ItemListPage>(session, IDD_LIST_PAGE, "Item Lists");
    if (auto* const page = PageOf<ItemListPage>(window))
        page->Fill(As<ADXListView>(session.definition.GetObject(kTypeListView, 0)));
}

void RefreshItemListPage(SessionState& session) {
    session.currentListView = nullptr;
    if (auto* const page = PageOf<ItemListPage>(session.listPage)) page->Refresh();
}

}  // namespace corvex
