// Any bytes as a log: opened, walked, read, rescued, jumped about in, for some inputs played, and closed as it was.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "fuzz/LongWay.h"
#include "logging/IDataLogCallback.h"
#include "logging/LogRescue.h"
#include "logging/LogWalk.h"
#include "platform/Clock.h"

namespace corvex {
namespace {

void Require(bool so) {
    if (!so) std::abort();
}

// The input itself. Nothing may be written to it but what it holds already.
class InputFile final : public IFile {
public:
    InputFile(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override {
        const auto got = static_cast<std::uint32_t>(std::min<std::uint64_t>(count, Rest()));
        if (got != 0) std::memcpy(bytes, data_ + position_, got);
        position_ += got;
        return got;
    }
    bool Write(const void* bytes, std::uint32_t count) override {
        Require(count <= Rest() && std::memcmp(data_ + position_, bytes, count) == 0);
        position_ += count;
        return true;
    }
    std::uint64_t Position() const override { return position_; }
    bool Seek(std::uint64_t offset) override {
        position_ = offset;
        return true;
    }
    std::optional<std::uint64_t> Size() const override { return size_; }
    bool EndHere() override {
        Require(false);
        return false;
    }

private:
    std::uint64_t Rest() const { return position_ < size_ ? size_ - position_ : 0; }

    const std::uint8_t* const data_;
    const std::uint64_t size_;
    std::uint64_t position_ = 0;
};

class InputFiles final : public IFileSystem {
public:
    std::unique_ptr<IFile> Open(const std::string&, FileAccess, std::string*) override {
        return std::make_unique<InputFile>(data, size);
    }

    const std::uint8_t* data = nullptr;
    std::size_t size = 0;
};

// Reads every byte that it is given.
class TouchingCallback final : public IDataLogCallback {
public:
    using Status = const DataAcqStatus*;
    using Packet = const std::uint8_t*;

    std::int32_t OnSendCommandEnd(Status status, Packet bytes, std::uint32_t count) override {
        Require(status->source == 1 && status->command != nullptr);
        return Touch(bytes, count);
    }
    std::int32_t On160BaudEnd(Status status, Packet bytes, std::uint32_t count) override {
        return OnSendCommandEnd(status, bytes, count);
    }
    std::int32_t OnLogEnd() override { return 0; }
    std::int32_t OnLogSeekBegin(std::uint32_t, std::uint32_t) override { return 0; }
    std::int32_t OnLogSeekEnd() override { return 0; }
    std::int32_t OnLogProgress(std::uint32_t, std::uint32_t) override { return 0; }
    std::int32_t OnWrite(Status, Packet, std::uint32_t) override { return 0; }
    std::int32_t OnRead(Status, Packet, std::uint32_t) override { return 0; }
    std::int32_t OnListenSilenceBegin(Status) override { return 0; }
    std::int32_t OnListenSilenceEnd(Status) override { return 0; }
    std::int32_t OnListenChatterBegin(Status) override { return 0; }
    std::int32_t OnListenChatterEnd(Status) override { return 0; }
    std::int32_t OnSendCommandBegin(Status) override { return 0; }
    std::int32_t OnMacroBegin(Status) override { return 0; }
    std::int32_t OnMacroEnd(Status) override { return 0; }
    std::int32_t On160BaudBegin(Status) override { return 0; }
    std::int32_t OnTrigger(Status) override { return 0; }

