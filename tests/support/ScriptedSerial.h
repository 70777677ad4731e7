// A serial line that follows a script in virtual time, in place of the machine's ports.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/SerialPlatform.h"
#include "tests/support/VirtualClock.h"

namespace corvex::test {

using Bytes = std::vector<std::uint8_t>;

// Reads keep COMMTIMEOUTS on the virtual clock: a read that would block moves the clock on instead. Every call is kept
// as a short text, e.g. "open COM1", "timeouts 75 0 200 0 300", "purge 1 1", "write 1 2 255", "read 63 -> 5".
// Set the script up before the line is used; after that it may be fed and asked from any thread.
class ScriptedSerial final : public ISerialPlatform {
public:
    explicit ScriptedSerial(VirtualClock& clock) : clock_(clock) {}

    // Bytes that come `afterMs` from now, one each `gapMs`. Later bytes never come before earlier ones.
    void Feed(const Bytes& bytes, std::int64_t afterMs = 0, std::int64_t gapMs = 0);
    // Bytes that come `afterMs` after each write of exactly `command`; any number of such pairs.
    void Answer(const Bytes& command, const Bytes& reply, std::int64_t afterMs = 0, std::int64_t gapMs = 0);
    // One byte each `gapMs`, without end.
    void FeedForEver(std::uint8_t byte, std::int64_t gapMs);
    // The device goes: reads and writes fail, what was on its way is lost, and it can't be opened until it is back.
    void Vanish();
    void ComeBack();

    // What goes wrong, and what happens in passing. The hooks run before the call does its work, outside the lock.
    bool failOpen = false, failGetState = false, failSetState = false, failTimeouts = false, failQueues = false;
    std::optional<std::uint32_t> lineBaud;             // what the line says it runs at, if not what it was told
    std::uint32_t writeLimit = 0xFFFFFFFF;             // bytes that a write takes
    std::set<std::uint32_t> failReads;                 // numbers of reads that give nothing and take no time, from 1
    std::function<void(std::uint32_t number)> onRead;  // counted from 1
    std::function<void()> onWrite, onOpen;

    std::vector<std::string> Calls() const;
    // Those calls alone that begin with the word.
    std::vector<std::string> Calls(const std::string& word) const;
    void ForgetCalls();
    SerialSettings Settings() const;  // as last set
    bool IsOpen() const;

    SerialHandle Open(const char* path) override;
    void Close(SerialHandle handle) override;
    bool GetState(SerialHandle handle, SerialSettings& settings) override;
    bool SetState(SerialHandle handle, const SerialSettings& settings) override;
    bool SetTimeouts(SerialHandle handle, const SerialTimeouts& timeouts) override;
    bool SetQueues(SerialHandle handle, std::uint32_t inputSize, std::uint32_t outputSize) override;
    void Purge(SerialHandle handle, bool output, bool input) override;
    std::uint32_t Read(SerialHandle handle, void* buffer, std::uint32_t count) override;
    std::uint32_t Write(SerialHandle handle, const void* buffer, std::uint32_t count) override;
    bool Vanished(SerialHandle handle) const override;
    std::string LastError() const override;

    static constexpr SerialHandle kHandle = 77;

private:
    struct Incoming {
        std::int64_t at;  // in counts of the clock
        std::uint8_t byte;
    };
    struct Rule {
        Bytes command, reply;
        std::int64_t afterMs, gapMs;
    };

    void Note(std::string call) { calls_.push_back(std::move(call)); }
    std::int64_t Counts(std::int64_t milliseconds) { return milliseconds * clock_.Frequency() / 1000; }
    void Schedule(const Bytes& bytes, std::int64_t afterMs, std::int64_t gapMs);
    const Incoming* Next();
    std::uint32_t Deliver(std::uint8_t* buffer, std::uint32_t count);

    VirtualClock& clock_;
    mutable std::mutex lock_;
    std::deque<Incoming> incoming_;
    std::vector<Rule> rules_;
    Incoming endless_{0, 0};
    std::int64_t endlessGap_ = 0;  // 0: none
    std::vector<std::string> calls_;
    SerialSettings settings_;
    SerialTimeouts times_;
    std::uint32_t reads_ = 0;
    bool open_ = false, vanished_ = false, failed_ = false;
};

}  // namespace corvex::test
