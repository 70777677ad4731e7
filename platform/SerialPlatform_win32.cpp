#include <algorithm>
#include <memory>

#include "platform/Clock.h"
#include "platform/SerialPlatform.h"
#include "platform/SerialTimes.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

// What stands behind a SerialHandle.
struct Device {
    HANDLE file = INVALID_HANDLE_VALUE;
    DWORD baud = 0;  // as last asked for
    bool vanished = false;
    SerialTimeouts times;
};

Device* DeviceOf(SerialHandle handle) {
    if (handle == 0 || handle == kInvalidSerialHandle) return nullptr;
    return reinterpret_cast<Device*>(handle);
}

// The emulated thread storage of this compiler can't be relied on for objects with destructors at thread end, so the
// error is kept as numbers and the sentence made when asked for.
enum class Failure { kNone, kOpen, kSettings, kVanished };
thread_local Failure lastFailure = Failure::kNone;
thread_local DWORD lastCode = 0;
thread_local std::uint32_t lastBaud = 0;

std::string WithCode(const char* text) {
    return std::string(text) + " (error " + std::to_string(lastCode) + ")";
}

std::string OpenSentence() {
    switch (lastCode) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
            return "no such port";
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
            return "port is in use by another program";
        default:
            return WithCode("port can't be opened");
    }
}

// Some drivers fail with it where others bring or take nothing.
bool IsTimeout(DWORD code) {
    return code == ERROR_TIMEOUT || code == ERROR_SEM_TIMEOUT || code == WAIT_TIMEOUT;
}

// Some drivers read nothing for ever when their adapter has gone, but fail when they are asked how it is; some others
// can't be asked.
bool IsGone(HANDLE file) {
    if (ClearCommError(file, nullptr, nullptr) != 0) return false;
    return GetLastError() != ERROR_INVALID_FUNCTION && GetLastError() != ERROR_NOT_SUPPORTED;
}

// A removed adapter fails at once; the caller's loop over it must not spin.
void WaitOutDeadLine(std::int64_t start, std::int64_t milliseconds) {
    SleepUntil(start + milliseconds * SystemClock().Frequency() / 1000);
}

class WindowsSerial final : public ISerialPlatform {
public:
    SerialHandle Open(const char* path) override {
        auto device = std::make_unique<Device>();
        lastFailure = Failure::kNone;
        device->file = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        if (device->file == INVALID_HANDLE_VALUE) {
            lastCode = GetLastError();
            lastFailure = Failure::kOpen;
            return kInvalidSerialHandle;
        }
        return reinterpret_cast<SerialHandle>(device.release());
    }

    void Close(SerialHandle handle) override {
        const std::unique_ptr<Device> device(DeviceOf(handle));
        if (device) CloseHandle(device->file);
    }

    bool GetState(SerialHandle handle, SerialSettings& settings) override {
        DCB line{};
        if (!ReadState(DeviceOf(handle), line)) return false;
        settings.baud = KnowsRate(*DeviceOf(handle), line) ? line.BaudRate : 0;
        settings.byteSize = line.ByteSize;
        settings.parity = line.Parity != NOPARITY;
        settings.ctsFlow = line.fOutxCtsFlow != 0;
        settings.dsrFlow = line.fOutxDsrFlow != 0;
        settings.dsrSensitivity = line.fDsrSensitivity != 0;
        settings.dtrEnable = line.fDtrControl != DTR_CONTROL_DISABLE;
        settings.rtsEnable = line.fRtsControl != RTS_CONTROL_DISABLE;
        return true;
    }

    bool SetState(SerialHandle handle, const SerialSettings& settings) override {
        Device* device = DeviceOf(handle);
        DCB line{};
        if (!ReadState(device, line)) return false;
        line.BaudRate = settings.baud;
        line.ByteSize = settings.byteSize;
        if (!settings.parity) line.Parity = NOPARITY;
        line.fOutxCtsFlow = settings.ctsFlow ? 1U : 0U;
        line.fOutxDsrFlow = settings.dsrFlow ? 1U : 0U;
        line.fDsrSensitivity = settings.dsrSensitivity ? 1U : 0U;
        line.fDtrControl = settings.dtrEnable ? 1U : 0U;
        line.fRtsControl = settings.rtsEnable ? 1U : 0U;
        PassEveryByte(line);
        device->baud = settings.baud;
        if (SetCommState(device->file, &line) != 0) return true;
        lastCode = GetLastError();
        lastBaud = settings.baud;
        lastFailure = Failure::kSettings;
        return false;
    }

