#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "platform/Terminal.h"

namespace corvex {

namespace {

bool IsTerminal(int descriptor) {
    if (isatty(descriptor) == 0) return false;
    const char* const kind = std::getenv("TERM");
    return kind != nullptr && *kind != '\0' && std::strcmp(kind, "dumb") != 0;
}

}  // namespace

bool OutputIsTerminal() {
    return IsTerminal(STDOUT_FILENO);
}

bool ErrorIsTerminal() {
    return IsTerminal(STDERR_FILENO);
}

bool OutputReaderIsGone() {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

// A pipe says that there is room when PIPE_BUF bytes go in at once, which is never less than a piece.
bool WaitForOutputRoom(int milliseconds) {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    return poll(&output, 1, milliseconds) != 0;
}

// As it is on these systems.
void MakeOutputBinary() {}

TerminalSize OutputTerminalSize() {
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return {};
    return {size.ws_col, size.ws_row};
}

// Terminals of these systems obey from the start, and are set to UTF-8 by their user.
TerminalMode::TerminalMode() : escapes_(OutputIsTerminal()) {}
TerminalMode::~TerminalMode() = default;

}  // namespace corvex
