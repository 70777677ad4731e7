#include "session/window/ToolTips.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>

#include "controls/window/CommonControls.h"
#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

struct ToolTip {
    unsigned command;
    const char* text;
};

constexpr ToolTip kToolTips[] = {
    {IDM_LOAD_DEFINITION, "Load ADX"},
    {IDM_SAVE_DEFINITION, "Save ADX"},
    {IDM_EDIT_DEFINITION, "Edit ADX"},
    {IDM_SCAN, "Connect/Disconnect"},
    {IDC_LOG_RECORD, "Begin Recording"},
    {IDC_LOG_PLAY, "Play Current Log Session"},
    {IDC_LOG_PAUSE, "Pause Playback of Log Session"},
    {IDC_LOG_STOP, "Stop Playback of Current Log Session"},
    {IDC_LOG_LOAD, "Select a Log Session to Play"},
};

template <class Character, std::size_t size>
void CopyText(Character (&target)[size], std::string_view text) {
    const std::size_t length = std::min(size - 1, text.size());
    std::copy_n(text.begin(), length, target);
    target[length] = 0;
}

}  // namespace

const char* ToolTipOf(unsigned command) {
    const auto* const found = std::find_if(std::begin(kToolTips), std::end(kToolTips),
                                           [&](const ToolTip& t) { return t.command == command; });
    return found == std::end(kToolTips) ? nullptr : found->text;
}

// A tooltip asks in the one or the other character set, as its toolbar pleases.
bool AnswerToolTip(NMHDR* header) {
    if (header->code != TTN_GETDISPINFOA && header->code != TTN_GETDISPINFOW) return false;
    const char* const text = ToolTipOf(static_cast<unsigned>(header->idFrom));
    if (text == nullptr) return false;
    if (header->code == TTN_GETDISPINFOA) {
        auto* const info = reinterpret_cast<NMTTDISPINFOA*>(header);
        CopyText(info->szText, text);
        info->lpszText = info->szText;
    } else {
        auto* const info = reinterpret_cast<NMTTDISPINFOW*>(header);
        CopyText(info->szText, text);
        info->lpszText = info->szText;
    }
    return true;
}

}  // namespace corvex