    bool SetTimeouts(SerialHandle handle, const SerialTimeouts& times) override {
        Device* device = DeviceOf(handle);
        if (device == nullptr) return false;
        device->times = times;
        COMMTIMEOUTS limits{times.readInterval, times.readMultiplier, times.readConstant, times.writeMultiplier,
                            times.writeConstant};
        return SetCommTimeouts(device->file, &limits) != 0;
    }

    bool SetQueues(SerialHandle handle, std::uint32_t inputSize, std::uint32_t outputSize) override {
        const Device* device = DeviceOf(handle);
        return device != nullptr && SetupComm(device->file, inputSize, outputSize) != 0;
    }

    void Purge(SerialHandle handle, bool output, bool input) override {
        const Device* device = DeviceOf(handle);
        if (device == nullptr) return;
        PurgeComm(device->file, (output ? PURGE_TXCLEAR : 0U) | (input ? PURGE_RXCLEAR : 0U));
    }

    std::uint32_t Read(SerialHandle handle, void* buffer, std::uint32_t count) override {
        Device* device = DeviceOf(handle);
        if (device == nullptr) return 0;
        const std::int64_t start = SystemClock().Counter();
        const ReadLimits limits = LimitsOfRead(device->times, count);
        DWORD moved = 0;
        if (ReadFile(device->file, buffer, count, &moved, nullptr) != 0) {
            if (moved == 0 && count != 0 && !limits.immediate && IsGone(device->file)) NoteFailure(*device);
            return moved;
        }
        NoteFailure(*device);
        WaitOutDeadLine(start, limits.immediate ? 0 : limits.total.value_or(kDeadLineWait));
        return 0;
    }

    std::uint32_t Write(SerialHandle handle, const void* buffer, std::uint32_t count) override {
        Device* device = DeviceOf(handle);
        if (device == nullptr) return 0;
        const std::int64_t start = SystemClock().Counter();
        DWORD moved = 0;
        if (WriteFile(device->file, buffer, count, &moved, nullptr) != 0) return moved;
        NoteFailure(*device);
        WaitOutDeadLine(start, LimitOfWrite(device->times, count).value_or(kDeadLineWait));
        return 0;
    }

    bool Vanished(SerialHandle handle) const override {
        const Device* device = DeviceOf(handle);
        return device != nullptr && device->vanished;
    }

    std::string LastError() const override {
        switch (lastFailure) {
            case Failure::kOpen:
                return OpenSentence();
            case Failure::kSettings:
                return WithCode(("port refuses " + std::to_string(lastBaud) + " baud").c_str());
            case Failure::kVanished:
                return WithCode("port has vanished");
            default:
                return {};
        }
    }

private:
    static bool ReadState(const Device* device, DCB& line) {
        if (device == nullptr) return false;
        line.DCBlength = sizeof line;
        return GetCommState(device->file, &line) != 0;
    }

    // What another program has left behind would take flow characters out of the data, drop zeros, put one byte in
    // another's place, or stop all reading after an error until somebody asks for it.
    static void PassEveryByte(DCB& line) {
        line.fOutX = line.fInX = 0;
        line.fErrorChar = line.fNull = 0;
        line.fAbortOnError = 0;
    }

    // Wine tells this rate of every line that has none of the standard ones, and of a pseudo-terminal, which has none
    // at all.
    static bool KnowsRate(const Device& device, const DCB& line) {
        constexpr DWORD kStandIn = 38400;
        static const bool emulated = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
        return !emulated || line.BaudRate != kStandIn || device.baud == kStandIn;
    }

    static void NoteFailure(Device& device) {
        const DWORD code = GetLastError();
        if (IsTimeout(code)) return;
        lastCode = code;
        lastFailure = Failure::kVanished;
        device.vanished = true;
    }
};

}  // namespace

ISerialPlatform& SystemSerial() {
    static WindowsSerial serial;
    return serial;
}

}  // namespace corvex
