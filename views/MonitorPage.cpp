#include "views/MonitorPage.h"

#include <memory>
#include <utility>

#include "controls/tabsheet/TabSheet.h"
#include "views/PageResources.h"

namespace corvex {

namespace {

MonitorPage& MonitorPageOf(HWND page) {
    return *reinterpret_cast<MonitorPage*>(::GetWindowLongPtrA(page, GWLP_USERDATA));
}

void BeginMonitors(HWND page, LPARAM state) {
    ::SetWindowLongPtrA(page, GWLP_USERDATA, state);
    MonitorPageOf(page).window = page;
    MonitorPageOf(page).session->monitorPage = page;
}

void EndMonitors(HWND page) {
    MonitorPageOf(page).window = nullptr;
    MonitorPageOf(page).charts.clear();  // their windows go with the page's
    MonitorPageOf(page).session->monitorPage = nullptr;
}

// Stacks the charts, each over the whole width.
void StackCharts(const MonitorPage& state) {
    if (state.charts.empty()) return;
    RECT client{};
    ::GetClientRect(state.window, &client);
    const int height = static_cast<int>(client.bottom) / static_cast<int>(state.charts.size());
    for (int top = 0; const MonitorChart& chart : state.charts) {
        ::SetWindowPos(chart.window, nullptr, 0, top, client.right, height, SWP_NOZORDER);
        top += height;
    }
}

// The charts' menus and the scroll bar belong here.
INT_PTR CALLBACK MonitorProcedure(HWND page, UINT message, WPARAM /*wParam*/, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            BeginMonitors(page, lParam);
            return TRUE;
        case WM_SIZE:
            StackCharts(MonitorPageOf(page));
            return TRUE;
        case WM_DESTROY:
            EndMonitors(page);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void CreateMonitorPage(SessionState& session) {
    const auto state = std::make_shared<MonitorPage>();
    state->session = &session;
    session.monitorState = state;
    TabSheet::addDialogPage(static_cast<HWND>(session.tabSheet), &MonitorProcedure,
                            static_cast<HINSTANCE>(session.instance), IDD_MONITOR_PAGE, "Monitors", -1,
                            reinterpret_cast<LPARAM>(state.get()), false);
    RefreshMonitorPage(session);
}

void RefreshMonitorPage(SessionState& session) {
    auto* const state = static_cast<MonitorPage*>(session.monitorState.get());
    if (state == nullptr) return;
    for (const MonitorChart& chart : std::exchange(state->charts, {}))
        ::DestroyWindow(chart.window);
    // A chart for each monitor of session.definition is made here.
}

}  // namespace corvex
