#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <thread>

#include "platform/ConsoleStop.h"

namespace corvex {

namespace {

constexpr std::array<int, 3> kSignals{SIGINT, SIGTERM, SIGHUP};

// All that a signal handler may touch: a lock-free word and a descriptor to write one byte to.
std::atomic<int> wakeDescriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free);

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

    void Watch() {
        char byte = 0;
        for (;;) {
            const ssize_t count = read(pipe[0], &byte, 1);
            if (count < 0 && errno == EINTR) continue;
            if (count != 1 || byte == kEndByte) return;
            if (!requested.exchange(true) && callback) callback();
        }
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
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &action, &state_->previous[i]);
}

ConsoleStop::~ConsoleStop() {
    if (state_->pipe[0] < 0) return;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &state_->previous[i], nullptr);
    wakeDescriptor.store(-1);
    WriteByte(state_->pipe[1], kEndByte);
    state_->watcher.join();
    close(state_->pipe[0]);
    close(state_->pipe[1]);
}

bool ConsoleStop::Requested() const {
    return state_->requested.load();
}

}  // namespace corvex
