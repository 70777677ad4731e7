// The third and the fourth panel of the status bar: the recording or the log on show, and what the line does.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Clock.h"
#include "platform/WindowsApi.h"
#include "session/LogPanelText.h"
#include "session/base/StopWatch.h"

namespace corvex {

class Desktop;

// Looks by a timer of its own at what is told at other times on other threads, and shows only what has changed. Lives
// as long as the main window, on its thread.
class LinkPanels {
public:
    // On session.statusBar.
    explicit LinkPanels(Desktop& desktop);
    ~LinkPanels();
    LinkPanels(const LinkPanels&) = delete;
    LinkPanels& operator=(const LinkPanels&) = delete;

    // Puts them where they belong in the bar.
    void Layout();
    void Refresh();
    // Answers a question of the panels' tooltip. False when the notification is another.
    bool AnswerToolTip(NMHDR* header);

private:
    struct Look {
        std::string text;
        std::uint32_t textColour, backColour;
        bool operator==(const Look&) const = default;
    };
    struct Panel {
        HWND window = nullptr;
        std::optional<Look> shown;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
    HWND MakePanel(int id) const;
    void MakeToolTip();
    LogPanelState LogState();
    Look LinkLook() const;
    static void Show(Panel& panel, const Look& look);
    std::string TipOf(HWND panel);

    Desktop& desktop_;
    Panel log_, link_;
    HWND toolTip_ = nullptr;
    std::string tip_;  // what the tooltip shows
    std::wstring wideTip_;
    LocalTime recordingBegun_{};
    double recordingSince_ = 0.0;  // on watch_
    StopWatch watch_;
    unsigned ticks_ = 0;
};

// At most so wide in the font that is selected: a longer text loses its middle, in whose place stands a '~'.
std::string FitText(HDC dc, const std::string& text, int width);

}  // namespace corvex