    // By a call that checks all of it at once.
    std::int32_t Touch(Packet bytes, std::uint32_t count) {
        if (scratch_.size() < count) scratch_.resize(count);
        if (count != 0) std::memcpy(scratch_.data(), bytes, count);
        return static_cast<std::int32_t>(count & 1U);
    }

private:
    std::vector<std::uint8_t> scratch_;
};

// Of a log that claims long replies, so many are expanded.
constexpr std::uint32_t kExpanded = 8;

std::uint32_t Walk(DataLogEngine& log, TouchingCallback& told, std::size_t size) {
    LogWalk walk(log);
    while (walk.Next()) {
        if (walk.Records() <= kExpanded) {
            const PacketView reply = walk.Reply();
            static_cast<void>(told.Touch(reply.Bytes(), reply.Size()));
        }
        static_cast<void>(told.Touch(walk.Packed(), walk.Item().packedSize));
        Require(walk.Offset() + kLogRecordBytes + walk.Item().packedSize <= size);
    }
    Require(walk.Result() == kLogEndOfFile || walk.Result() == kLogUnknownItem);
    return walk.Records();
}

// All bytes behind the table are in a record, or said to be lost.
void Rescue(const DataLogEngine& log, std::uint64_t tableEnd, InputFile file, TouchingCallback& told) {
    std::vector<LogItem> items;
    for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
        items.push_back(*log.GetItem(i));
    LogRescue rescue(file, log.header, items, tableEnd);
    std::uint64_t end = 0, saved = 0, first = 0;
    while (rescue.Next()) {
        const std::uint32_t size = items.at(rescue.Record().itemIndex).packedSize;
        Require(rescue.Offset() >= end);
        if (rescue.Records() == 1) first = rescue.Offset();
        end = rescue.Offset() + kLogRecordBytes + size;
        saved += kLogRecordBytes + size;
        static_cast<void>(told.Touch(rescue.Packed(), size));
    }
    Require(!rescue.Failed() && end <= *file.Size());
    // Those in front of the first record may be no loss.
    const std::uint64_t accounted = saved + rescue.Skipped() + rescue.UnknownBytes() + rescue.Left();
    Require(accounted <= *file.Size() && (rescue.Records() == 0 || accounted >= *file.Size() - first));
}

// Without the walk's guard against going in a circle.
void ReadSome(DataLogEngine& log, int count) {
    LogRecord record;
    const LogItem* item = nullptr;
    std::uint8_t buffer[64];
    for (int i = 0; i < count; ++i) {
        const std::uint32_t result = log.ReadRecord(&record, buffer, sizeof buffer, &item);
        if (result != kLogSuccess && result != kLogUnknownItem) return;
    }
}

void SeekAbout(DataLogEngine& log, std::uint32_t records, bool everywhere) {
    static_cast<void>(log.Seek(records, kSeekFromStart));
    static_cast<void>(log.Seek(0xFFFFFFFF, kSeekFromStart | kSeekTime));
    for (const std::uint32_t flags : {0U, 1U, 0x200U, 0x201U, 4U, 0xFFFFFFFFU}) {
        for (const std::uint32_t target : {0U, 1U, 10U, records, records + 1, 0xFFFFFFFFU}) {
            if (everywhere) static_cast<void>(log.Seek(target, flags));
        }
    }
}

void Play(DataLogEngine& log) {
    log.speed = 0.0F;
    Require(log.StartPlayback() == kLogSuccess);
    IClock& clock = SystemClock();
    while (log.IsPlaying())
        SleepUntil(clock.Counter() + clock.Frequency() / 100'000);
    Require(log.State() == kLogReady);
}

}  // namespace
}  // namespace corvex

// One engine for all: opening begins anew, and its buffers need not be made for each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace corvex;
    static InputFiles files;
    static TouchingCallback told;
    static DataLogEngine log(files);
    files.data = data;
    files.size = size;
    if (log.Open("log.xdl", kLogForReading) != kLogSuccess) return 0;
    const std::uint64_t tableEnd = log.Position();
    const bool everything = TakesLongWay(data, size, 32);
    log.SetCallback(&told);
    const std::uint32_t records = Walk(log, told, size);
    Rescue(log, tableEnd, {data, size}, told);
    ReadSome(log, everything ? 200 : 20);
    SeekAbout(log, records, everything);
    if (everything) Play(log);
    Require(log.Close() != 0);
    return 0;
}
