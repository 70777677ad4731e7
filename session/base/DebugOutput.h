// The running text log of the program, shown on the Output tab, and the hex dump that feeds it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace corvex {

// What a text control can do for the log. The desktop stands an edit control behind it, the command-line tool a stream,
// a test a string. Called on whichever thread prints; the implementation does its own locking.
class ITextAppender {
public:
    virtual ~ITextAppender() = default;
    virtual std::size_t TextLength() = 0;
    virtual void Append(const char* text) = 0;  // at the end, without undo
    virtual void Clear() = 0;
};

// The log. With no control attached every line is dropped unformatted, and a null sink is a legal argument everywhere.
//
// Threads: Print and HexDump may be called from any thread; the control is attached and detached while no other
// thread prints.
class DebugOutput {
public:
    // A line is cut at this many characters.
    static constexpr std::size_t kLineLimit = 4095;

    std::uint32_t reserved = 0;
    void* window = nullptr;         // a window owned with the log; stays null
    ITextAppender* edit = nullptr;  // not owned; null drops all output
    std::uint32_t enabled = 1;      // read by nothing
    void* font = nullptr;           // stays null

    // Formats as printf does and appends one line.
    [[gnu::format(printf, 2, 3)]] static void Print(DebugOutput* sink, const char* format, ...);

    // Appends `text` behind `lineBreaks` times CR LF. The breaks stand before a line, never after it, and an empty
    // control gets none: the first line of a log stands on the first row. The last argument is ignored.
    static void AppendText(ITextAppender* control, const char* text, int lineBreaks, int unused = 0);

    // Writes `length` bytes in rows of 16 with their offset, hex digits and characters. A label, when given, comes
    // first on a line of its own and is read as a printf format without arguments. Null sink, null bytes or length 0:
    // nothing.
    static void HexDump(const char* label, DebugOutput* sink, const void* bytes, std::size_t length);
};

}  // namespace corvex
