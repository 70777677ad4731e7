// The "Monitors" tab: every monitor of the definition as a strip chart, one under the other.
#pragma once

#include <vector>

#include "definition/ADXMonitor.h"
#include "views/DefinitionPage.h"

namespace corvex {

// One strip chart and what it shows. Its time axis has its place here too.
struct MonitorChart {
    HWND window = nullptr;
    ADXMonitor* monitor = nullptr;  // not owned
};

// What session.monitorState points at, as long as its window is there.
class MonitorPage final : public DefinitionPage {
public:
    explicit MonitorPage(SessionState& session);

    void Refresh();

    std::vector<MonitorChart> charts;  // in definition order, from top to bottom; the page's children

private:
    void OnInit() override { Session().monitorState = this; }
    void LayOut(int width, int height) override;
    void OnEnd() override;
};

// Adds the page to session.tabSheet. Once. Main thread, like the next.
void CreateMonitorPage(SessionState& session);
// After every change of the definition, before a message is waited for: the charts go and new ones come.
void RefreshMonitorPage(SessionState& session);

}  // namespace corvex
