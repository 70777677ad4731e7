#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "platform/Terminal.h"

namespace corvex {

bool OutputIsTerminal() {
    if (isatty(STDOUT_FILENO) == 0) return false;
    const char* const kind = std::getenv("TERM");
    return kind != nullptr && *kind != '\0' && std::strcmp(kind, "dumb") != 0;
}

TerminalSize OutputTerminalSize() {
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return {};
    return {size.ws_col, size.ws_row};
}

// Terminals of these systems obey from the start, and are set to UTF-8 by their user.
TerminalMode::TerminalMode() : escapes_(OutputIsTerminal()) {}
TerminalMode::~TerminalMode() = default;

}  // namespace corvex
