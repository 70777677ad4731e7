// The log: records replies as they came off the line and plays them back through the same callback.
#pragma once

#include <atomic>
#include <cstdint>

namespace corvex {

class IDataLogCallback;

// The state machine that recording and playback share.
enum LogState : std::uint32_t {
    kLogClosed = 0,
    kLogReady = 1,           // a log is open, stopped
    kLogOpenedForWrite = 2,  // file created, table being built
    kLogPlaying = 3,
    kLogRecording = 4,
    kLogStopRequested = 5,  // the playback thread is asked to end
};

enum LogResult : std::uint32_t {
    kLogSuccess = 0,
    kLogFileError = 1,
    kLogWrongState = 3,
    kLogUnknownItem = 4,
};

// As yet it opens no file, so it knows no item and its state is kLogClosed.
//
// Threads: AddSample on the connect thread, RequestStop from anywhere, the rest on the main thread. The words below are
// stored by one thread and polled by others.
class DataLogEngine {
public:
    DataLogEngine() = default;
    DataLogEngine(const DataLogEngine&) = delete;
    DataLogEngine& operator=(const DataLogEngine&) = delete;

    std::uint32_t State() const { return state.load(std::memory_order_relaxed); }
    // True while the playback thread runs, also for a moment after its state has changed.
    bool IsPlaying() const { return threadId.load(std::memory_order_relaxed) != 0; }
    // Milliseconds of the record last read.
    std::uint32_t CurrentTime() const { return currentMs.load(std::memory_order_relaxed); }

    // Not owned; told by the playback thread.
    void SetCallback(IDataLogCallback* told) { callback = told; }

    // One reply of the command with this id hash. kLogWrongState unless recording, kLogUnknownItem for a command that
    // the log has no item for; nothing is written then.
    std::uint32_t AddSample(std::uint32_t commandId, const std::uint8_t* reply, std::uint32_t count);
    // Ends a recording. kLogFileError leaves it as it is, still recording.
    std::uint32_t StopRecording();
    // Asks the playback thread to end, for a pause and a stop alike; does not wait.
    std::uint32_t RequestStop();

    std::atomic<std::uint32_t> state{kLogClosed};
    IDataLogCallback* callback = nullptr;
    std::atomic<std::uint32_t> sampleIndex{0};  // records read since the start of the data
    std::atomic<std::uint32_t> currentMs{0};
    std::atomic<std::uint32_t> threadId{0};  // 0 when no playback thread runs
    std::atomic<float> speed{1.0F};          // 1.0 for recorded time
};

}  // namespace corvex
