// Everything that lives for the whole run, and the operations that start and end a scan, a recording and a playback.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "acquisition/DataAcqEngine.h"
#include "definition/ADXDefinition.h"
#include "logging/DataLogEngine.h"
#include "platform/SerialPlatform.h"
#include "session/AppSettings.h"
#include "session/ConnectionState.h"
#include "session/DAECallback.h"
#include "session/DefinitionOrigin.h"
#include "session/LastPacket.h"
#include "session/LogWishes.h"
#include "session/RepeatFilter.h"
#include "session/SampleViews.h"
#include "session/ScanStop.h"
#include "session/SessionCalls.h"
#include "session/base/AutoResetEvent.h"
#include "session/base/DebugOutput.h"
#include "session/base/StopWatch.h"
#include "session/base/WorkerThreads.h"

namespace corvex {

class ADXDashboard;
class ADXHistogram;
class ADXListView;

// What a stop thread ends; combinable.
enum StopFlag : std::uint32_t {
    kStopScan = 1,    // end the scan and wait for the connect thread
    kStopLog = 2,     // end playback or recording
    kStopWindow = 4,  // ask for the main window to be destroyed, last of all
};

// One for a process: built before the first window, torn down after the last. It owns by value what it names, but for
// window handles, which are opaque words, null where there are no windows, and the objects on show, which belong to the
// definition.
//
// Threads: the main thread builds it, toggles it and destroys it. The connect thread runs one scan and drives the
// engine, its port and the callback. Stop threads are short-lived and do all the waiting, so that the main thread never
// waits for a worker while it has windows: a worker that shows something waits for it. The definition is not to be
// changed between ToggleScan and the end of the scan; of the port's name a scan has its own copy. connectionState,
// scanning, errorCount and the log's words may be polled from anywhere; connectionState being kNotConnected again does
// not yet mean that a new scan can start: `scanning` 0, read with acquire order, does, unless a stop has cleared it.
class SessionState {
public:
    explicit SessionState(SessionCalls calls = {}, ISerialPlatform& serial = SystemSerial(),
                          IFileSystem& logFiles = SystemFiles());
    // Ends the scan, the playback and the recording, which stays in its scratch file, and waits for every worker, which
    // may still call what `calls` holds: with windows, only after the last of them has gone.
    ~SessionState();
    SessionState(const SessionState&) = delete;
    SessionState& operator=(const SessionState&) = delete;

    // Starts a scan: clears the text log, the error count and the charts, restarts the stopwatch. While a scan, or the
    // stop of one, has not ended, it starts one more stop thread instead, which cuts a disconnect command that runs
    // (ScanStop) and is harmless else. Main thread.
    void ToggleScan();
    // Starts a stop thread with these StopFlags, unwaited. Any thread.
    void StartStopThread(std::uint32_t flags);

    // The commands for logs, all on the main thread. While a recording runs they change nothing and say why, but for
    // Stop. While a log is still coming to rest (a stop or a pause on its way, the end of a playback not yet handled, a
    // recording being saved) Play and Record are remembered, and carried out when it has.

    // Records good replies into ScratchLogPath(), and says whether it could begin. What plays is stopped first, what is
    // paused closed, and a recording that an earlier one left there unsaved gets a name of its own.
    void RecordCommand();
    // Ends a recording and saves it where the user says; else ends a playback, paused or not. Forgets what was
    // remembered.
    void StopCommand();
    // Goes on with a paused log, else opens settings.lastxdlpath, at the speed that was chosen, and plays it.
    void PlayCommand();
    void PauseCommand();
    // Pauses a log that plays, else plays: one key for both.
    void PlayPauseCommand();
    // Asks for the log to play next; one that plays is paused first.
    void LoadLogCommand();
    // Playback at this multiple of the recorded pace, from the next record on.
    void SetSpeed(float factor);
    void JumpForward();
    void JumpBackward();
    // In records from the start.
    void MoveLogSlider(std::uint32_t position);
    // What kMessageLogStopped asks for, once for each: closes the log when no further stop of one is under way, so that
    // a late message cannot close the next one. One that no stop was started for does nothing.
    void OnLogStopped();
    // What kMessagePlaybackRests asks for.
    void OnPlaybackRests();
    // What ends a playback, but never a recording. Main or playback thread.
    void StopPlayback();
    // True from the start of a log's stop until OnLogStopped has been called for it. Any thread.
    bool IsStoppingLog() const { return logStops_.load(std::memory_order_acquire) != 0; }
    // Says on the text log where a recording is that was never saved, if there is one.
    void TellUnsavedRecording();

    // Blocks until no worker of this session runs, for callers without windows; false when `limit` has passed first.
    // What the workers wrote is visible afterwards.
    [[nodiscard]] bool WaitForThreads(std::chrono::milliseconds limit) const { return workers_.Wait(limit); }

    // Hands a sample to those of the views in `to` that want it, all of them at once. `t` in seconds. Worker.
    void PublishSample(double t, PacketView packet, std::uint32_t commandId, std::uint32_t to = kAllSampleViews);

    // The newest decoded packet; never half of one and half of another. Any thread.
    LastPacket CopyLastPacket() const;
    void StoreLastPacket(const LastPacket& packet);

