// Any bytes as a log: opened, walked, read, jumped about in, played, and closed as it was.
#include <cstdlib>

#include "logging/IDataLogCallback.h"
#include "logging/LogWalk.h"
#include "platform/Clock.h"
#include "tests/support/MemoryFiles.h"

namespace corvex {
namespace {

constexpr const char* kPath = "log.xdl";

void Require(bool so) {
    if (!so) std::abort();
}

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

    std::int32_t Touch(Packet bytes, std::uint32_t count) {
        for (std::uint32_t i = 0; i < count; ++i)
            sum_ = sum_ * 31 + bytes[i];
        return static_cast<std::int32_t>(sum_ & 1U);
    }

private:
    std::uint32_t sum_ = 0;
};

std::uint32_t Walk(DataLogEngine& log, TouchingCallback& told, std::size_t size) {
    LogWalk walk(log);
    while (walk.Next()) {
        const PacketView reply = walk.Reply();
        static_cast<void>(told.Touch(reply.Bytes(), reply.Size()));
        static_cast<void>(told.Touch(walk.Packed(), walk.Item().packedSize));
        Require(walk.Offset() + kLogRecordBytes + walk.Item().packedSize <= size);
    }
    Require(walk.Result() == kLogEndOfFile || walk.Result() == kLogUnknownItem);
    return walk.Records();
}

// Without the walk's guard against going in a circle.
void ReadSome(DataLogEngine& log) {
    LogRecord record;
    const LogItem* item = nullptr;
    std::uint8_t buffer[64];
    for (int i = 0; i < 200; ++i) {
        const std::uint32_t result = log.ReadRecord(&record, buffer, sizeof buffer, &item);
        if (result != kLogSuccess && result != kLogUnknownItem) return;
    }
}

void SeekAbout(DataLogEngine& log, std::uint32_t records) {
    for (const std::uint32_t flags : {0U, 1U, 0x200U, 0x201U, 4U, 0xFFFFFFFFU}) {
        for (const std::uint32_t target : {0U, 1U, 10U, records, records + 1, 0xFFFFFFFFU})
            static_cast<void>(log.Seek(target, flags));
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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace corvex;
    test::MemoryFiles files;
    const test::MemoryFiles::Bytes bytes(data, data + size);
    files.Put(kPath, bytes);
    TouchingCallback told;
    DataLogEngine log(files);
    if (log.Open(kPath, kLogForReading) != kLogSuccess) return 0;
    log.SetCallback(&told);
    const std::uint32_t records = Walk(log, told, size);
    ReadSome(log);
    SeekAbout(log, records);
    Play(log);
    Require(log.Close() != 0);
    Require(files.Get(kPath) == bytes);
    return 0;
}
