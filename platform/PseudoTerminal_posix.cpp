#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/Clock.h"
#include "platform/PseudoTerminal.h"

namespace corvex {

namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;

std::string Why(const char* what) {
    return std::string(what) + ": " + std::generic_category().message(errno);
}

bool MakeRaw(int descriptor) {
    termios line{};
    if (tcgetattr(descriptor, &line) != 0) return false;
    cfmakeraw(&line);
    return tcsetattr(descriptor, TCSANOW, &line) == 0;
}

}  // namespace

struct PseudoTerminal::State {
    int master = -1, slave = -1;
    std::string name, link;

    ~State() { Close(); }

    void Close() {
        RemoveLink();
        if (master >= 0) close(master);
        if (slave >= 0) close(slave);
        master = slave = -1;
    }

    // Only while it still points here: another program may have taken the name over meanwhile.
    void RemoveLink() {
        if (link.empty()) return;
        std::error_code code;
        if (std::filesystem::read_symlink(link, code) == name) std::filesystem::remove(link, code);
        link.clear();
    }
};

PseudoTerminal::PseudoTerminal(std::unique_ptr<State> state) : state_(std::move(state)) {}
PseudoTerminal::~PseudoTerminal() = default;

std::unique_ptr<PseudoTerminal> PseudoTerminal::Open(std::string& error) {
    auto state = std::make_unique<State>();
    state->master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    std::array<char, 128> name{};
    if (state->master < 0 || grantpt(state->master) != 0 || unlockpt(state->master) != 0 ||
        ptsname_r(state->master, name.data(), name.size()) != 0) {
        error = Why("can't make a pseudo-terminal");
        return nullptr;
    }
    state->name = name.data();
    state->slave = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    // Raw before anybody hears of the name: an echoing terminal would send the first reply back as a request.
    if (state->slave < 0 || !MakeRaw(state->slave)) {
        error = Why("can't set up the pseudo-terminal");
        return nullptr;
    }
    return std::unique_ptr<PseudoTerminal>(new PseudoTerminal(std::move(state)));
}

const std::string& PseudoTerminal::Name() const {
    return state_->name;
}

bool PseudoTerminal::Link(const std::string& path, std::string& error) {
    namespace fs = std::filesystem;
    std::error_code code;
    const fs::file_status status = fs::symlink_status(path, code);
    if (fs::exists(status) && !fs::is_symlink(status)) {
        error = path + " exists and is not a link";
        return false;
    }
    const std::string temporary = path + "." + std::to_string(getpid());
    fs::remove(temporary, code);
    fs::create_symlink(state_->name, temporary, code);
    if (!code) fs::rename(temporary, path, code);
    if (code) {
        error = "can't make the link " + path + ": " + code.message();
        fs::remove(temporary, code);
        return false;
    }
    state_->RemoveLink();
    state_->link = path;
    return true;
}

std::size_t PseudoTerminal::Read(void* buffer, std::size_t count) {
    const ssize_t moved = state_->master < 0 ? 0 : read(state_->master, buffer, count);
    return moved > 0 ? static_cast<std::size_t>(moved) : 0;
}

std::size_t PseudoTerminal::Write(const void* bytes, std::size_t count) {
    const ssize_t moved = state_->master < 0 ? 0 : write(state_->master, bytes, count);
    return moved > 0 ? static_cast<std::size_t>(moved) : 0;
}

bool PseudoTerminal::WaitForInput(std::int64_t until) {
    // An ordinary thread may be woken 50 microseconds late to save power; bytes are paced by this wait.
    thread_local const bool tightened = prctl(PR_SET_TIMERSLACK, 1000UL, 0UL, 0UL, 0UL) == 0;
    static_cast<void>(tightened);
    if (state_->master < 0) {
        SleepUntil(until);
        return false;
    }
    for (;;) {
        const std::int64_t left = std::max<std::int64_t>(until - SystemClock().Counter(), 0);
        timespec time{static_cast<time_t>(left / kNanosecondsPerSecond),
                      static_cast<long>(left % kNanosecondsPerSecond)};
        pollfd entry{state_->master, POLLIN, 0};
        const int result = ppoll(&entry, 1, &time, nullptr);
        if (result > 0) return true;
        if (result == 0 || errno != EINTR) return false;
    }
}

void PseudoTerminal::Unplug() {
    state_->Close();
}

}  // namespace corvex
