// Numbers of the messages that our own windows send and post to each other, in the range that the system leaves to a
// program. All in one list, so that no two that can come to the same window are alike; those of a control's published
// operations stand in its header.
#pragma once

#include <cstdint>

namespace corvex {

enum PrivateMessage : std::uint32_t {
    // To the main window, posted by workers of the session; a stop thread where nothing else is said.
    kMessageDestroyWindow = 0x8000,  // last of all: the main window is to destroy itself
    kMessageScanStopped = 0x8001,    // the scan has ended: refresh the status text
    kMessageLogStopped = 0x8002,     // playback and recording have ended: close the log
    kMessagePlaybackRests = 0x8003,  // no playback thread is left: do what waited for that. By the playback thread

    // To the main window: what a worker wants to show is shown by the main thread.
    kMessageRefreshStatus = 0x8100,
    kMessageRefreshButtons = 0x8101,
    kMessageMoveSlider = 0x8102,
    kMessageFlash = 0x8103,
    kMessageMonitorTime = 0x8105,
    kMessageSample = 0x8104,  // lParam points at a PublishedSample; SendForEarlyReply's

    // To the text on the Output tab.
    kMessageBringText = 0x8110,

    // To a tab sheet, and to a property tree, from itself: its parent hears of it.
    kMessageReady = 0x8000,

    // To a tab sheet.
    kMessageShowAnotherPage = 0x8121,  // wParam: where the page was that went
    kMessagePageGone = 0x8122,         // lParam: the page, which is being destroyed

    // To a property tree.
    kMessageDropPages = 0x8130,

    // To any control of ours, from CallOnOwner.
    kMessageCarriedCall = 0x8140,  // lParam: a CarriedCall of this process
};

}  // namespace corvex
