// The "Dash" tab: one dashboard of the definition as a free layout of gauges.
#pragma once

#include <vector>

#include "definition/ADXDashboard.h"
#include "platform/WindowsApi.h"
#include "session/SessionState.h"
#include "views/SenderRelease.h"

namespace corvex {

// The page's state, which belongs to its window. Main thread.
struct DashPage {
    ADXDashboard* dashboard = nullptr;  // on show; not owned
    HWND window = nullptr;
    RECT area{};               // for the gauges, in client coordinates
    std::vector<HWND> gauges;  // at position i the window of entry i, null for an entry of an unknown type
    unsigned shown = 0;        // how many times a dashboard was shown: what a menu began with may be gone at its end
    bool menuIsOpen = false;
    SenderRelease sender;
    SessionState* session = nullptr;
};

// Adds the page to session.tabSheet, with the first dashboard on show. Once. Main thread, like all below.
void CreateDashPage(SessionState& session);
// After every change of the definition, before a message is waited for: offers its dashboards, and shows the first.
void RefreshDashPage(SessionState& session);
// Makes the gauges anew and binds them; the caller has them laid out by WM_SIZE. None for a null dashboard.
void ShowDashboard(ADXDashboard* dashboard, HWND page);

// Shows a sample on the gauges of its command and of no command, each of them painted at once. No packet: the last raw
// words stand. Any thread: the call is carried to the page's own and waited for until the sample is read, not until it
// is painted, unless samples come faster than that thread can paint. The packet is not kept.
void UpdateDashPage(const SessionState& session, PacketView packet, std::uint32_t commandId);

// Null for any other window.
DashPage* DashPageOf(HWND page);

// Is it worth while to bring the gauges up to date? Any thread, while the page lives.
bool IsDashVisible(const SessionState& session);

}  // namespace corvex
