// Where the running program lies, and the screen that it starts on.
#pragma once

#include <cstdint>
#include <string>

namespace corvex {

struct ScreenSize {
    std::int32_t width, height;  // pixels
};

// Callable from any thread.
class IProgramPlace {
public:
    virtual ~IProgramPlace() = default;
    // The file that a module was loaded from, whole, in the system's own code page. Null: the program itself, which is
    // all that a system without modules answers for. Empty when the system cannot tell.
    virtual std::string FileName(void* module) = 0;
    virtual char Separator() = 0;
    // Of the primary screen. A system without windows has one of 1024 by 768.
    virtual ScreenSize Screen() = 0;
};

// The machine's own.
IProgramPlace& SystemProgramPlace();

// What the program asks: the system's, unless a ScopedProgramPlace is in force.
IProgramPlace& CurrentProgramPlace();

// Puts another place in force for its lifetime. For tests with a folder of their own; not to be nested across threads.
class ScopedProgramPlace {
public:
    explicit ScopedProgramPlace(IProgramPlace& place);
    ~ScopedProgramPlace();
    ScopedProgramPlace(const ScopedProgramPlace&) = delete;
    ScopedProgramPlace& operator=(const ScopedProgramPlace&) = delete;

private:
    IProgramPlace* previous_;
};

}  // namespace corvex
