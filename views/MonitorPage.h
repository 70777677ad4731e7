// The "Monitors" tab: every monitor of the definition as a strip chart, one under the other.
#pragma once

#include <vector>

#include "definition/ADXMonitor.h"
#include "platform/WindowsApi.h"
#include "session/SessionState.h"

namespace corvex {

// One strip chart and what it shows. Its time axis has its place here too.
struct MonitorChart {
    HWND window = nullptr;
    ADXMonitor* monitor = nullptr;  // not owned
};

// What session.monitorState points at. Main thread.
struct MonitorPage {
    HWND window = nullptr;             // null before and after the page
    std::vector<MonitorChart> charts;  // in definition order, from top to bottom
    SessionState* session = nullptr;
};

// Adds the page to session.tabSheet and makes session.monitorState. Once. Main thread, like the next.
void CreateMonitorPage(SessionState& session);
// After every change of the definition, before a message is waited for: the charts go and new ones come.
void RefreshMonitorPage(SessionState& session);

}  // namespace corvex
