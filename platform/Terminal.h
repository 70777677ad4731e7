// What the program's standard output is, when it is a terminal, and how it passes bytes on.
#pragma once

namespace corvex {

// True when a person watches standard output; false for a file or a pipe, and for a terminal that calls itself dumb.
bool OutputIsTerminal();
// The same of standard error.
bool ErrorIsTerminal();

// True when standard output leads to a program that reads it no more. Where the system tells that only by a write that
// fails, this is to be asked after one.
bool OutputReaderIsGone();

// Waits until standard output takes a piece of kOutputPiece bytes without waiting for whoever reads it, for
// `milliseconds` at most. False when it still would wait then; true where the system cannot tell.
inline constexpr unsigned kOutputPiece = 512;
bool WaitForOutputRoom(int milliseconds);

// From now on standard output passes every byte on as it is: nothing is put before a line feed. Before the first
// output.
void MakeOutputBinary();

// Columns and rows of that terminal at this moment; both 0 when they cannot be had.
struct TerminalSize {
    unsigned columns = 0, rows = 0;
};
TerminalSize OutputTerminalSize();

// Makes the terminal obey escape sequences and take text as UTF-8 for the object's lifetime, where the system leaves
// that to programs, and puts it back. Does nothing without a terminal. One at a time, main thread.
class TerminalMode {
public:
    TerminalMode();
    ~TerminalMode();
    TerminalMode(const TerminalMode&) = delete;
    TerminalMode& operator=(const TerminalMode&) = delete;

    // Whether escape sequences will be obeyed.
    bool Escapes() const { return escapes_; }

private:
    bool escapes_ = false;
    // What there was before, where there is anything to put back.
    [[maybe_unused]] bool changed_ = false;
    [[maybe_unused]] unsigned long oldmode_ = 0;
    [[maybe_unused]] unsigned oldcodepage_ = 0;
};

}  // namespace corvex
