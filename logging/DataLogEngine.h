// The log: records replies as they came off the line and plays them back through the same callback.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "logging/LogFormat.h"
#include "logging/LogItem.h"
#include "logging/LogReader.h"
#include "platform/File.h"
#include "session/base/StopWatch.h"
#include "session/base/WorkerThreads.h"

namespace corvex {

class IDataLogCallback;
class RecordingSync;

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
    kLogFileError = 1,  // a file operation or an allocation failed, or a thread was running already
    kLogWrongState = 3,
    kLogUnknownItem = 4,  // of a record or a sample
    kLogNoCallback = 6,
    kLogEndOfFile = 7,
    kLogBufferTooSmall = 8,
    kLogNullArgument = 9,
    kLogSeekUnsupported = 10,
    kLogSeekRefused = 11,  // by the callback
    kLogCannotOpen = 12,   // or the path is empty
    kLogWrongVersion = 13,
};

// What another program did to the file of a recording.
enum class LogHarm {
    kNone,
    kCut,         // it was made shorter: records are lost
    kLengthened,  // bytes that are not ours stood behind the last record; they were cut off
    kGone,        // its name leads to another file, or to none: it was removed or replaced
};

enum LogOpenMode : std::uint32_t {
    kLogForWriting = 0,
    kLogForReading = 1,  // Close writes the header back, so the file must be writable
    kLogForLooking = 2,  // the same, but nothing is ever written: for tools, and for logs on a write-protected card
};

enum LogSeekFlag : std::uint32_t {
    kSeekFromStart = 1,    // the target is absolute
    kSeekUnsupported = 4,  // refused
    kSeekTime = 0x200,     // the target is a time in milliseconds, not a count of records
};

// Never loses what it was given: a sample is one write, straight to the file, and a sample that could not be written
// whole is taken out again, so the file is good up to the last sample at any moment. No record, once written, is
// written over by anything but Open for writing. Threads of its own bring it to the disk about once a second
// (RecordingSync); nobody waits for them but who asks to.
//
// A log from elsewhere may hold any bytes. What a header says is used as told, but no buffer grows beyond what the size
// of the file justifies, and a walk always goes forward or ends.
//
// Threads: AddSample on the connect thread; RequestStop, StopRecording, IsPlaying and the words below from anywhere;
// ReadRecord on one thread that is not the playback thread, and only while that does not run; the rest on the main
// thread. Nothing but a slow disk makes a caller wait for another. The callback is called on the playback thread, and
// from Seek on the caller's, never under the lock. The destructor waits for the playback thread, so what the callback
// waits for must not wait for the destructor.
class DataLogEngine {
public:
    explicit DataLogEngine(IFileSystem& files = SystemFiles()) : files_(files) {}
    ~DataLogEngine();
    DataLogEngine(const DataLogEngine&) = delete;
    DataLogEngine& operator=(const DataLogEngine&) = delete;

    // Closes what is open and begins anew, at speed 1.0. `mode` is a LogOpenMode. On an error the state is kLogClosed.
    std::uint32_t Open(const char* path, std::uint32_t mode);
    // Why the last Open found no file to work with, in the system's words; empty when it did. Main thread.
    const std::string& OpenError() const { return openError_; }
    // Ends a recording, asks a playback to end without waiting for it, writes the header back. Not 0 on success; on an
    // error the file stays open in its state.
    std::uint32_t Close();

    // The item table. A file can only use the first 256. While recording it stays as it is (kLogWrongState): written
    // longer than it was, it would lie over the first records.
    std::uint32_t SetItemCount(std::uint32_t count);  // keeps what fits; kLogFileError when there is no memory
    std::uint32_t SetItem(std::uint32_t index, const LogItem& item);  // all but title and reserved byte; 4 outside it
    std::uint32_t AddItem(const LogItem& item);
    std::uint32_t FindItem(std::uint32_t commandId) const;  // the last of that id, 0xFFFFFFFF for none
    const LogItem* GetItem(std::uint32_t index) const;      // until the table changes; null outside it
    std::uint32_t ItemCount() const;
    std::uint32_t MaxPackedSize() const;
    std::uint32_t MaxFullSize() const;

