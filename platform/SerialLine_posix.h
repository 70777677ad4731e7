// The line settings of a terminal device at any baud rate.
#pragma once

#include "platform/SerialPlatform.h"

namespace corvex {

// Stands apart because the kernel's own declaration of the settings, the only one that knows an arbitrary rate, can't
// share a source file with <termios.h>. Both return false with errno set.
bool GetLineSettings(int descriptor, SerialSettings& settings);

// Also makes the line raw: bytes pass both ways unchanged, and nothing on the line is a signal or a line end. Stop bits
// stay. A rate that the driver turns into another one, more than 3 % away, is refused with EINVAL; a pseudo-terminal
// has no rate and takes any. Lines to the modem that the device lacks are passed over.
bool SetLineSettings(int descriptor, const SerialSettings& settings);

// True for a pseudo-terminal's slave side.
bool IsPseudoTerminal(int descriptor);

}  // namespace corvex
