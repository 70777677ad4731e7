// How close a scan comes to what the line can carry, and what it costs. Runs against a paced simulator in a process of
// its own; usage: bench_scan [SECONDS].

#include <sys/resource.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include "bench/scan/SimulatorProcess.h"
#include "platform/Clock.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr char kDefinition[] = CORVEX_SOURCE_DIR "/examples/harrier-8192.adx";
constexpr double kRequest = 5, kReply = 63;

struct Replies {
    std::atomic<std::int64_t> good{0}, bad{0};
    std::int64_t first = 0, last = 0;  // counts, of good replies
};

double CpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

SessionCalls Counting(Replies& replies) {
    SessionCalls calls;
    calls.replyEnded = [&replies](const DataAcqStatus& status, PacketView) {
        if (status.code != 0) {
            ++replies.bad;
            return;
        }
        replies.last = SystemClock().Counter();
        if (replies.good++ == 0) replies.first = replies.last;
    };
    return calls;
}

int Report(const Replies& replies, double baud, double cpuShare) {
    if (replies.good < 2) {
        std::fprintf(stderr, "no replies\n");
        return 1;
    }
    const double seconds =
        static_cast<double>(replies.last - replies.first) / static_cast<double>(SystemClock().Frequency());
    const double rate = static_cast<double>(replies.good - 1) / seconds;
    const double limit = baud / 10.0 / (kRequest + kReply);
    std::printf("replies: %lld good, %lld bad in %.2f s\n", static_cast<long long>(replies.good),
                static_cast<long long>(replies.bad), seconds);
    std::printf("rate: %.4f Hz; the line's limit: %.4f Hz; share: %.3f %% (wanted: at least 99.5)\n", rate, limit,
                100.0 * rate / limit);
    std::printf("processor share of the scan: %.3f %% of a core (wanted: below 1)\n", 100.0 * cpuShare);
    return 0;
}

int Run(const std::string& simulator, int seconds) {
    SimulatorProcess process(simulator, {kDefinition, "--pace", "--stats"});
    if (process.PortName().empty()) {
        std::fprintf(stderr, "cannot start %s\n", simulator.c_str());
        return 1;
    }
    Replies replies;
    SessionState session(Counting(replies));
    char error[ADXDefinition::kErrorSize] = {};
    if (session.definition.Load(kDefinition, error) == 0) {
        std::fprintf(stderr, "%s: %s\n", kDefinition, error);
        return 1;
    }
    std::snprintf(session.settings.comport, sizeof session.settings.comport, "%s", process.PortName().c_str());
    const double cpuBefore = CpuSeconds();
    session.ToggleScan();
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const double cpu = CpuSeconds() - cpuBefore;
    session.StartStopThread(kStopScan);
    if (!session.WaitForThreads(std::chrono::seconds(5))) return 1;
    process.Stop();
    return Report(replies, session.definition.baud, cpu / seconds);
}

}  // namespace

}  // namespace corvex

int main(int argc, char** argv) {
    const std::string simulator = (std::filesystem::path(argv[0]).parent_path() / "corvex-sim").string();
    return corvex::Run(simulator, argc > 1 ? std::atoi(argv[1]) : 20);
}
