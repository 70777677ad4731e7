// One serial port: opened with fixed line settings, read and written in blocking calls.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/SerialPlatform.h"

namespace corvex {

class DebugOutput;
class ReadSlices;

// A thin wrapper. All timing policy lies with the engine; this class stores what it is told and keeps to it. What
// passes through is dumped on `sink`, when one is set. The system is never asked to wait for long: a read waits in
// slices (ReadSlices), between which it may be given up, and is one read all the same, with one count and one dump.
//
// Threads: one thread at a time, from Open to Close.
class QZSerial {
public:
    // Selects fields in SetTimeouts.
    enum TimeoutField : std::uint32_t {
        kReadConstant = 1,
        kReadMultiplier = 2,
        kReadInterval = 4,
        kWriteConstant = 8,
        kWriteMultiplier = 16,
        kAllTimeouts = 31,
    };
    static constexpr std::uint32_t kPathSize = 260;
    static constexpr std::uint32_t kDefaultBaud = 115200;

    // The platform must outlive the port.
    explicit QZSerial(ISerialPlatform& platform = SystemSerial());
    ~QZSerial();
    QZSerial(const QZSerial&) = delete;
    QZSerial& operator=(const QZSerial&) = delete;

    // Closes, and brings every field but the stored timeouts back to its beginning; `sink` is null afterwards.
    void Reset();

    // 1 on success. 0 on failure, with the port closed, one that was open before included. The text names the device
    // just as the system knows it ("COM1", "/dev/ttyUSB0") and is cut at 259 characters; null opens the last one again.
    int Open(const char* device, std::uint32_t rate);
    void Close();
    bool IsOpen() const { return handle != kInvalidSerialHandle; }

    // Milliseconds. Stores the fields selected by `mask`, then applies all five as stored. Nonzero on success.
    int SetTimeouts(std::uint32_t interval, std::uint32_t readMultiplier, std::uint32_t readConstant,
                    std::uint32_t writeMultiplier, std::uint32_t writeConstant, std::uint32_t mask);
    // Bytes. Nonzero on success.
    int SetQueues(std::uint32_t input, std::uint32_t output);
    // Drops what waits in the driver; a call in progress is never aborted. With neither flag the driver is called all
    // the same.
    static void Purge(QZSerial* port, bool clearOutput, bool clearInput);

    // Bytes moved within the timeouts. A failed call and a vanished device give 0, as silence does. A read that
    // `giveUp` ends brings what has come until then, and WasCut says so until the next read.
    std::uint32_t Read(void* buffer, std::uint32_t count);
    bool WasCut() const { return cut_; }
    std::uint32_t Write(const void* buffer, std::uint32_t count);
    // A read or a write has failed since the port was opened: the device has gone, and only Open brings one back. Never
    // for silence, nor for a port that is closed. A wait for bytes ends within a slice then.
    bool Vanished() const { return IsOpen() && platform_.Vanished(handle); }

    // Why the last Open on this thread failed, or that the device has vanished, in words; may be empty.
    std::string LastError() const { return platform_.LastError(); }

    SerialHandle handle = kInvalidSerialHandle;
    DebugOutput* sink = nullptr;  // not owned; null is silent
    char path[kPathSize] = {};    // as last given
    std::uint32_t baud = kDefaultBaud;
    SerialTimeouts timeouts;
    std::unique_ptr<std::uint8_t[]> block;  // a place kept for a buffer; nothing allocates it
    std::uint32_t blockSize = 0;
    // What the line runs at since the last Open, as the system says; 0 when it can't tell.
    std::uint32_t lineBaud = 0;
    // Asked on the reading thread, at least every 50 ms of a wait: is what is being waited for no longer wanted? Empty:
    // it is.
    std::function<bool()> giveUp;

private:
    int Refuse();  // closes and logs; 0
    bool ApplyLineSettings();
    bool ApplyTimeouts(std::uint32_t slice);
    std::uint32_t ReadInSlices(std::uint8_t* bytes, std::uint32_t count);
    std::uint32_t ReadWhatIsThere(std::uint8_t* bytes, std::uint32_t count);
    bool GivesUp(ReadSlices& slices);

    ISerialPlatform& platform_;
    bool inSlices_ = false;    // under the stored timeouts
    std::uint32_t slice_ = 0;  // that the system has been told; 0: other timeouts
    bool cut_ = false;
};

}  // namespace corvex
