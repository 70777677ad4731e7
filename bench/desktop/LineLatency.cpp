#include "bench/desktop/LineLatency.h"

#include <cstdio>
#include <stdexcept>
#include <vector>

#include "bench/desktop/Figures.h"
#include "bench/desktop/LineLog.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "tests/support/Eventually.h"
#include "tools/driver/CorvexWindow.h"
#include "tools/driver/ProgramFolder.h"
#include "tools/driver/RunningProgram.h"

namespace corvex::bench {

namespace {

constexpr int kRuns = 21;
constexpr int kPhaseStep = 17;   // ms; no divisor of the read timeout, so that stops come at any moment of a read
constexpr double kAllowed = 50;  // ms beyond one read timeout

double Milliseconds(std::int64_t from, std::int64_t to) {
    return static_cast<double>(to - from) / 1e6;
}

struct Waits {
    double silence, read;  // ms that the definition itself asks for: before the first request, and for a reply
};

Waits WaitsOf(const std::string& path) {
    ADXDefinition definition;
    if (definition.Load(path.c_str()) == 0) throw std::runtime_error("no definition " + path);
    const auto* silence = As<ADXCListenSilence>(definition.GetObject(kTypeListenSilence, 0));
    const auto* poll = As<ADXCSendCommand>(definition.GetObject(kTypeSendCommand, 0));
    if (silence == nullptr || poll == nullptr) throw std::runtime_error("no commands in " + path);
    return {static_cast<double>(silence->silencelen), static_cast<double>(poll->replytimeout)};
}

void Report(const std::vector<double>& first, const std::vector<double>& close, const Waits& waits) {
    std::printf("scan command to first byte: median %.1f ms, worst %.1f ms of %d; the definition waits %.0f ms of it\n",
                Median(first), Largest(first), kRuns, waits.silence);
    std::printf(
        "stop to closed port, silent line: median %.1f ms, worst %.1f ms of %d; ratio of the worst to one read "
        "timeout %.2f (wanted: at most %.0f + %.0f ms, %.2f)\n",
        Median(close), Largest(close), kRuns, Largest(close) / waits.read, waits.read, kAllowed,
        (waits.read + kAllowed) / waits.read);
}

}  // namespace

void PrintLineLatency() {
    const test::ProgramFolder folder;
    const std::string definition = folder.TakeExample("harrier-8192.adx");
    folder.PutSettings({{"comport", "COM2"}, {"lastadxpath", definition}});
    const test::RunningProgram program(folder.Program(), folder.Path());
    const test::CorvexWindow window = test::CorvexWindow::WaitFor(program.Id());
    const LineLog log;
    std::vector<double> first, close;
    for (int i = 0; i < kRuns; ++i) {
        const std::size_t before = log.Count();
        const std::int64_t scan = UnixNow();
        window.Send(test::kScan);
        first.push_back(Milliseconds(scan, log.WaitFor("bytes", before).at));

        ::Sleep(static_cast<DWORD>(kPhaseStep * i));
        const std::int64_t stop = UnixNow();
        window.Send(test::kScan);
        close.push_back(Milliseconds(stop, log.WaitFor("close", before).at));
        if (!test::Eventually([&] { return window.LeftText() == "ALDL: Not Connected"; })) break;
        ::Sleep(300);  // the stop's own thread may take a moment longer, and a scan would only stop it again
    }
    window.Close();
    program.WaitForExit(30000);
    Report(first, close, WaitsOf(definition));
}

}  // namespace corvex::bench
