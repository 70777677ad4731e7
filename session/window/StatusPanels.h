// The status bar with the two panels that tell how things stand.
#pragma once

#include <optional>
#include <string>

#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"
#include "session/StatusText.h"

namespace corvex {

class SessionState;

// What the two panels are to show.
struct StatusPicture {
    PanelText left;
    std::optional<std::string> right;  // nothing: it stays as it is
};

// All on the main thread, but Look, which any thread may call.
class StatusPanels {
public:
    // Makes bar and panels and stores their handles in the session.
    static void Create(SessionState& session);
    // Puts them where they belong in the main window's client area.
    static void Layout(SessionState& session);
    // The state of connection and log as it is now.
    static StatusPicture Look(SessionState& session);
    static void Show(const SessionState& session, const StatusPicture& picture);
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