    std::uint32_t WriteHeader();
    std::uint32_t ReadHeader();
    // The next record. `size` is the buffer's. kLogEndOfFile also for one that is cut short, and where a record would
    // begin with twelve zeros, as the trace of a power cut does; kLogUnknownItem has gone on to the place that the
    // record names, which may lie anywhere; kLogBufferTooSmall has filled `record` and can be tried again. The record's
    // word about the place of the next one is not checked: LogWalk does that.
    std::uint32_t ReadRecord(LogRecord* record, std::uint8_t* buffer, std::uint32_t size, const LogItem** item);
    // Goes to the first record when the position is at or past the header's endMark, or before its dataOffset; a log
    // that stands between them carries on from there.
    void GoToData();
    // The next record is read there, wherever that is.
    void GoTo(std::uint64_t offset);
    // In the file, in bytes; 0 when none is open.
    std::uint64_t Position() const;
    std::uint64_t FileSize() const;

    std::uint32_t StartRecording();
    // One reply of the command with this id hash. kLogWrongState unless recording, kLogUnknownItem for a command that
    // the log has no item for; nothing is written then. A reply longer than the item's packedSize is cut to it; a
    // shorter one is filled up with zeros. kLogFileError: not in the file, and the next one may be tried.
    std::uint32_t AddSample(std::uint32_t commandId, const std::uint8_t* reply, std::uint32_t count);
    // kLogFileError leaves it as it is, still recording.
    std::uint32_t StopRecording();
    // Of a recording: closes its file, has `move` bring that to the name `path`, and goes on in what is there then.
    // With kLogFileError there is no recording any more, and no log open. Waits for the disk. The thread of AddSample.
    std::uint32_t ContinueIn(const std::string& path, const std::function<bool()>& move);
    // Of the recording at work, or the last one. Looks at the file's name, so it costs a call to the system. Any
    // thread.
    LogHarm Harm() const;
    // The system has said that something of it is not on the disk. Any thread.
    bool SyncFailed() const;
    // While a thread brings a recording to the disk, which may be so for seconds after its end; until then its file
    // cannot be moved on Windows. Any thread.
    bool IsSyncing() const { return !syncers_.Wait(std::chrono::milliseconds(0)); }
    // Blocks until a recording that was ended, or could not be, is on the disk. Any thread that may wait.
    void WaitForSync();

    // Not owned; told by the playback thread. A playback that runs goes on telling the one that it began with.
    void SetCallback(IDataLogCallback* told) { callback = told; }
    // From kLogReady. kLogFileError while the thread of an earlier playback has not ended.
    std::uint32_t StartPlayback();
    // Asks the playback thread to end, for a pause and a stop alike; does not wait.
    std::uint32_t RequestStop();
    // `flags` are LogSeekFlags. A playback goes on from there; the record that it was waiting to deliver is dropped. A
    // playback that was asked to end, for a pause it may be, still has its place moved. kLogWrongState in any other
    // state.
    std::uint32_t Seek(std::uint32_t target, std::uint32_t flags);

    std::uint32_t State() const { return state.load(std::memory_order_relaxed); }
    // True while the playback thread runs, also for a moment after its state has changed.
    bool IsPlaying() const { return threadId.load(std::memory_order_acquire) != 0; }
    // Called on the playback thread as its very last act, whatever ended it: IsPlaying is false by then, and may be
    // true again for the next one. To be set before the first playback.
    std::function<void()> onRest;
    // Blocks until no playback thread is left, onRest included. Not on a thread that a playback waits for.
    void WaitForPlayback() const { workers_.Wait(); }
    // Milliseconds of the record last read.
    std::uint32_t CurrentTime() const { return currentMs.load(std::memory_order_relaxed); }

