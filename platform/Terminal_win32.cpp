#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "platform/Terminal.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

HANDLE Output() {
    return GetStdHandle(STD_OUTPUT_HANDLE);
}

}  // namespace

bool OutputIsTerminal() {
    DWORD mode = 0;
    return GetConsoleMode(Output(), &mode) != 0;
}

bool ErrorIsTerminal() {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

// The system does not tell of a pipe's reader until somebody writes.
bool OutputReaderIsGone() {
    return GetFileType(Output()) == FILE_TYPE_PIPE;
}

bool WaitForOutputRoom(int) {
    return true;
}

void MakeOutputBinary() {
    _setmode(_fileno(stdout), _O_BINARY);
}

TerminalSize OutputTerminalSize() {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (GetConsoleScreenBufferInfo(Output(), &info) == 0) return {};
    return {static_cast<unsigned>(info.srWindow.Right - info.srWindow.Left + 1),
            static_cast<unsigned>(info.srWindow.Bottom - info.srWindow.Top + 1)};
}

TerminalMode::TerminalMode() {
    DWORD mode = 0;
    if (GetConsoleMode(Output(), &mode) == 0) return;
    constexpr DWORD wanted = ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING;
    oldmode_ = mode;
    oldcodepage_ = GetConsoleOutputCP();
    changed_ = SetConsoleMode(Output(), mode | wanted) != 0;
    escapes_ = changed_;
    SetConsoleOutputCP(CP_UTF8);
}

TerminalMode::~TerminalMode() {
    if (oldcodepage_ != 0) SetConsoleOutputCP(oldcodepage_);
    if (changed_) SetConsoleMode(Output(), oldmode_);
}

}  // namespace corvex
