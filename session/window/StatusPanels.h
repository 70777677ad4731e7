// The status bar with the two panels that tell how things stand.
#pragma once

#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"

namespace corvex {

class SessionState;

// All on the main thread.
class StatusPanels {
public:
    // Makes bar and panels and stores their handles in the session.
    static void Create(SessionState& session);
    // Puts them where they belong in the main window's client area.
    static void Layout(SessionState& session);
    // Shows the state of connection and log.
    static void Refresh(SessionState& session);
    // One step of the left panel's blinking.
    static void Blink(SessionState& session);
};

// Shows a load or a save on the right panel, whose own range comes back when this goes.
class PanelProgress final : public IProgress {
public:
    explicit PanelProgress(HWND panel) : panel_(panel) {}
    ~PanelProgress() override;
    PanelProgress(const PanelProgress&) = delete;
    PanelProgress& operator=(const PanelProgress&) = delete;

    void SetRange(std::uint32_t maximum) override;
    void Step() override;
    void SetPosition(std::uint32_t position) override;

private:
    HWND panel_;
};

}  // namespace corvex