    LogHeader header;  // main thread; its sampleCount belongs to the connect thread while recording
    std::atomic<std::uint32_t> recorded{0};  // samples of the recording at work, or of the last one
    std::atomic<std::uint32_t> state{kLogClosed};
    IDataLogCallback* callback = nullptr;
    std::uint32_t readMode = 1;                 // 0 from opening for writing to stopping: the header then has the table
    std::atomic<std::uint32_t> sampleIndex{0};  // records read since the start of the data
    std::atomic<std::uint32_t> currentMs{0};
    std::atomic<std::uint32_t> paceBaseMs{0};  // of the record last delivered; the pace is measured from here
    std::atomic<std::uint32_t> threadId{0};    // 0 when no playback thread runs
    std::atomic<float> speed{1.0F};            // 1.0 for recorded time; 0.01 and less: as fast as it goes

private:
    using ItemTable = std::vector<LogItem>;
    // What one playback reads with. Shared with its thread, which may end after the log was closed.
    struct Playback;

    // All with Locked in their name are called under lock_.
    void ResetLocked();
    std::uint32_t OpenFileLocked(const char* path, std::uint32_t mode);
    std::uint32_t WriteHeaderLocked();
    bool WriteTableLocked();
    std::uint32_t ReadHeaderLocked();
    std::uint32_t ReadItemsLocked(std::uint32_t count);
    std::uint32_t ReadRecordLocked(const ItemTable& items, LogRecord* record, std::uint8_t* buffer, std::uint32_t size,
                                   const LogItem** item);
    std::uint32_t FindItemLocked(std::uint32_t commandId) const;
    std::uint32_t ResizeLocked(std::size_t count);
    ItemTable& OwnItemsLocked();
    std::uint64_t PositionLocked() const;
    std::uint64_t FileSizeLocked() const;
    void GoToDataLocked();

    std::uint32_t AddSampleLocked(const LogItem& item, std::uint8_t index, const std::uint8_t* reply,
                                  std::uint32_t count);
    std::uint32_t StopRecordingLocked();
    bool AppendLocked(const std::uint8_t* bytes, std::uint32_t size);
    bool MendCutLocked();
    void BeginSyncLocked();
    void EndSyncLocked();

    void PlaybackThread(Playback& playback);
    std::uint32_t PlayRecords(Playback& playback);
    std::uint32_t NextRecord(Playback& playback);
    bool AwaitMoment(const Playback& playback) const;
    bool TakeMoment(const Playback& playback);
    void Deliver(Playback& playback);

    std::uint32_t SeekChecked(std::uint32_t target, std::uint32_t flags);
    std::uint32_t WalkToLocked(std::uint32_t target, std::uint32_t flags);

    IFileSystem& files_;
    // Guards the file, the position in it and the table; held for a whole Seek, so that the thread waits in its read.
    mutable std::mutex lock_;
    std::unique_ptr<IFile> file_;
    LogReader reader_;
    std::uint64_t appendAt_ = 0;  // where the next sample goes
    bool looksOnly_ = false;
    std::string openError_, path_;
    LogHarm harm_ = LogHarm::kNone;
    bool partLeft_ = false;  // of a sample that could not be written whole
    // Of the recording at work, or the last one; null when there is nothing to sync.
    std::shared_ptr<RecordingSync> sync_;
    std::uint32_t opens_ = 0;  // tells a thread that outlived its log that this is another
    // A table that a thread holds is never changed: OwnItemsLocked copies it first.
    std::shared_ptr<ItemTable> items_ = std::make_shared<ItemTable>();
    std::vector<std::uint8_t> recordBuffer_;  // of AddSample and Seek; kept until the log is closed
    StopWatch stopWatch_;                     // of the samples
    std::atomic<std::uint32_t> seeks_{0};     // so that a thread that waits with a record hears of a Seek
    WorkerThreads workers_, syncers_;
};

}  // namespace corvex
