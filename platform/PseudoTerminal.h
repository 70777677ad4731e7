// A made-up serial port: one end is this object, the other a device name that any program can open.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace corvex {

// Bytes pass unchanged both ways; baud rates mean nothing. The far end is held open too, so that programs may open and
// close it again and again. Nothing here blocks but WaitForInput.
//
// One thread at a time, except Name, which any thread may ask for.
class PseudoTerminal {
public:
    // Null when the system can't make one, with a sentence for a person in `error`. Windows has none.
    static std::unique_ptr<PseudoTerminal> Open(std::string& error);
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    // The device's path, such as /dev/pts/3.
    const std::string& Name() const;
    // Makes `path` a symbolic link to the device, replacing a link in one step; removed with this object. Anything else
    // of that name is left alone. False with a sentence in `error`.
    bool Link(const std::string& path, std::string& error);

    // What is there now, at most `count` bytes; 0 for none.
    std::size_t Read(void* buffer, std::size_t count);
    // What the far end takes now; less than `count` when nobody reads there and its queue is full.
    std::size_t Write(const void* bytes, std::size_t count);
    // Waits until bytes are there (true) or the system clock's counter has reached `until` (false).
    bool WaitForInput(std::int64_t until);

    // As if the plug were pulled: whoever has the device open loses it, the link goes. Read and Write then give 0.
    void Unplug();

private:
    struct State;
    explicit PseudoTerminal(std::unique_ptr<State> state);
    std::unique_ptr<State> state_;
};

}  // namespace corvex
