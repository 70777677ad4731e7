#include "views/HistogramPage.h"

#include "controls/tabsheet/TabSheet.h"
#include "definition/ADXHistogram.h"
#include "platform/WindowsApi.h"
#include "views/PageCombo.h"
#include "views/PageDialog.h"
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

SessionState& SessionOf(HWND page) {
    return *reinterpret_cast<SessionState*>(::GetWindowLongPtrA(page, GWLP_USERDATA));
}

void FillStatistics(HWND combo) {
    for (const Statistic& statistic : kStatistics) {
        const LRESULT row = ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(statistic.text));
        ::SendMessageA(combo, CB_SETITEMDATA, static_cast<WPARAM>(row), statistic.mode);
    }
}

// The grid and the chart get the titles and the cells of the histogram on show here.
void BuildHistogramView(HWND page, const ADXHistogram* histogram) {
    if (histogram == nullptr) ::SetDlgItemTextA(page, IDC_HISTOGRAM_GRID, "");
}

void TakeSelections(SessionState& session, HWND page) {
    const HWND combo = ::GetDlgItem(page, IDC_HISTOGRAM_COMBO);
    session.currentHistogram = static_cast<ADXHistogram*>(SelectedObject(combo, session.definition, kTypeHistogram));

    const HWND view = ::GetDlgItem(page, IDC_HISTOGRAM_VIEW);
    const LRESULT row = ::SendMessageA(view, CB_GETCURSEL, 0, 0);
    if (row != CB_ERR) {
        session.currentHistogramView =
            static_cast<std::uint32_t>(::SendMessageA(view, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
    }
    BuildHistogramView(page, session.currentHistogram);
}

void ClearSamples(SessionState& session, HWND page) {
    if (session.currentHistogram != nullptr) session.currentHistogram->Clear();
    BuildHistogramView(page, session.currentHistogram);
}

void ChooseGraph(HWND page) {
    const bool graph = ::IsDlgButtonChecked(page, IDC_HISTOGRAM_GRAPH) == BST_CHECKED;
    ::ShowWindow(::GetDlgItem(page, IDC_HISTOGRAM_CHART), graph ? SW_SHOW : SW_HIDE);
    ::ShowWindow(::GetDlgItem(page, IDC_HISTOGRAM_GRID), graph ? SW_HIDE : SW_SHOW);
}

// Grid and chart have the same place.
void LayOutHistograms(HWND page, int width, int height) {
    const HWND grid = ::GetDlgItem(page, IDC_HISTOGRAM_GRID);
    if (grid == nullptr) return;
    const RECT before = RectInParent(grid);
    ::SetWindowPos(grid, nullptr, 0, 0, width - 2 * before.left, height - before.top - kBottomGap,
                   SWP_NOMOVE | SWP_NOZORDER);
    const RECT now = RectInParent(grid);
    ::SetWindowPos(::GetDlgItem(page, IDC_HISTOGRAM_CHART), nullptr, now.left, now.top, now.right - now.left,
                   now.bottom - now.top, SWP_NOZORDER);
}

void OnHistogramCommand(HWND page, WPARAM wParam) {
    switch (wParam) {
        case MAKEWPARAM(IDC_HISTOGRAM_COMBO, CBN_SELCHANGE):
        case MAKEWPARAM(IDC_HISTOGRAM_VIEW, CBN_SELCHANGE):
            return TakeSelections(SessionOf(page), page);
        case MAKEWPARAM(IDC_HISTOGRAM_CLEAR, BN_CLICKED):
            return ClearSamples(SessionOf(page), page);
        case MAKEWPARAM(IDC_HISTOGRAM_GRAPH, BN_CLICKED):
            return ChooseGraph(page);
        default:
            return;
    }
}

void BeginHistograms(HWND page, LPARAM session) {
    ::SetWindowLongPtrA(page, GWLP_USERDATA, session);
    SessionOf(page).histogramPage = page;
    FillStatistics(::GetDlgItem(page, IDC_HISTOGRAM_VIEW));
    // The grid's first style and size are set here.
}

INT_PTR CALLBACK HistogramProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            BeginHistograms(page, lParam);
            return TRUE;
        case WM_COMMAND:
            OnHistogramCommand(page, wParam);
            return TRUE;
        case WM_SIZE:
            LayOutHistograms(page, LOWORD(lParam), HIWORD(lParam));
            return TRUE;
        case WM_DESTROY:
            SessionOf(page).histogramPage = nullptr;
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void CreateHistogramPage(SessionState& session) {
    const HWND page = TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), &HistogramProcedure,
                                              static_cast<HINSTANCE>(session.instance), IDD_HISTOGRAM_PAGE,
                                              "Histograms", -1, reinterpret_cast<LPARAM>(&session), false);
    RefreshHistogramPage(session);
    ::SendDlgItemMessageA(page, IDC_HISTOGRAM_COMBO, CB_SETCURSEL, 0, 0);
    ::SendDlgItemMessageA(page, IDC_HISTOGRAM_VIEW, CB_SETCURSEL, 0, 0);
}

void RefreshHistogramPage(SessionState& session) {
    const HWND page = static_cast<HWND>(session.histogramPage);
    session.currentHistogram = nullptr;
    if (page == nullptr) return;
    FillPageCombo(::GetDlgItem(page, IDC_HISTOGRAM_COMBO), session.definition, kTypeHistogram);
    TakeSelections(session, page);
}

}  // namespace corvex
