#include "views/HistogramPage.h"

#include <utility>
#include <vector>

#include "controls/window/Clipboard.h"
#include "definition/HistogramFeed.h"
#include "session/Colours.h"
#include "views/ChosenObject.h"
#include "views/CopyKey.h"
#include "views/DefinitionPage.h"
#include "views/HistogramSurface.h"
#include "views/HistogramTable.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

constexpr int kBottomGap = 3;             // pixels under the table
constexpr std::uint32_t kTitlePart = 60;  // characters of each title in that of the table

std::string TitleOf(const ADXObject& object) {
    char title[kTitlePart + 1] = {};
    object.GetTitle(title, sizeof title);
    return title;
}

class HistogramPage final : public DefinitionPage {
public:
    explicit HistogramPage(SessionState& session)
        : DefinitionPage(session, &SessionState::histogramPage, SampleViewKind::kHistograms,
                         DialogFocus::kFirstControl),
          chosen_(*this, IDC_HISTOGRAM_COMBO, kTypeHistogram, &SessionState::currentHistogram) {}

    void Refresh();

    // While there is a histogram, whichever tab is in front and whichever is on show: all of them gather.
    bool WantsSamples() const override { return feed_ && !feed_->All().empty(); }
    void Read(const PublishedSample& sample) override;
    void Draw() override;

private:
    void OnInit() override;
    void LayOut(int width, int height) override;
    void OnCommand(unsigned control, unsigned code, LPARAM lParam) override;
    void OnEnd() override { feed_.reset(); }
    HistogramTable Table() const { return HistogramTable(Item(IDC_HISTOGRAM_GRID)); }
    int Mode() const { return static_cast<int>(Session().currentHistogramView); }
    void TakeView();
    void BuildHistogramView();
    void ClearSamples();
    void ChooseGraph();
    void Copy();

    ChosenObject<ADXHistogram> chosen_;
    HistogramSurface surface_;
    std::optional<HistogramFeed> feed_;    // of the definition's histograms as Refresh has found them
    std::vector<HistogramCell> hits_;      // of the histogram on show, since the last draw
    const ADXHistogram* built_ = nullptr;  // whose cells the table shows; never followed
};

void HistogramPage::OnInit() {
    const HWND view = Item(IDC_HISTOGRAM_VIEW);
    for (const HistogramStatistic& statistic : kHistogramStatistics) {
        const LRESULT row = ::SendMessageA(view, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(statistic.title));
        ::SendMessageA(view, CB_SETITEMDATA, static_cast<WPARAM>(row), statistic.mode);
    }
    Table().Begin();
    TakeCopyKey(Item(IDC_HISTOGRAM_GRID), [this] { Copy(); });
    surface_.Begin(Item(IDC_HISTOGRAM_CHART));
}

void HistogramPage::BuildHistogramView() {
    const ADXHistogram* const histogram = chosen_.Get();
    hits_.clear();
    // The mark is that of one histogram's last sample.
    if (std::exchange(built_, histogram) != histogram) Table().Mark(std::nullopt);
    const std::string title = histogram == nullptr ? "" : HistogramTitle(*histogram, &TitleOf);
    Table().Show(histogram, title, Mode());
    surface_.Show(histogram, title, Mode());
}

void HistogramPage::TakeView() {
    const HWND view = Item(IDC_HISTOGRAM_VIEW);
    const LRESULT row = ::SendMessageA(view, CB_GETCURSEL, 0, 0);
    if (row == CB_ERR) return;
    Session().currentHistogramView =
        static_cast<std::uint32_t>(::SendMessageA(view, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

void HistogramPage::Refresh() {
    feed_.emplace(Definition());
    built_ = nullptr;
    chosen_.Offer();
    TakeView();
    BuildHistogramView();
    Session().views.Announce();
}

// The sample is the session's last packet: on the 160-baud path that is the one before this reply's.
void HistogramPage::Read(const PublishedSample& sample) {
    feed_->Update(sample.last.View(), sample.last.command, sample.commandId);
    for (const FedHistogram& fed : feed_->All()) {
        if (fed.histogram == chosen_.Get() && fed.hit) hits_.push_back(*fed.hit);
    }
}

void HistogramPage::Draw() {
    const ADXHistogram* const histogram = chosen_.Get();
    if (histogram == nullptr || hits_.empty()) return;
    for (const HistogramCell& hit : hits_) {
        Table().ShowCell(*histogram, hit, Mode());
        surface_.ShowCell(*histogram, hit, Mode());
    }
    Table().Mark(hits_.back());
    hits_.clear();
}

void HistogramPage::ClearSamples() {
    if (chosen_.Get() != nullptr) chosen_.Get()->Clear();
    Table().Mark(std::nullopt);
    BuildHistogramView();
}

void HistogramPage::ChooseGraph() {
    const bool graph = ::IsDlgButtonChecked(Window(), IDC_HISTOGRAM_GRAPH) == BST_CHECKED;
    ::ShowWindow(Item(IDC_HISTOGRAM_CHART), graph ? SW_SHOW : SW_HIDE);
    ::ShowWindow(Item(IDC_HISTOGRAM_GRID), graph ? SW_HIDE : SW_SHOW);
}

void HistogramPage::Copy() {
    const ADXHistogram* const histogram = chosen_.Get();
    if (histogram == nullptr || histogram->GetRows() == 0 || histogram->GetCols() == 0) return;
    const std::string text = HistogramClipboardText(*histogram, Mode(), Table().Selection(*histogram));
    if (PutOnClipboard(Window(), text)) return;
    Session().Say("Unable to copy: another program has the clipboard open, or memory is short", "Nothing was copied",
                  kRed);
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
