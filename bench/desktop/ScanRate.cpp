#include "bench/desktop/ScanRate.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/desktop/Figures.h"
#include "tests/program/CorvexWindow.h"
#include "tests/program/EngineHost.h"
#include "tests/program/ProgramFolder.h"
#include "tests/program/RunningProgram.h"
#include "tests/support/Eventually.h"

namespace corvex::bench {

namespace {

constexpr double kBaud = 8192, kBitsOfByte = 10, kRequest = 5, kReply = 63;
constexpr DWORD kScanTime = 16000;  // ms; the text begins anew with the 201st reply, at 16.7 s
constexpr int kRuns = 3;            // of each
constexpr int kOutputTab = 0, kDashTab = 1;

// The seconds that the lines of good replies begin with.
std::vector<double> ReplyTimes(const std::vector<std::string>& lines) {
    std::vector<double> times;
    for (const std::string& line : lines) {
        if (line.find("Command/Reply Success") != std::string::npos) times.push_back(std::atof(line.c_str()));
    }
    return times;
}

// Replies in a second.
double ScanOnce(const test::CorvexWindow& window) {
    window.Send(test::kScan);
    if (!test::Eventually([&] { return window.LeftText() == "ALDL: Connected"; }))
        throw std::runtime_error("no connection: " + window.LeftText());
    ::Sleep(kScanTime);
    const std::vector<double> times = ReplyTimes(window.OutputLines());
    window.Send(test::kScan);
    if (times.size() < 2) throw std::runtime_error("no replies");
    if (!test::Eventually([&] { return window.LeftText() == "ALDL: Not Connected"; }))
        throw std::runtime_error("the scan does not end");
    ::Sleep(300);  // the stop's own thread may take a moment longer
    return static_cast<double>(times.size() - 1) / (times.back() - times.front());
}

void Report(const char* tab, const std::vector<double>& rates) {
    const double limit = kBaud / kBitsOfByte / (kRequest + kReply);
    std::printf("scan rate, %s tab on show: median %.3f Hz of %zu scans, the line's limit %.3f Hz, share %.2f %%%s\n",
                tab, Median(rates), rates.size(), limit, 100.0 * Median(rates) / limit,
                tab[0] == 'O' ? " (wanted: at least 99)" : "");
}

}  // namespace

void PrintScanRate() {
    const test::ProgramFolder folder;
    folder.PutSettings({{"comport", "COM1"}, {"lastadxpath", folder.TakeExample("harrier-8192.adx")}});
    test::EngineHost engines;
    engines.Start({"--pace", "--stats"});
    const test::RunningProgram program(folder.Program(), folder.Path());
    const test::CorvexWindow window = test::CorvexWindow::WaitFor(program.Id());
    std::vector<double> seen, unseen;
    for (int i = 0; i < kRuns; ++i) {
        window.ShowTab(kOutputTab);
        seen.push_back(ScanOnce(window));
        window.ShowTab(kDashTab);
        unseen.push_back(ScanOnce(window));
    }
    window.Close();
    program.WaitForExit(30000);
    Report("Output", seen);
    Report("Dash", unseen);
    std::printf("the engine's own account: %s\n", engines.Stop().c_str());
}

}  // namespace corvex::bench
