#include "views/HistogramPage.h"

#include "definition/ADXHistogram.h"
#include "views/ChosenObject.h"
#include "views/DefinitionPage.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

struct Statistic {
    const char* text;
    ADXHistogram::CellMode mode;
};

constexpr Statistic kStatistics[] = {
    {"Most Recent Sample", ADXHistogram::kLast},
    {"History Average", ADXHistogram::kMeanKept},
    {"History Std Deviation", ADXHistogram::kDeviationKept},
    {"History Sample Count", ADXHistogram::kCountKept},
    {"Running Average", ADXHistogram::kMeanTotal},
    {"Running Sample Count", ADXHistogram::kCountTotal},
    {"Running Minimum", ADXHistogram::kMinimum},
    {"Running Maximum", ADXHistogram::kMaximum},
    {"Running Range", ADXHistogram::kRange},
};

constexpr int kBottomGap = 3;  // pixels under the table

class HistogramPage final : public DefinitionPage {
public:
    explicit HistogramPage(SessionState& session)
        : DefinitionPage(session, &SessionState::histogramPage, SampleViewKind::kHistograms,
                         DialogFocus::kFirstControl),
          chosen_(*this, IDC_HISTOGRAM_COMBO, kTypeHistogram, &SessionState::currentHistogram) {}

    void Refresh();

private:
    void OnInit() override;
    void LayOut(int width, int height) override;
    void OnCommand(unsigned control, unsigned code, LPARAM lParam) override;
    void TakeView();
    void BuildHistogramView();
    void ClearSamples();
    void ChooseGraph();

    ChosenObject<ADXHistogram> chosen_;
};

// The grid's first style and size are set here.
void HistogramPage::OnInit() {
    const HWND view = Item(IDC_HISTOGRAM_VIEW);
    for (const Statistic& statistic : kStatistics) {
        const LRESULT row = ::SendMessageA(view, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(statistic.text));
        ::SendMessageA(view, CB_SETITEMDATA, static_cast<WPARAM>(row), statistic.mode);
    }
}

// The grid and the chart get the titles and the cells of the histogram on show here.
void HistogramPage::BuildHistogramView() {
    if (chosen_.Get() == nullptr) ::SetDlgItemTextA(Window(), IDC_HISTOGRAM_GRID, "");
}

void HistogramPage::TakeView() {
    const HWND view = Item(IDC_HISTOGRAM_VIEW);
    const LRESULT row = ::SendMessageA(view, CB_GETCURSEL, 0, 0);
    if (row == CB_ERR) return;
    Session().currentHistogramView =
        static_cast<std::uint32_t>(::SendMessageA(view, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

void HistogramPage::Refresh() {
    chosen_.Offer();
    TakeView();
    BuildHistogramView();
}

void HistogramPage::ClearSamples() {
    if (chosen_.Get() != nullptr) chosen_.Get()->Clear();
    BuildHistogramView();
}

void HistogramPage::ChooseGraph() {
    const bool graph = ::IsDlgButtonChecked(Window(), IDC_HISTOGRAM_GRAPH) == BST_CHECKED;
    ::ShowWindow(Item(IDC_HISTOGRAM_CHART), graph ? SW_SHOW : SW_HIDE);
    ::ShowWindow(Item(IDC_HISTOGRAM_GRID), graph ? SW_HIDE : SW_SHOW);
}

// Grid and chart have the same place.
void HistogramPage::LayOut(int width, int height) {
    const HWND grid = Item(IDC_HISTOGRAM_GRID);
    if (grid == nullptr) return;
    const RECT before = RectInParent(grid);
    ::SetWindowPos(grid, nullptr, 0, 0, width - 2 * before.left, height - before.top - kBottomGap,
                   SWP_NOMOVE | SWP_NOZORDER);
    const RECT now = RectInParent(grid);
    ::SetWindowPos(Item(IDC_HISTOGRAM_CHART), nullptr, now.left, now.top, now.right - now.left, now.bottom - now.top,
                   SWP_NOZORDER);
}

void HistogramPage::OnCommand(unsigned control, unsigned code, LPARAM) {
    switch (MAKEWPARAM(control, code)) {
        case MAKEWPARAM(IDC_HISTOGRAM_COMBO, CBN_SELCHANGE):
        case MAKEWPARAM(IDC_HISTOGRAM_VIEW, CBN_SELCHANGE):
            chosen_.Take();
            TakeView();
            return BuildHistogramView();
        case MAKEWPARAM(IDC_HISTOGRAM_CLEAR, BN_CLICKED):
            return ClearSamples();
        case MAKEWPARAM(IDC_HISTOGRAM_GRAPH, BN_CLICKED):
            return ChooseGraph();
        default:
            return;
    }
}

}  // namespace

void CreateHistogramPage(SessionState& session) {
    const HWND page = AddPage<HistogramPage>(session, IDD_HISTOGRAM_PAGE, "Histograms");
    RefreshHistogramPage(session);
    ::SendDlgItemMessageA(page, IDC_HISTOGRAM_COMBO, CB_SETCURSEL, 0, 0);
    ::SendDlgItemMessageA(page, IDC_HISTOGRAM_VIEW, CB_SETCURSEL, 0, 0);
}

void RefreshHistogramPage(SessionState& session) {
    session.currentHistogram = nullptr;
    if (auto* const page = PageOf<HistogramPage>(session.histogramPage)) page->Refresh();
}

}  // namespace corvex
