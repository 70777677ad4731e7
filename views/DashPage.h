// The "Dash" tab: one dashboard of the definition as a free layout of gauges.
#pragma once

#include <vector>

#include "definition/ADXDashboard.h"
#include "platform/WindowsApi.h"
#include "session/SessionState.h"
#include "views/DashGauge.h"

namespace corvex {

// The page's state, which belongs to its window. Main thread.
struct DashPage : ISampleView {
    // Everything is read before anything is drawn: drawing takes many times as long. Each gauge of the sample's command
    // and of no command is painted at once; without a packet it shows the last raw word.
    bool WantsSamples() const override;
    void Read(const PublishedSample& sample) override;
    void Draw() override;

    ADXDashboard* dashboard = nullptr;  // on show; not owned
    HWND window = nullptr;
    RECT area{};               // for the gauges, in client coordinates
    std::vector<HWND> gauges;  // at position i the window of entry i, null for an entry of an unknown type
    unsigned shown = 0;        // how many times a dashboard was shown: what a menu began with may be gone at its end
    bool menuIsOpen = false;
    std::vector<GaugeReading> readings;  // of the sample read last
    SessionState* session = nullptr;
};

// Adds the page to session.tabSheet, with the first dashboard on show. Once. Main thread, like all below.
void CreateDashPage(SessionState& session);
// After every change of the definition, before a message is waited for: offers its dashboards, and shows the first.
void RefreshDashPage(SessionState& session);
// Makes the gauges anew and binds them; the caller has them laid out by WM_SIZE. None for a null dashboard.
void ShowDashboard(ADXDashboard* dashboard, HWND page);

// Null for any other window.
DashPage* DashPageOf(HWND page);

}  // namespace corvex
