// How soon a scan obeys a stop, whatever its command waits for: on a pseudo-terminal whose far end never answers, the
// time from the stop to the first byte of the disconnect command there, and to the closed port where there is none.
// Usage: bench_stop [ROUNDS].

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "platform/Clock.h"
#include "platform/PseudoTerminal.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint8_t kDisconnectByte = 0xD0;
constexpr double kAllowed = 300;  // ms

double MillisecondsSince(std::int64_t start, std::int64_t end) {
    return static_cast<double>(end - start) * 1000.0 / static_cast<double>(SystemClock().Frequency());
}

// Notes when the disconnect command's byte comes.
class FarEnd {
public:
    explicit FarEnd(PseudoTerminal& line) : line_(line), thread_([this] { Listen(); }) {}
    ~FarEnd() {
        ends_ = true;
        thread_.join();
    }
    FarEnd(const FarEnd&) = delete;
    FarEnd& operator=(const FarEnd&) = delete;

    std::atomic<std::int64_t> disconnectAt{0};

private:
    void Listen() {
        while (!ends_) {
            line_.WaitForInput(SystemClock().Counter() + SystemClock().Frequency() / 100);
            std::uint8_t bytes[64];
            const std::size_t count = line_.Read(bytes, sizeof bytes);
            if (std::find(bytes, bytes + count, kDisconnectByte) != bytes + count)
                disconnectAt = SystemClock().Counter();
        }
    }

    PseudoTerminal& line_;
    std::atomic<bool> ends_{false};
    std::thread thread_;
};

// How late the machine itself wakes a thread that does nothing but sleep: what other programs cost every figure here.
class Lateness {
public:
    Lateness() : thread_([this] { Watch(); }) {}
    ~Lateness() {
        ends_ = true;
        thread_.join();
    }
    Lateness(const Lateness&) = delete;
    Lateness& operator=(const Lateness&) = delete;

    // Milliseconds, since it was last asked for.
    double TakeWorst() { return worst_.exchange(0); }

private:
    void Watch() {
        while (!ends_) {
            const std::int64_t moment = SystemClock().Counter() + SystemClock().Frequency() / 200;
            SleepUntil(moment);
            worst_ = std::max(worst_.load(), MillisecondsSince(moment, SystemClock().Counter()));
        }
    }

    std::atomic<double> worst_{0};
    std::atomic<bool> ends_{false};
    std::thread thread_;
};

struct Commands {
    ADXCSendCommand hour, endless, disconnect;
    ADXCTrigger trigger;
    ADXMacro tight;
    ADXCListenSilence delay;

    Commands() {
        const std::uint8_t poll = 0xA0, leave = kDisconnectByte;
        for (ADXCSendCommand* send : {&hour, &endless}) {
            send->SetBytes(&poll, 1);
            send->replysize = 10;
            send->flags = 1;
        }
        hour.replytimeout = 3'600'000;
        endless.replytimeout = 0;
        disconnect.SetBytes(&leave, 1);
        disconnect.flags = 0;
        ADXMacroNode node;
        node.command = &trigger;
        node.repeatcount = 0xFFFFFFFF;
        tight.AddNode(&node);
        tight.repeatcount = 0xFFFFFFFF;
        delay.silencelen = 0;
        delay.totaltimeout = 0xFFFFFFFF;
    }
};

class Stopper {
public:
    Stopper(PseudoTerminal& line, int rounds) : farEnd_(line), session_(CallsOf()), rounds_(rounds) {
        std::snprintf(session_.settings.comport, sizeof session_.settings.comport, "%s", line.Name().c_str());
    }
    ~Stopper() {
        // The commands are not the definition's own.
        session_.definition.monitorcmd = session_.definition.disconnectcmd = nullptr;
    }
    Stopper(const Stopper&) = delete;
    Stopper& operator=(const Stopper&) = delete;

    bool Report(const char* name, ADXObject& monitor) {
        return Measure(name, monitor, &commands.disconnect) && Measure(name, monitor, nullptr);
    }

    Commands commands;

private:
    SessionCalls CallsOf() {
        SessionCalls calls;
        calls.refreshButtons = [this] {
            if (session_.connectionState == kNotConnected) closedAt_ = SystemClock().Counter();
        };
        return calls;
    }

    // False when a scan did not stop.
    bool Measure(const char* name, ADXObject& monitor, ADXObject* disconnect) {
        session_.definition.monitorcmd = &monitor;
        session_.definition.disconnectcmd = disconnect;
        std::vector<double> times;
        machine_.TakeWorst();
        for (int i = 0; i < rounds_; ++i) {
            session_.ToggleScan();
            while (session_.connectionState == kNotConnected)
                std::this_thread::yield();
            std::this_thread::sleep_for(std::chrono::microseconds(random_() % 60'000));
            const std::int64_t stop = SystemClock().Counter();
            session_.StartStopThread(kStopScan);
            if (!session_.WaitForThreads(std::chrono::seconds(10))) return false;
            while (disconnect != nullptr && farEnd_.disconnectAt < stop)
                std::this_thread::yield();
            times.push_back(MillisecondsSince(stop, disconnect != nullptr ? farEnd_.disconnectAt : closedAt_));
        }
        std::sort(times.begin(), times.end());
        std::printf(
            "%-18s stop to %-18s median %6.2f ms, worst of %d %6.2f ms, %.2f of the allowed %.0f; the machine was late "
            "by up to %.2f ms\n",
            name, disconnect != nullptr ? "disconnect command" : "closed port", times[times.size() / 2], rounds_,
            times.back(), times.back() / kAllowed, kAllowed, machine_.TakeWorst());
        return true;
    }

    FarEnd farEnd_;
    Lateness machine_;
    std::atomic<std::int64_t> closedAt_{0};
    SessionState session_;
    const int rounds_;
    std::mt19937 random_{1};
};

int Run(int rounds) {
    std::string error;
    const auto line = PseudoTerminal::Open(error);
    if (!line) {
        std::fprintf(stderr, "no line: %s\n", error.c_str());
        return 1;
    }
    Stopper stopper(*line, rounds);
    Commands& commands = stopper.commands;
    const bool stopped =
        stopper.Report("reply timeout 1 h", commands.hour) && stopper.Report("reply timeout 0", commands.endless) &&
        stopper.Report("tight macro", commands.tight) && stopper.Report("delay of 49 days", commands.delay);
    if (!stopped) std::fprintf(stderr, "a scan did not stop\n");
    return stopped ? 0 : 1;
}

}  // namespace

}  // namespace corvex

int main(int argc, char** argv) {
    return corvex::Run(argc > 1 ? std::atoi(argv[1]) : 100);
}
