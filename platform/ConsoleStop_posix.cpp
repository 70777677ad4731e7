#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <thread>

#include "platform/Clock.h"
#include "platform/ConsoleStop.h"

namespace corvex {

namespace {

constexpr std::array<int, 3> kSignals{SIGINT, SIGTERM, SIGHUP};

// All that a signal handler may touch: a lock-free word and a descriptor to write one byte to.
std::atomic<int> wakeDescriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free);

// One press of Ctrl+C can reach a program twice, from the terminal and from whoever started it. Half a second.
constexpr int kGraceShare = 2;

constexpr char kStopByte = 's', kEndByte = 'e';

void WriteByte(int descriptor, char byte) {
    while (write(descriptor, &byte, 1) < 0 && errno == EINTR) {
    }
}

extern "C" void OnStopSignal(int) {
    const int saved = errno;
    const int descriptor = wakeDescriptor.load(std::memory_order_relaxed);
    if (descriptor >= 0) WriteByte(descriptor, kStopByte);
    errno = saved;
}

}  // namespace

struct ConsoleStop::State {
    std::function<void()> callback;
    std::atomic<bool> requested{false};
    std::array<int, 2> pipe{-1, -1};
    std::array<struct sigaction, kSignals.size()> previous{};
    std::thread watcher;

    struct sigaction previousPipe {};

    void Restore() {
        for (std::size_t i = 0; i < kSignals.size(); ++i)
            sigaction(kSignals[i], &previous[i], nullptr);
    }

    // The next byte, or none when `counter` has come first.
    char Next(std::optional<std::int64_t> counter) {
        for (;;) {
            int wait = -1;
            if (counter) {
                const std::int64_t left = *counter - SystemClock().Counter();
                if (left <= 0) return 0;
                wait = static_cast<int>(left * 1000 / SystemClock().Frequency()) + 1;
            }
            pollfd entry{pipe[0], POLLIN, 0};
            char byte = 0;
            if (poll(&entry, 1, wait) > 0 && read(pipe[0], &byte, 1) == 1) return byte;
        }
    }

    void Watch() {
        if (Next(std::nullopt) == kEndByte) return;
        requested = true;
        if (callback) callback();
        const std::int64_t over = SystemClock().Counter() + SystemClock().Frequency() / kGraceShare;
        for (char byte = kStopByte; byte == kStopByte;) {
            byte = Next(over);
            if (byte == kEndByte) return;
        }
        Restore();
    }
};

ConsoleStop::ConsoleStop(std::function<void()> callback) : state_(std::make_unique<State>()) {
    state_->callback = std::move(callback);
    if (pipe2(state_->pipe.data(), O_CLOEXEC) != 0) return;  // no descriptors left: Ctrl+C simply ends the program
    wakeDescriptor.store(state_->pipe[1]);
    State* state = state_.get();
    state_->watcher = std::thread([state] { state->Watch(); });
    struct sigaction action {};
    action.sa_handler = OnStopSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &action, &state_->previous[i]);
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ignore, &state_->previousPipe);
}

ConsoleStop::~ConsoleStop() {
    if (state_->pipe[0] < 0) return;
    WriteByte(state_->pipe[1], kEndByte);
    state_->watcher.join();
    state_->Restore();
    sigaction(SIGPIPE, &state_->previousPipe, nullptr);
    wakeDescriptor.store(-1);
    close(state_->pipe[0]);
    close(state_->pipe[1]);
}

bool ConsoleStop::Requested() const {
    return state_->requested.load();
}

}  // namespace corvex
