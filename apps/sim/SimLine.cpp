#include "apps/sim/SimLine.h"

#include <algorithm>
#include <utility>

#include "platform/Clock.h"
#include "platform/PseudoTerminal.h"
#include "platform/SerialPlatform.h"

namespace corvex {

namespace {

class TerminalLine final : public ISimLine {
public:
    explicit TerminalLine(std::unique_ptr<PseudoTerminal> terminal) : terminal_(std::move(terminal)) {}

    std::int64_t Now() override { return SystemClock().Counter(); }
    std::int64_t Frequency() override { return SystemClock().Frequency(); }
    std::size_t Read(std::uint8_t* buffer, std::size_t count) override { return terminal_->Read(buffer, count); }
    std::size_t Write(const std::uint8_t* bytes, std::size_t count) override { return terminal_->Write(bytes, count); }
    void WaitForInput(std::int64_t until) override { terminal_->WaitForInput(until); }
    void Unplug() override { terminal_->Unplug(); }
    std::string Name() const override { return terminal_->Name(); }

private:
    std::unique_ptr<PseudoTerminal> terminal_;
};

class PortLine final : public ISimLine {
public:
    PortLine(SerialHandle handle, std::string name) : handle_(handle), name_(std::move(name)) {}
    ~PortLine() override { Unplug(); }
    PortLine(const PortLine&) = delete;
    PortLine& operator=(const PortLine&) = delete;

    std::int64_t Now() override { return SystemClock().Counter(); }
    std::int64_t Frequency() override { return SystemClock().Frequency(); }
    std::size_t Read(std::uint8_t* buffer, std::size_t count) override {
        if (handle_ == kInvalidSerialHandle) return 0;
        return SystemSerial().Read(handle_, buffer, static_cast<std::uint32_t>(count));
    }
    std::size_t Write(const std::uint8_t* bytes, std::size_t count) override {
        if (handle_ == kInvalidSerialHandle) return 0;
        return SystemSerial().Write(handle_, bytes, static_cast<std::uint32_t>(count));
    }
    // A port can't be waited for, so it is looked at every millisecond.
    void WaitForInput(std::int64_t until) override { SleepUntil(std::min(until, Now() + Frequency() / 1000)); }
    void Unplug() override {
        if (handle_ != kInvalidSerialHandle) SystemSerial().Close(handle_);
        handle_ = kInvalidSerialHandle;
    }
    std::string Name() const override { return name_; }

private:
    SerialHandle handle_;
    std::string name_;
};

}  // namespace

std::unique_ptr<ISimLine> OpenTerminalLine(const std::string& link, std::string& error) {
    auto terminal = PseudoTerminal::Open(error);
    if (!terminal || (!link.empty() && !terminal->Link(link, error))) return nullptr;
    return std::make_unique<TerminalLine>(std::move(terminal));
}

std::unique_ptr<ISimLine> OpenPortLine(const std::string& port, std::uint32_t baud, std::string& error) {
    ISerialPlatform& serial = SystemSerial();
    const SerialHandle handle = serial.Open(port.c_str());
    if (handle == kInvalidSerialHandle) {
        error = port + ": " + serial.LastError();
        return nullptr;
    }
    auto line = std::make_unique<PortLine>(handle, port);
    SerialSettings settings;
    // Reads return at once with what is there; a write gives up after a second.
    const SerialTimeouts times{0xFFFFFFFF, 0, 0, 0, 1000};
    bool ready = serial.GetState(handle, settings);
    settings.baud = baud;
    settings.byteSize = 8;
    settings.parity = settings.ctsFlow = settings.dsrFlow = settings.dsrSensitivity = false;
    settings.dtrEnable = settings.rtsEnable = true;
    ready = ready && serial.SetState(handle, settings) && serial.SetTimeouts(handle, times);
    if (!ready) {
        error = port + ": " + serial.LastError();
        return nullptr;
    }
    return line;
}

}  // namespace corvex
