#include "session/base/DebugOutput.h"

#include <algorithm>
#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <string>

namespace corvex {

namespace {

constexpr std::size_t kRowLength = 16;

// The line buffer lies on the stack of whoever prints, so that two threads can't spoil each other's line.
void PrintList(DebugOutput* sink, const char* format, va_list arguments) {
    char line[DebugOutput::kLineLimit + 1] = {};
    std::vsnprintf(line, sizeof line, format, arguments);
    DebugOutput::AppendText(sink->edit, line, 1);
}

// A label is a format by custom, though no arguments come with it; hence no compiler check of the two.
void PrintLabel(DebugOutput* sink, const char* label, ...) {
    va_list arguments;
    va_start(arguments, label);
    PrintList(sink, label, arguments);
    va_end(arguments);
}

std::string RowText(const unsigned char* bytes, std::size_t length) {
    std::string text;
    for (std::size_t i = 0; i < kRowLength; ++i) {
        char field[4] = "   ";
        if (i < length) std::snprintf(field, sizeof field, "%02X ", unsigned{bytes[i]});
        text += field;
    }
    for (std::size_t i = 0; i < length; ++i)
        text += std::isprint(bytes[i]) != 0 ? static_cast<char>(bytes[i]) : '.';
    return text;
}

}  // namespace

void DebugOutput::Print(DebugOutput* sink, const char* format, ...) {
    if (sink == nullptr || sink->edit == nullptr) return;
    va_list arguments;
    va_start(arguments, format);
    PrintList(sink, format, arguments);
    va_end(arguments);
}

// Breaks and text go in one piece: a line of another thread can't come between.
void DebugOutput::AppendText(ITextAppender* control, const char* text, int lineBreaks, int /*unused*/) {
    if (control == nullptr || text == nullptr) return;
    std::string piece;
    if (lineBreaks > 0 && control->TextLength() != 0) {
        for (int i = 0; i < lineBreaks; ++i)
            piece += "\r\n";
    }
    piece += text;
    control->Append(piece.c_str());
}

void DebugOutput::HexDump(const char* label, DebugOutput* sink, const void* bytes, std::size_t length) {
    if (sink == nullptr || sink->edit == nullptr || bytes == nullptr || length == 0) return;
    if (label != nullptr) PrintLabel(sink, label);
    const auto* data = static_cast<const unsigned char*>(bytes);
    for (std::size_t offset = 0; offset < length; offset += kRowLength) {
        const std::string row = RowText(data + offset, std::min(kRowLength, length - offset));
        Print(sink, "%04X: %s", static_cast<unsigned>(offset), row.c_str());
    }
}

}  // namespace corvex
