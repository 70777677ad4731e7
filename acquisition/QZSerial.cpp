#include "acquisition/QZSerial.h"

#include <algorithm>
#include <cstring>

#include "acquisition/ReadSlices.h"
#include "session/base/DebugOutput.h"

namespace corvex {

QZSerial::QZSerial(ISerialPlatform& platform) : platform_(platform) {
    Reset();
}

QZSerial::~QZSerial() {
    Close();
}

void QZSerial::Reset() {
    Close();
    sink = nullptr;
    baud = kDefaultBaud;
    block.reset();
    blockSize = 0;
    std::fill(std::begin(path), std::end(path), '\0');
}

int QZSerial::Open(const char* device, std::uint32_t rate) {
    if (IsOpen()) Close();
    if (device != nullptr) {
        const std::size_t length = std::min<std::size_t>(std::strlen(device), kPathSize - 1);
        std::memmove(path, device, length);  // may be our own text
        path[length] = '\0';
    }
    baud = rate;
    lineBaud = 0;
    handle = platform_.Open(path);
    if (!IsOpen()) {
        DebugOutput::Print(sink, "QZSerial: Open Port %s Failed", path);
        return Refuse();
    }
    DebugOutput::Print(sink, "QZSerial: Successfully opened %s", path);
    if (!ApplyLineSettings()) return Refuse();
    SetTimeouts(40, 0, 300, 0, 300, kAllTimeouts);
    DebugOutput::Print(sink, "QZSerial: %s opened at %i baud", path, static_cast<int>(baud));
    return 1;
}

bool QZSerial::ApplyLineSettings() {
    SerialSettings settings;
    if (!platform_.GetState(handle, settings)) {
        DebugOutput::Print(sink, "QZSerial: GetCommState Failed");
        return false;
    }
    settings.baud = baud;
    settings.byteSize = 8;
    settings.parity = false;
    settings.ctsFlow = settings.dsrFlow = settings.dsrSensitivity = false;
    settings.dtrEnable = settings.rtsEnable = true;
    if (!platform_.SetState(handle, settings)) {
        DebugOutput::Print(sink, "QZSerial: SetCommState Failed");
        return false;
    }
    // A driver may take a rate and run at another one. That it can't tell is no reason to refuse the port.
    if (platform_.GetState(handle, settings)) lineBaud = settings.baud;
    return true;
}

int QZSerial::Refuse() {
    Close();
    return 0;
}

void QZSerial::Close() {
    if (IsOpen()) platform_.Close(handle);
    handle = kInvalidSerialHandle;
    DebugOutput::Print(sink, "QZSerial: Port Closed");
}

int QZSerial::SetTimeouts(std::uint32_t interval, std::uint32_t readMultiplier, std::uint32_t readConstant,
                          std::uint32_t writeMultiplier, std::uint32_t writeConstant, std::uint32_t mask) {
    if (handle == 0) return 0;
    if ((mask & kReadConstant) != 0) timeouts.readConstant = readConstant;
    if ((mask & kReadMultiplier) != 0) timeouts.readMultiplier = readMultiplier;
    if ((mask & kReadInterval) != 0) timeouts.readInterval = interval;
    if ((mask & kWriteConstant) != 0) timeouts.writeConstant = writeConstant;
    if ((mask & kWriteMultiplier) != 0) timeouts.writeMultiplier = writeMultiplier;
    inSlices_ = ReadSlices::AreNeeded(timeouts);
    return ApplyTimeouts(inSlices_ ? ReadSlices::kLongest : 0) ? 1 : 0;
}

// The timeouts as stored, but for the total of a slice. A byte that is waited for alone has no gap; the largest
// interval would have a meaning of its own beside a total.
bool QZSerial::ApplyTimeouts(std::uint32_t slice) {
    SerialTimeouts applied = timeouts;
    if (slice != 0) {
        if (applied.readInterval == kNoGapLimit) applied.readInterval = 0;
        applied.readMultiplier = 0;
        applied.readConstant = slice;
    }
    slice_ = slice;
    return platform_.SetTimeouts(handle, applied);
}

int QZSerial::SetQueues(std::uint32_t input, std::uint32_t output) {
    if (handle == 0) return 0;
    return platform_.SetQueues(handle, input, output) ? 1 : 0;
}

void QZSerial::Purge(QZSerial* port, bool clearOutput, bool clearInput) {
    if (port != nullptr) port->platform_.Purge(port->handle, clearOutput, clearInput);
}

std::uint32_t QZSerial::Read(void* buffer, std::uint32_t count) {
    if (handle == 0) return 0;
    cut_ = false;
    const std::uint32_t moved = inSlices_ && count != 0 ? ReadInSlices(static_cast<std::uint8_t*>(buffer), count)
                                                        : platform_.Read(handle, buffer, count);
    DebugOutput::HexDump("QZSerial: Read", sink, buffer, moved);
    return moved;
}

std::uint32_t QZSerial::ReadInSlices(std::uint8_t* bytes, std::uint32_t count) {
    ReadSlices slices(LimitsOfRead(timeouts, count), CurrentClock());
    std::uint32_t got = 0;
    while (got < count) {
        const std::uint32_t wait = slices.Next();
        if (wait == 0) break;
        if (GivesUp(slices)) return got;
        // Changed at the end of a wait alone, so that a read of many bytes costs no call for each.
        if (wait != slice_) ApplyTimeouts(wait);
        const std::uint32_t moved = platform_.Read(handle, bytes + got, 1);
        got += moved;
        if (!slices.Took(moved != 0)) return got;
        // Nothing comes any more, and what waits for the device to come back should not wait for this read as well.
        if (moved == 0 && Vanished()) return got;
    }
    if (got < count && slices.EndedBehindByte()) got += ReadWhatIsThere(bytes + got, count - got);
    return got;
}

bool QZSerial::GivesUp(ReadSlices& slices) {
    cut_ = slices.LooksForStop() && giveUp && giveUp();
    return cut_;
}

std::uint32_t QZSerial::ReadWhatIsThere(std::uint8_t* bytes, std::uint32_t count) {
    slice_ = 0;
    if (!platform_.SetTimeouts(handle, {kNoGapLimit, 0, 0, timeouts.writeMultiplier, timeouts.writeConstant})) return 0;
    return platform_.Read(handle, bytes, count);
}

std::uint32_t QZSerial::Write(const void* buffer, std::uint32_t count) {
    if (handle == 0) return 0;
    const std::uint32_t moved = platform_.Write(handle, buffer, count);
    DebugOutput::HexDump("QZSerial: Write", sink, buffer, moved);
    return moved;
}

}  // namespace corvex
