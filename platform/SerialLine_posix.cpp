#include "platform/SerialLine_posix.h"

#include <asm/termbits.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cerrno>
#include <cstdint>

namespace corvex {

namespace {

// Major device numbers that the kernel sets aside for Unix98 slaves.
constexpr unsigned kFirstSlaveMajor = 136, kLastSlaveMajor = 143;

tcflag_t SizeFlag(std::uint8_t bits) {
    switch (bits) {
        case 5:
            return CS5;
        case 6:
            return CS6;
        case 7:
            return CS7;
        default:
            return CS8;
    }
}

std::uint8_t SizeOf(tcflag_t flags) {
    switch (flags & CSIZE) {
        case CS5:
            return 5;
        case CS6:
            return 6;
        case CS7:
            return 7;
        default:
            return 8;
    }
}

void MakeRaw(termios2& line) {
    line.c_iflag &= ~static_cast<tcflag_t>(IGNBRK | BRKINT | IGNPAR | PARMRK | INPCK | ISTRIP | INLCR | IGNCR | ICRNL |
                                           IUCLC | IXON | IXOFF | IXANY);
    line.c_oflag &= ~static_cast<tcflag_t>(OPOST);
    line.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL | ICANON | ISIG | IEXTEN);
    // With at least one byte asked for, a read of nothing tells "not yet" from "hung up".
    line.c_cc[VMIN] = 1;
    line.c_cc[VTIME] = 0;
}

void SetFlag(tcflag_t& flags, tcflag_t flag, bool on) {
    flags = on ? flags | flag : flags & ~flag;
}

void SetModemLine(int descriptor, int line, bool on) {
    ioctl(descriptor, on ? TIOCMBIS : TIOCMBIC, &line);
}

bool RateHolds(int descriptor, std::uint32_t baud) {
    if (IsPseudoTerminal(descriptor)) return true;
    termios2 line{};
    if (ioctl(descriptor, TCGETS2, &line) != 0) return false;
    const double taken = line.c_ospeed, wanted = baud;
    if (taken > wanted * 0.97 && taken < wanted * 1.03) return true;
    errno = EINVAL;
    return false;
}

}  // namespace

bool GetLineSettings(int descriptor, SerialSettings& settings) {
    termios2 line{};
    if (ioctl(descriptor, TCGETS2, &line) != 0) return false;
    settings = SerialSettings{};
    settings.baud = line.c_ospeed;
    settings.byteSize = SizeOf(line.c_cflag);
    settings.parity = (line.c_cflag & PARENB) != 0;
    settings.ctsFlow = (line.c_cflag & CRTSCTS) != 0;
    int modem = 0;
    if (ioctl(descriptor, TIOCMGET, &modem) == 0) {
        settings.dtrEnable = (modem & TIOCM_DTR) != 0;
        settings.rtsEnable = (modem & TIOCM_RTS) != 0;
    }
    return true;
}

bool SetLineSettings(int descriptor, const SerialSettings& settings) {
    if (settings.baud == 0) {  // the kernel would hang up
        errno = EINVAL;
        return false;
    }
    termios2 line{};
    if (ioctl(descriptor, TCGETS2, &line) != 0) return false;
    MakeRaw(line);
    line.c_cflag &= ~static_cast<tcflag_t>(CBAUD | (CBAUD << IBSHIFT) | CSIZE);
    line.c_cflag |= static_cast<tcflag_t>(BOTHER | (BOTHER << IBSHIFT) | CREAD) | SizeFlag(settings.byteSize);
    line.c_ispeed = line.c_ospeed = settings.baud;
    SetFlag(line.c_cflag, PARENB, settings.parity);
    SetFlag(line.c_cflag, static_cast<tcflag_t>(CRTSCTS), settings.ctsFlow);
    SetFlag(line.c_cflag, CLOCAL, !settings.dsrFlow && !settings.dsrSensitivity);
    if (ioctl(descriptor, TCSETS2, &line) != 0) return false;
    SetModemLine(descriptor, TIOCM_DTR, settings.dtrEnable);
    SetModemLine(descriptor, TIOCM_RTS, settings.rtsEnable);
    return RateHolds(descriptor, settings.baud);
}

bool IsPseudoTerminal(int descriptor) {
    struct stat info {};
    if (fstat(descriptor, &info) != 0 || !S_ISCHR(info.st_mode)) return false;
    const unsigned number = major(info.st_rdev);
    return number >= kFirstSlaveMajor && number <= kLastSlaveMajor;
}

}  // namespace corvex
