// What cutting a read into slices does to its duration and its cost: the same reads on a pseudo-terminal, in turn in
// one piece (by the system's port alone) and in slices (by QZSerial). Usage: bench_read [ROUNDS].

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "acquisition/QZSerial.h"
#include "platform/Clock.h"
#include "platform/PseudoTerminal.h"

namespace corvex {

namespace {

struct Case {
    const char* name;
    SerialTimeouts times;
    std::uint32_t count;
    std::vector<double> arrivals;  // ms after the read began
};

struct Figures {
    std::vector<double> took;  // ms
    double cpu = 0;            // ms of the reading thread, all rounds
    std::uint32_t bytes = 0;   // all rounds
};

std::vector<double> Every(double ms, int count) {
    std::vector<double> moments;
    for (int i = 1; i <= count; ++i)
        moments.push_back(ms * i);
    return moments;
}

double ThreadMilliseconds() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    const auto ms = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

// The far end sends while the read runs.
template <class Reader>
void Measure(PseudoTerminal& farEnd, const Case& one, Figures& figures, const Reader& read) {
    IClock& clock = SystemClock();
    const double perMs = static_cast<double>(clock.Frequency()) / 1000.0;
    const std::int64_t start = clock.Counter();
    std::thread sender([&] {
        for (const double ms : one.arrivals) {
            SleepUntil(start + static_cast<std::int64_t>(ms * perMs));
            farEnd.Write("x", 1);
        }
    });
    std::vector<std::uint8_t> bytes(one.count);
    const double before = ThreadMilliseconds();
    const std::int64_t began = clock.Counter();
    figures.bytes += read(bytes.data(), one.count);
    figures.took.push_back(static_cast<double>(clock.Counter() - began) / perMs);
    figures.cpu += ThreadMilliseconds() - before;
    sender.join();
}

double Median(std::vector<double> numbers) {
    std::sort(numbers.begin(), numbers.end());
    return numbers[numbers.size() / 2];
}

void Report(const Case& one, const Figures& whole, const Figures& sliced, int rounds) {
    const double before = Median(whole.took), after = Median(sliced.took);
    const double worst = *std::max_element(sliced.took.begin(), sliced.took.end()) -
                         *std::max_element(whole.took.begin(), whole.took.end());
    std::printf(
        "%-34s %8.2f ms -> %8.2f ms, ratio %.4f; the worst %+.2f ms; %.1f -> %.1f bytes; thread %.3f -> %.3f ms\n",
        one.name, before, after, after / before, worst, static_cast<double>(whole.bytes) / rounds,
        static_cast<double>(sliced.bytes) / rounds, whole.cpu / rounds, sliced.cpu / rounds);
}

void Compare(QZSerial& port, PseudoTerminal& farEnd, const Case& one, int rounds) {
    Figures whole, sliced;
    const SerialTimeouts& t = one.times;
    for (int i = 0; i < rounds; ++i) {
        QZSerial::Purge(&port, true, true);
        SystemSerial().SetTimeouts(port.handle, t);
        Measure(farEnd, one, whole, [&](std::uint8_t* bytes, std::uint32_t count) {
            return SystemSerial().Read(port.handle, bytes, count);
        });
        QZSerial::Purge(&port, true, true);
        port.SetTimeouts(t.readInterval, t.readMultiplier, t.readConstant, 0, 300, QZSerial::kAllTimeouts);
        Measure(farEnd, one, sliced, [&](std::uint8_t* bytes, std::uint32_t count) { return port.Read(bytes, count); });
    }
    Report(one, whole, sliced, rounds);
}

int Run(int rounds) {
    std::string error;
    const auto farEnd = PseudoTerminal::Open(error);
    QZSerial port;
    if (!farEnd || port.Open(farEnd->Name().c_str(), 8192) == 0) {
        std::fprintf(stderr, "no line: %s\n", error.c_str());
        return 1;
    }
    const SerialTimeouts poll{75, 0, 200, 0, 300};
    const std::vector<Case> cases{
        {"silence, 200 ms", poll, 63, {}},
        {"silence, 120 ms", {75, 0, 120, 0, 300}, 1, {}},
        {"63 bytes at 8192 baud", poll, 63, Every(1.2207, 63)},
        {"40 of 63 bytes, then a gap", poll, 63, Every(1.2207, 40)},
        {"2 of 5 bytes, then a gap", poll, 5, {1, 2}},
        {"a byte each 60 ms, 10 wanted", poll, 10, Every(60, 4)},
        {"63 bytes at once", poll, 63, std::vector<double>(63, 1.0)},
        {"1 of 3 bytes, no gap limit", {0, 0, 500, 0, 300}, 3, {30}},
    };
    for (const Case& one : cases)
        Compare(port, *farEnd, one, rounds);
    return 0;
}

}  // namespace

}  // namespace corvex

int main(int argc, char** argv) {
    return corvex::Run(argc > 1 ? std::atoi(argv[1]) : 40);
}
