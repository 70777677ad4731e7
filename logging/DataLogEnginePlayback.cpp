#include "acquisition/DataAcqStatus.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "logging/DataLogEngine.h"
#include "logging/IDataLogCallback.h"
#include "logging/LogBuffers.h"
#include "platform/Clock.h"

namespace corvex {

namespace {

constexpr std::uint32_t kFromLog = 1;  // source of a status
constexpr float kSlowestPaced = 0.01F;

}  // namespace

struct DataLogEngine::Playback {
    IDataLogCallback* told = nullptr;  // the callback when the playback began
    std::function<void()> atRest;
    std::uint32_t opens = 0;           // of the log when the playback began
    std::shared_ptr<ItemTable> items;  // keeps `item` alive
    std::uint64_t fileSize = 0;
    std::vector<std::uint8_t> packed, reply;
    StopWatch stopWatch;

    // The record in hand.
    LogRecord record;
    const LogItem* item = nullptr;
    std::uint32_t seeks = 0;  // of the log when it was read

    // Stand in for the definition's commands and tell a reply's size alone.
    ADXCSendCommand send;
    ADXC160BaudListen listen;
    DataAcqStatus status;
};

std::uint32_t DataLogEngine::StartPlayback() {
    if (callback == nullptr) return kLogNoCallback;
    if (State() != kLogReady) return kLogWrongState;
    auto playback = std::make_shared<Playback>();
    {
        const std::lock_guard lock(lock_);
        if (!file_) return kLogWrongState;
        GoToDataLocked();
        playback->told = callback;
        playback->atRest = onRest;
        playback->opens = opens_;
        playback->items = items_;
        playback->fileSize = FileSizeLocked();
    }
    std::uint32_t none = 0;
    if (!threadId.compare_exchange_strong(none, 1, std::memory_order_acquire)) return kLogFileError;
    // Before the thread begins: it ends as soon as it sees another state.
    state.store(kLogPlaying, std::memory_order_relaxed);
    if (workers_.Start([this, playback] { PlaybackThread(*playback); })) return kLogSuccess;
    threadId.store(0, std::memory_order_relaxed);
    state.store(kLogReady, std::memory_order_relaxed);
    return kLogFileError;
}

// A stop that comes too late finds a playback that has ended, and leaves it so.
std::uint32_t DataLogEngine::RequestStop() {
    std::uint32_t playing = kLogPlaying;
    state.compare_exchange_strong(playing, kLogStopRequested, std::memory_order_relaxed);
    return kLogSuccess;
}

void DataLogEngine::PlaybackThread(Playback& playback) {
    const bool ready = GrowBuffer(playback.packed, PackedBufferSize(*playback.items, playback.fileSize)) &&
                       GrowBuffer(playback.reply, ExpandedBufferSize(*playback.items, playback.fileSize));
    const std::uint32_t result = ready ? PlayRecords(playback) : std::uint32_t{kLogFileError};
    if (result == kLogEndOfFile) static_cast<void>(playback.told->OnLogEnd());
    // A log that was closed meanwhile, or opened anew, keeps its state.
    for (std::uint32_t from : {kLogPlaying, kLogStopRequested})
        state.compare_exchange_strong(from, kLogReady, std::memory_order_relaxed);
    threadId.store(0, std::memory_order_release);
    if (playback.atRest) playback.atRest();
}

std::uint32_t DataLogEngine::PlayRecords(Playback& playback) {
    paceBaseMs.store(currentMs.load(std::memory_order_relaxed), std::memory_order_relaxed);
    while (State() == kLogPlaying) {
        playback.stopWatch.Restart();
        const std::uint32_t result = NextRecord(playback);
        if (result != kLogSuccess) return result;
        const LogItem& item = *playback.item;
        ExpandRecord(item.mask, playback.packed.data(), item.packedSize, playback.reply.data(),
                     ExpandedSize(item, playback.fileSize));
        if (!AwaitMoment(playback) || !TakeMoment(playback)) continue;
        Deliver(playback);
        static_cast<void>(
            playback.told->OnLogProgress(playback.record.timeMs, sampleIndex.load(std::memory_order_relaxed)));
    }
    return kLogSuccess;
}

std::uint32_t DataLogEngine::NextRecord(Playback& playback) {
    const std::lock_guard lock(lock_);
    // Closed, or closed and opened anew, since the state was looked at.
    if (playback.opens != opens_ || !file_ || State() != kLogPlaying) return kLogWrongState;
    playback.seeks = seeks_.load(std::memory_order_relaxed);
    // With the table that the buffers were made for.
    const std::uint32_t result = ReadRecordLocked(*playback.items, &playback.record, playback.packed.data(),
                                                  static_cast<std::uint32_t>(playback.packed.size()), &playback.item);
    // The buffer holds what the whole file holds: a record that does not fit is cut short.
    return result == kLogBufferTooSmall ? std::uint32_t{kLogEndOfFile} : result;
}

// False when the record is not to be delivered: the playback was stopped or paused, or a Seek has left its place. A
// record whose time has come may go out although a stop was just asked for.
bool DataLogEngine::AwaitMoment(const Playback& playback) const {
    const float factor = speed.load(std::memory_order_relaxed);
    const std::uint32_t from = paceBaseMs.load(std::memory_order_relaxed), to = playback.record.timeMs;
    const bool paced = to != 0 && factor > kSlowestPaced;
    const double wait = static_cast<double>(to > from ? to - from : from - to) / static_cast<double>(factor);
    const auto isOver = [&] { return seeks_.load(std::memory_order_relaxed) != playback.seeks; };
    while (paced && playback.stopWatch.Elapsed() * 1000.0 < wait) {
        if (State() != kLogPlaying || isOver()) return false;
        SleepOneMillisecond();
    }
    return true;
}

// Under the lock, as a Seek sets the pace too: the pace of the place that was left would make the next record wait for
// the whole distance.
bool DataLogEngine::TakeMoment(const Playback& playback) {
    const std::lock_guard lock(lock_);
    if (playback.opens != opens_ || seeks_.load(std::memory_order_relaxed) != playback.seeks) return false;
    paceBaseMs.store(playback.record.timeMs, std::memory_order_relaxed);
    return true;
}

void DataLogEngine::Deliver(Playback& playback) {
    const LogItem& item = *playback.item;
    const std::uint32_t count = ExpandedSize(item, playback.fileSize);
    DataAcqStatus& status = playback.status;
    status.source = kFromLog;
    status.commandId = item.commandId;
    status.sampleIndex = sampleIndex.load(std::memory_order_relaxed);
    if (item.type == kTypeSendCommand) {
        playback.send.flags = ADXCSendCommand::kReplyExpected;
        playback.send.replysize = count;
        status.command = &playback.send;
        static_cast<void>(playback.told->OnSendCommandEnd(&status, playback.reply.data(), count));
    } else if (item.type == kType160BaudListen) {
        playback.listen.packetsize = count;
        status.command = &playback.listen;
        static_cast<void>(playback.told->On160BaudEnd(&status, playback.reply.data(), count));
    }
}

}  // namespace corvex
