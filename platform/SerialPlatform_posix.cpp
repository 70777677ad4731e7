#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <system_error>

#include "platform/Clock.h"
#include "platform/SerialLine_posix.h"
#include "platform/SerialPlatform.h"
#include "platform/SerialTimes.h"

namespace corvex {

namespace {

// What stands behind a SerialHandle.
struct Device {
    int descriptor = -1;
    bool exclusive = false;
    bool vanished = false;
    SerialTimeouts times;
};

thread_local std::string lastError;

Device* DeviceOf(SerialHandle handle) {
    if (handle == 0 || handle == kInvalidSerialHandle) return nullptr;
    return reinterpret_cast<Device*>(handle);
}

std::string OpenSentence(int code) {
    switch (code) {
        case ENOENT:
        case ENODEV:
        case ENXIO:
        case ENOTDIR:
            return "no such port";
        case EACCES:
        case EPERM:
            return "no permission to use the port";
        case EBUSY:
        case EWOULDBLOCK:
            return "port is in use by another program";
        case ENOTTY:
            return "not a serial port";
        default:
            return "port can't be opened (" + std::generic_category().message(code) + ")";
    }
}

// Moments are counts of the system's clock, which are nanoseconds on this system.
constexpr std::int64_t kMillisecond = 1'000'000;
using Moment = std::optional<std::int64_t>;  // none: never

Moment After(std::int64_t start, std::optional<std::int64_t> milliseconds) {
    if (!milliseconds) return std::nullopt;
    return start + std::min<std::int64_t>(*milliseconds, INT64_MAX / (2 * kMillisecond)) * kMillisecond;
}

Moment Earlier(Moment a, Moment b) {
    if (!a || !b) return a ? a : b;
    return std::min(*a, *b);
}

// Waits until the device may be ready. False once the moment has passed; true may come for nothing.
bool WaitFor(int descriptor, short events, Moment until) {
    pollfd entry{descriptor, events, 0};
    timespec left{};
    if (until) {
        const std::int64_t time = *until - SystemClock().Counter();
        if (time <= 0) return false;
        left.tv_sec = static_cast<time_t>(time / (1000 * kMillisecond));
        left.tv_nsec = static_cast<long>(time % (1000 * kMillisecond));
    }
    ppoll(&entry, 1, until ? &left : nullptr, nullptr);
    return true;
}

bool HungUp(int descriptor) {
    pollfd entry{descriptor, 0, 0};
    return poll(&entry, 1, 0) > 0;
}

// Another program may have changed the line so that a read of nothing means that nothing has come yet.
bool IsTransient(int descriptor, ssize_t moved) {
    return moved == 0 ? !HungUp(descriptor) : errno == EAGAIN || errno == EINTR;
}

// A vanished device answers at once; the caller's loop over it must not spin.
void WaitOutDeadLine(Moment until) {
    if (until) SleepUntil(*until);
}

// Exclusive use. The lock on the file holds against our own kind and against root; the terminal's own mark holds
// against every other program. That mark would outlive a killed program on a pseudo-terminal whose other end is kept
// open, and lock the next one out, so it is set on real ports only.
bool Claim(Device& device) {
    if (flock(device.descriptor, LOCK_EX | LOCK_NB) != 0) return false;
    if (!IsPseudoTerminal(device.descriptor)) device.exclusive = ioctl(device.descriptor, TIOCEXCL) == 0;
    return true;
}

class PosixSerial final : public ISerialPlatform {
public:
    SerialHandle Open(const char* path) override {
        lastError.clear();
        auto device = std::make_unique<Device>();
        device->descriptor = open(path, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (device->descriptor < 0) return Refuse(errno);
        const bool terminal = isatty(device->descriptor) != 0;
        if (terminal && Claim(*device)) return reinterpret_cast<SerialHandle>(device.release());
        const int code = terminal ? errno : ENOTTY;
        close(device->descriptor);
        return Refuse(code);
    }

    void Close(SerialHandle handle) override {
        const std::unique_ptr<Device> device(DeviceOf(handle));
        if (!device) return;
        if (device->exclusive) ioctl(device->descriptor, TIOCNXCL);
        close(device->descriptor);
    }

    bool GetState(SerialHandle handle, SerialSettings& settings) override {
        const Device* device = DeviceOf(handle);
        return device != nullptr && GetLineSettings(device->descriptor, settings);
    }

    bool SetState(SerialHandle handle, const SerialSettings& settings) override {
        const Device* device = DeviceOf(handle);
        if (device == nullptr) return false;
        if (SetLineSettings(device->descriptor, settings)) return true;
        lastError =
            "port refuses " + std::to_string(settings.baud) + " baud (" + std::generic_category().message(errno) + ")";
        return false;
    }

    bool SetTimeouts(SerialHandle handle, const SerialTimeouts& times) override {
        Device* device = DeviceOf(handle);
        if (device != nullptr) device->times = times;
        return device != nullptr;
    }

    // The kernel's queues are larger than any that is asked for, and fixed.
    bool SetQueues(SerialHandle handle, std::uint32_t /*inputSize*/, std::uint32_t /*outputSize*/) override {
        return DeviceOf(handle) != nullptr;
    }

    void Purge(SerialHandle handle, bool output, bool input) override {
        const Device* device = DeviceOf(handle);
        if (device == nullptr || (!output && !input)) return;
        tcflush(device->descriptor, output && input ? TCIOFLUSH : output ? TCOFLUSH : TCIFLUSH);
    }

    std::uint32_t Read(SerialHandle handle, void* buffer, std::uint32_t count) override;
    std::uint32_t Write(SerialHandle handle, const void* buffer, std::uint32_t count) override;

    bool Vanished(SerialHandle handle) const override {
        const Device* device = DeviceOf(handle);
        return device != nullptr && device->vanished;
    }

    std::string LastError() const override { return lastError; }

private:
    static void NoteVanished(Device& device) {
        device.vanished = true;
        lastError = "port has vanished";
    }

    static SerialHandle Refuse(int code) {
        lastError = OpenSentence(code);
        return kInvalidSerialHandle;
    }
};

std::uint32_t PosixSerial::Read(SerialHandle handle, void* buffer, std::uint32_t count) {
    Device* device = DeviceOf(handle);
    if (device == nullptr || count == 0) return 0;
    const ReadLimits limits = LimitsOfRead(device->times, count);
    const std::int64_t start = SystemClock().Counter();
    const Moment end = After(start, limits.total);
    Moment gapEnd;
    std::uint32_t got = 0;
    for (;;) {
        const ssize_t moved = read(device->descriptor, static_cast<std::uint8_t*>(buffer) + got, count - got);
        if (moved > 0) {
            got += static_cast<std::uint32_t>(moved);
            if (got == count || limits.firstBytesEndIt) return got;
            gapEnd = After(SystemClock().Counter(), limits.gap);
        } else if (!IsTransient(device->descriptor, moved)) {
            NoteVanished(*device);
            if (got == 0 && !limits.immediate) WaitOutDeadLine(end ? end : After(start, kDeadLineWait));
            return got;
        } else if (limits.immediate && (moved == 0 || errno == EAGAIN)) {
            return got;
        }
        // After bytes too: a slow line hands over one by one, and looking again at once would cost a call for each.
        if (!limits.immediate && !WaitFor(device->descriptor, POLLIN, Earlier(end, gapEnd))) return got;
    }
}

// A write ends when the kernel has taken the bytes; they may still be on their way.
std::uint32_t PosixSerial::Write(SerialHandle handle, const void* buffer, std::uint32_t count) {
    Device* device = DeviceOf(handle);
    if (device == nullptr || count == 0) return 0;
    const std::int64_t start = SystemClock().Counter();
    const Moment end = After(start, LimitOfWrite(device->times, count));
    std::uint32_t sent = 0;
    for (;;) {
        const ssize_t moved = write(device->descriptor, static_cast<const std::uint8_t*>(buffer) + sent, count - sent);
        if (moved > 0) {
            sent += static_cast<std::uint32_t>(moved);
            if (sent == count) return sent;
        } else if (!IsTransient(device->descriptor, moved)) {
            NoteVanished(*device);
            WaitOutDeadLine(end ? end : After(start, kDeadLineWait));
            return 0;
        } else if (!WaitFor(device->descriptor, POLLOUT, end)) {
            return sent;
        }
    }
}

}  // namespace

ISerialPlatform& SystemSerial() {
    static PosixSerial serial;
    return serial;
}

}  // namespace corvex
