#include "views/DashPage.h"

#include <memory>

#include "controls/tabsheet/TabSheet.h"
#include "views/PageCombo.h"
#include "views/PageDialog.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

constexpr LONG kComboGap = 3;  // pixels between the combo box and the gauges

// Each gauge gets its place, in percent of the area, here.
void LayOut(DashPage& state) {
    RECT client{};
    ::GetClientRect(state.window, &client);
    const RECT combo = RectInParent(::GetDlgItem(state.window, IDC_DASH_COMBO));
    state.area = {client.left, client.top + combo.bottom + kComboGap, client.right, client.bottom};
}

void TakeSelection(SessionState& session, HWND page) {
    const HWND combo = ::GetDlgItem(page, IDC_DASH_COMBO);
    session.currentDashboard = static_cast<ADXDashboard*>(SelectedObject(combo, session.definition, kTypeDashboard));
    ShowDashboard(session.currentDashboard, page);
    ::SendMessageA(page, WM_SIZE, 0, 0);
}

void Begin(HWND page, LPARAM session) {
    auto state = std::make_unique<DashPage>();
    state->window = page;
    state->session = reinterpret_cast<SessionState*>(session);
    ::SetWindowLongPtrA(page, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(state.release()));
}

void End(HWND page) {
    const std::unique_ptr<DashPage> state(DashPageOf(page));
    ::SetWindowLongPtrA(page, GWLP_USERDATA, 0);
    if (state != nullptr) state->session->dashPage = nullptr;
}

INT_PTR CALLBACK DashProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        Begin(page, lParam);
        return FALSE;
    }
    DashPage* const state = DashPageOf(page);
    if (state == nullptr) return FALSE;
    switch (message) {
        case WM_SIZE:
            LayOut(*state);
            return TRUE;
        case WM_COMMAND:
            if (wParam == MAKEWPARAM(IDC_DASH_COMBO, CBN_SELCHANGE)) TakeSelection(*state->session, page);
            return TRUE;
        case WM_ERASEBKGND:
            return DialogResult(page, 1);
        case WM_PAINT:
            PaintPageGround(page);
            return TRUE;
        case WM_DESTROY:
            End(page);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void CreateDashPage(SessionState& session) {
    const HWND page = TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), &DashProcedure,
                                              static_cast<HINSTANCE>(session.instance), IDD_DASH_PAGE, "Dash", -1,
                                              reinterpret_cast<LPARAM>(&session), false);
    session.dashPage = page;
    if (page == nullptr) return;
    ShowDashboard(static_cast<ADXDashboard*>(session.definition.GetObject(kTypeDashboard, 0)), page);
    ::SendMessageA(page, WM_SIZE, 0, 0);
}

void RefreshDashPage(SessionState& session) {
    const HWND page = static_cast<HWND>(session.dashPage);
    session.currentDashboard = nullptr;
    if (page == nullptr) return;
    FillPageCombo(::GetDlgItem(page, IDC_DASH_COMBO), session.definition, kTypeDashboard);
    TakeSelection(session, page);
}

// The gauge windows of the former dashboard go, and those of the new one are made and bound to their items, here.
void ShowDashboard(ADXDashboard* dashboard, HWND page) {
    if (DashPage* const state = DashPageOf(page)) state->dashboard = dashboard;
}

DashPage* DashPageOf(HWND page) {
    const auto procedure = ::GetWindowLongPtrA(page, DWLP_DLGPROC);
    if (procedure != reinterpret_cast<LONG_PTR>(&DashProcedure)) return nullptr;
    return reinterpret_cast<DashPage*>(::GetWindowLongPtrA(page, GWLP_USERDATA));
}

bool IsDashVisible(const SessionState& session) {
    const HWND page = static_cast<HWND>(session.dashPage);
    return page != nullptr && ::IsWindowVisible(page) != FALSE && DashPageOf(page) != nullptr;
}

}  // namespace corvex
