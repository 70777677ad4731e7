#include "platform/Clock.h"
#include "platform/PseudoTerminal.h"

namespace corvex {

struct PseudoTerminal::State {
    std::string name;
};

PseudoTerminal::PseudoTerminal(std::unique_ptr<State> state) : state_(std::move(state)) {}
PseudoTerminal::~PseudoTerminal() = default;

std::unique_ptr<PseudoTerminal> PseudoTerminal::Open(std::string& error) {
    error = "Windows has no pseudo-terminals; name a serial port";
    return nullptr;
}

const std::string& PseudoTerminal::Name() const {
    return state_->name;
}

bool PseudoTerminal::Link(const std::string&, std::string& error) {
    error = "Windows has no pseudo-terminals to link to";
    return false;
}

std::size_t PseudoTerminal::Read(void*, std::size_t) {
    return 0;
}

std::size_t PseudoTerminal::Write(const void*, std::size_t) {
    return 0;
}

bool PseudoTerminal::WaitForInput(std::int64_t until) {
    SleepUntil(until);
    return false;
}

void PseudoTerminal::Unplug() {}

}  // namespace corvex