    // The session stopwatch's Rate, in hertz, for status texts that several threads refresh. Any thread.
    float SampleRate();

    // Stores the state and has the status text and the buttons refreshed. Main thread.
    void EnterState(ConnectionState state);
    // The same for what the line does; a paused log goes on hiding that, and its place is not lost. Connect thread.
    void EnterLineState(ConnectionState state);
    // A good reply has come: from kConnecting to kConnected, and from no other state; not while the device is away,
    // when it can only be a log's. Worker.
    void Connect();

    // A line on the text log, and for a while a shorter one in place of the status text, black on this colour
    // (0x00BBGGRR): seen whatever tab is in front. Main thread.
    void Say(const std::string& line, const char* flash, std::uint32_t backColour);

    const SessionCalls& Calls() const { return calls_; }

    void *instance = nullptr, *editorModule = nullptr, *accelerators = nullptr;
    void (*editorEntry)() = nullptr;  // cast to its true type by the caller
    void *mainWindow = nullptr, *preferencesWindow = nullptr, *outputEdit = nullptr, *tabSheet = nullptr;
    void *statusBar = nullptr, *statusRight = nullptr, *statusLeft = nullptr;
    void *dashPage = nullptr, *listPage = nullptr, *histogramPage = nullptr, *monitorPage = nullptr;
    void* monitorState = nullptr;  // the MonitorPage behind monitorPage, cast to its true type by the caller
    SampleViews views;
    DebugOutput debug;
    DataAcqEngine engine;
    DAECallback callback;
    ADXDefinition definition;
    DefinitionOrigin origin;  // of the definition
    std::atomic<std::uint32_t> connectionState{kNotConnected};
    std::shared_ptr<void> splash;
    std::atomic<std::uint32_t> scanning{0};  // 1 while a scan is wanted
    DataLogEngine log;
    void *rebar = nullptr, *fileToolbar = nullptr, *scanToolbar = nullptr, *logBar = nullptr, *logBarDialog = nullptr;
    AutoResetEvent threadDone{true};  // signalled when no connect thread runs
    StopWatch timer;                  // restarted by a scan; its ticks are the samples
    std::atomic<std::uint32_t> errorCount{0};
    std::uint32_t blinkCount = 0;
    ADXDashboard* currentDashboard = nullptr;
    ADXListView* currentListView = nullptr;
    ADXHistogram* currentHistogram = nullptr;
    std::uint32_t currentHistogramView = 0;
    std::uint32_t dashChanged = 0, monitorsChanged = 0;
    AppSettings settings;
    // Plays logs without ever writing to them, so that one on a write-protected card plays too. Else a log's header is
    // written back when it is closed. Main thread.
    bool looksAtLogs = false;
    // A scan whose device vanishes closes the port, is connecting again, and tries the same name once a second until it
    // opens or the scan is stopped; then it begins anew with the connect command, while recording, text log, stopwatch
    // and error count go on. Else it goes on to ask a dead line. To be set before a scan.
    bool reconnects = true;

private:
    void ConnectThread(const std::string& portName);
    bool RunScan(const ADXObject* connect, const ADXObject* monitor, const ADXObject* disconnect);
    bool BringDeviceBack(const std::string& portName, std::uint32_t baud);
    void TellOddRate(const std::string& portName, std::uint32_t& told);
    void StopThread(std::uint32_t flags);
    void StopScan(bool insists);
    void StopLog();
    bool BeginScan();
    void EndScan();
    SessionCalls WithCarrier(SessionCalls calls);
    void RefreshAll();
    bool IsLogEnding() const;
    void OpenLogAndPlay();
    void Resume();
    void CloseLog();
    void LeaveLog();
    void RunWishes();
    bool IsRefused(const char* command);
    bool MakeScratchFree();
    void BeginRecording();
    void SaveRecording();
    void FinishSaving();
    bool MoveRecordingTo(const std::string& name);
    void EnterPause();
    void Jump(std::uint32_t target, std::uint32_t flags);

    const SessionCalls calls_;
    ScanStop stop_{engine};
    mutable std::mutex packetLock_, rateLock_, scanLock_;
    LastPacket lastPacket_;
    bool connectRuns_ = false;       // under scanLock_: from ToggleScan to the end of the connect thread
    unsigned scanStopsRunning_ = 0;  // under scanLock_: stop threads that have not finished with the scan
    // Stops of a log whose message has not been handled. Up before the stop thread begins, so that whoever sees the
    // playback ended sees this; down on the main thread.
    std::atomic<std::uint32_t> logStops_{0};
    std::atomic<bool> deviceAway_{false};  // a scan waits for it
    std::atomic<bool> closes_{false};      // the main window is going: no log is begun any more
    // A recording: the user is asked for its name, or has given one and the disk does not have it all yet. This and the
    // next three: main thread.
    enum class Saving { kNot, kAsks, kWaits } saves_ = Saving::kNot;
    std::optional<std::string> savedAs_;
    LogWishes wishes_;
    RepeatFilter refusals_;
    WorkerThreads workers_;
};

}  // namespace corvex
