#include "views/MonitorPage.h"

#include <utility>

#include "views/PageResources.h"

namespace corvex {

MonitorPage::MonitorPage(SessionState& session)
    : DefinitionPage(session, &SessionState::monitorPage, SampleViewKind::kMonitors, DialogFocus::kFirstControl) {}

// Stacks the charts, each over the whole width. Their menus and the scroll bar belong to this page too.
void MonitorPage::LayOut(int, int) {
    if (charts.empty()) return;
    RECT client{};
    ::GetClientRect(Window(), &client);
    const int height = static_cast<int>(client.bottom) / static_cast<int>(charts.size());
    for (int top = 0; const MonitorChart& chart : charts) {
        ::SetWindowPos(chart.window, nullptr, 0, top, client.right, height, SWP_NOZORDER);
        top += height;
    }
}

void MonitorPage::Refresh() {
    for (const MonitorChart& chart : std::exchange(charts, {}))
        ::DestroyWindow(chart.window);
    // A chart for each monitor of the definition is made here.
}

void MonitorPage::OnEnd() {
    charts.clear();  // their windows go with the page's
    Session().monitorState = nullptr;
}

void CreateMonitorPage(SessionState& session) {
    AddPage<MonitorPage>(session, IDD_MONITOR_PAGE, "Monitors");
    RefreshMonitorPage(session);
}

void RefreshMonitorPage(SessionState& session) {
    if (auto* const page = PageOf<MonitorPage>(session.monitorPage)) page->Refresh();
}

}  // namespace corvex
