// The top-level window.
#pragma once

#include <memory>

#include "controls/window/ControlWindow.h"
#include "session/window/CommandRouter.h"
#include "session/window/LinkPanels.h"
#include "session/window/ToolBand.h"

namespace corvex {

class Desktop;

// Builds the window tree, routes what comes to the session, and keeps layout, title and status. It closes by way of a
// stop thread alone, so that no worker is left behind by it. Main thread.
class MainWindow final : public ControlWindow {
public:
    // Registers the classes of the window and its controls, and makes the window, not shown yet. Null on failure.
    static HWND Create(Desktop& desktop);

    MainWindow(HWND window, void* desktop);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void OnCreate();
    void ShowSplash();
    void TakeSavedPlace();
    void CreateTabs();
    void WarnWithoutCounter();
    void Layout(int width, int height);
    LRESULT OnNotify(NMHDR* header);
    LRESULT OnSessionMessage(UINT message);
    void OnClose();
    bool MayEndSession(LPARAM reason);
    void OnDestroy();
    void SaveSettings();

    Desktop& desktop_;
    std::unique_ptr<ToolImages> images_;
    std::unique_ptr<LinkPanels> panels_;  // while there is a status bar
    CommandRouter router_;
    bool closes_ = false;
};

}  // namespace corvex
