// The near end of a line that an engine is simulated on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace corvex {

// A pseudo-terminal or a serial port, each with the time that goes with it; a script with virtual time in tests. One
// thread at a time.
class ISimLine {
public:
    virtual ~ISimLine() = default;

    virtual std::int64_t Now() = 0;        // counts
    virtual std::int64_t Frequency() = 0;  // counts per second

    // What is there, at most `count`; never blocks.
    virtual std::size_t Read(std::uint8_t* buffer, std::size_t count) = 0;
    // What the line takes now.
    virtual std::size_t Write(const std::uint8_t* bytes, std::size_t count) = 0;
    // Returns at the moment `until` (never earlier without input), or sooner when there may be something to read.
    virtual void WaitForInput(std::int64_t until) = 0;
    // The far end loses the device.
    virtual void Unplug() = 0;
    // The name under which the far end opens the line.
    virtual std::string Name() const = 0;
};

// A pseudo-terminal; `link` names a symbolic link to it, unless empty. Null on failure, with a sentence in `error`.
std::unique_ptr<ISimLine> OpenTerminalLine(const std::string& link, std::string& error);
// A port of the machine, which has a pace of its own besides.
std::unique_ptr<ISimLine> OpenPortLine(const std::string& port, std::uint32_t baud, std::string& error);

}  // namespace corvex
