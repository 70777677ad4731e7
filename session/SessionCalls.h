// How the session reaches whoever shows things: a desktop, a table on a terminal, a recorder in a test.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "acquisition/DataAcqStatus.h"
#include "definition/PacketView.h"
#include "platform/PrivateMessages.h"
#include "session/FilePrompt.h"
#include "session/PublishedSample.h"

namespace corvex {

// Handed over when the session is built; the session keeps its own copy for life. A call that is left empty does
// nothing, and answers false or nothing.
//
// Threads: "worker" is the connect thread during a scan, the playback thread during playback, and both at once when a
// log plays beside a live line. A worker blocks until its call returns, so a slow call slows the serial loop. "Any" is
// a worker, a stop thread or the main thread. No call is made under a lock of the session, and none may throw.
// Packets are views of the worker's own bytes and end with the call.
struct SessionCalls {
    // The connection state, the rate or the error count may have changed. Any thread.
    std::function<void()> refreshStatus;
    // What may be pressed may have changed: the log's state or the connection state did. Any thread.
    std::function<void()> refreshButtons;

    // Has the session's views read a sample, and then draw it, on the thread that shows them. Waited for until it is
    // read; what it holds is not kept. Only when a view wants it. Left empty, the worker itself is that thread. Worker.
    std::function<void(const PublishedSample&)> carrySample;

    // A message for `ms` milliseconds in place of the status text. Colours are 0x00BBGGRR. Worker and main thread.
    std::function<void(const char* text, std::uint32_t textColour, std::uint32_t backColour, std::uint32_t ms)> flash;

    // A scan begins, and what an earlier one has shown is gone. Main thread.
    std::function<void()> scanBegins;
    // The charts begin anew at time 0. Main thread.
    std::function<void()> clearMonitors;
    // The playback cursor of the charts, in seconds. Playback and main thread.
    std::function<void(double seconds)> setMonitorTime;
    // The log slider, in records. Playback and main thread.
    std::function<void(std::uint32_t index)> setLogSlider;
    // It runs from 0 to `last`, both included. Main thread.
    std::function<void(std::uint32_t last)> setLogRange;
    // The title, which names the last files and the playback speed, is out of date. Main thread.
    std::function<void()> refreshTitle;
    // Of the playback speeds in the menu this one alone has the check mark. Main thread.
    std::function<void(std::uint32_t command)> checkSpeed;

    // The name that the user gives to a file to save or to open; nothing when he changes his mind. May take its time
    // and show things meanwhile, as the workers go on. Main thread.
    std::function<std::optional<std::string>(const FilePrompt&)> askSavePath, askOpenPath;
    // A box with a stop icon that waits to be closed. Main thread.
    std::function<void(const char* caption, const char* text)> showBox;

    // A recording has ended. This is where it is: under the name that the user gave it, or not saved, in the scratch
    // file. Main thread.
    std::function<void(const std::string& path, bool saved)> recordingKept;

    // A message to the main window, to be handled later on the main thread, each of them once. Must not wait for that
    // thread. Stop and playback thread.
    std::function<void(std::uint32_t message)> postMain;

    // The port could not be opened; the system's reason in words, maybe empty. Follows the line in the text log.
    // Connect thread.
    std::function<void(const std::string& reason)> portRefused;
    // The device of a scan that runs has vanished, for the system's reason in words, maybe empty; the port is closed
    // and is tried again. Then that it has been opened anew, before its connect command runs; what ends the scan
    // meanwhile comes without it. Connect thread.
    std::function<void(const std::string& reason)> deviceVanished;
    std::function<void()> deviceBack;
    // How a send command or a 160-baud listen ended, good or bad, once all else about it is done. `reply` is the whole
    // reply as far as it came, the command's echo included when the engine does not take it off; no packet when the
    // command brings none or ended before one was read. Worker.
    std::function<void(const DataAcqStatus& status, PacketView reply)> replyEnded;
};

// The calls with something callable in every place.
SessionCalls WithoutGaps(SessionCalls calls);

}  // namespace corvex
