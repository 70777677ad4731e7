// The operating system's serial line, as the few calls that the port needs. One source file per system stands behind
// SystemSerial(); a scripted line takes its place in tests.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace corvex {

// An open device, an opaque word: 0 is "never", all ones is "closed", anything else is the implementation's own.
using SerialHandle = std::intptr_t;
inline constexpr SerialHandle kInvalidSerialHandle = -1;

// Line settings that the port decides on. All others stay as the driver reported them.
struct SerialSettings {
    std::uint32_t baud = 0;
    std::uint8_t byteSize = 8;
    bool parity = false;
    bool ctsFlow = false, dsrFlow = false, dsrSensitivity = false;
    bool dtrEnable = true, rtsEnable = true;
};

// Milliseconds; the meaning is that of COMMTIMEOUTS. A read returns when the count asked for has come, when the gap
// after a byte exceeds `readInterval`, or when `readMultiplier` * count + `readConstant` has passed. 0 switches a
// limit off: interval 0 knows no gap limit, multiplier and constant both 0 know no total limit. An interval of
// 0xFFFFFFFF with both totals 0 returns at once with what is there.
struct SerialTimeouts {
    std::uint32_t readInterval = 0, readMultiplier = 0, readConstant = 0, writeMultiplier = 0, writeConstant = 0;
};

// One thread at a time drives a handle. Calls return false (or a short count) on failure and throw nothing.
//
// A device that vanishes while open (a pulled adapter) answers every read and write with 0 bytes, and only after the
// total timeout in force has passed: a loop over a dead line must not spin.
class ISerialPlatform {
public:
    virtual ~ISerialPlatform() = default;

    // Opens the device for exclusive, synchronous use. On failure returns kInvalidSerialHandle; LastError() tells why.
    virtual SerialHandle Open(const char* path) = 0;
    virtual void Close(SerialHandle handle) = 0;

    // The baud rate is the one that the line really has, as the driver tells; 0 when it can't be known.
    virtual bool GetState(SerialHandle handle, SerialSettings& settings) = 0;
    // Applies the settings, and makes the line pass every byte unchanged: no XON/XOFF, nothing translated, dropped or
    // marked. Any baud rate is asked for as it stands; a driver that refuses it makes this fail, one that takes another
    // rate may.
    virtual bool SetState(SerialHandle handle, const SerialSettings& settings) = 0;
    virtual bool SetTimeouts(SerialHandle handle, const SerialTimeouts& timeouts) = 0;
    virtual bool SetQueues(SerialHandle handle, std::uint32_t inputSize, std::uint32_t outputSize) = 0;
    // Discards what waits to be sent and what came and was not read. Neither flag: nothing happens.
    virtual void Purge(SerialHandle handle, bool output, bool input) = 0;

    // Blocks within the timeouts; returns the bytes moved, 0 to count.
    virtual std::uint32_t Read(SerialHandle handle, void* buffer, std::uint32_t count) = 0;
    virtual std::uint32_t Write(SerialHandle handle, const void* buffer, std::uint32_t count) = 0;

    // True once a call to read or write has failed, as it does when the device has gone, and until the handle is
    // closed. Silence is no failure, nor is a write that finds no reader in time.
    virtual bool Vanished(SerialHandle handle) const = 0;

    // A sentence for a person about the last failed Open or SetState ("no such port", "port is in use by another
    // program", ...), or about a device that has vanished while open; empty when there is nothing to say.
    virtual std::string LastError() const = 0;
};

// The machine's own serial ports. One object for the process; opening and closing are safe from any thread,
// and LastError is kept per thread.
ISerialPlatform& SystemSerial();

}  // namespace corvex
