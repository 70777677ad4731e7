#include "bench/desktop/ViewedScan.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "bench/desktop/StolenTime.h"
#include "bench/desktop/ViewDefinition.h"
#include "tests/support/Eventually.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::bench {

namespace {

constexpr DWORD kPacedTime = 16000;  // ms; the text begins anew with the 201st reply, at 16.7 s
constexpr DWORD kUnpacedTime = 8000;
constexpr int kDashComboId = 1009, kGraphId = 1007;
enum Tab : int { kOutputTab, kDashTab, kListTab, kHistogramTab, kMonitorTab };

class Stopwatch {
public:
    double Seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
};

// The seconds that the lines of good replies begin with.
std::vector<double> ReplyTimes(const std::vector<std::string>& lines) {
    std::vector<double> times;
    for (const std::string& line : lines) {
        if (line.find("Command/Reply Success") != std::string::npos) times.push_back(std::atof(line.c_str()));
    }
    return times;
}

double RateOf(const std::vector<double>& times) {
    if (times.size() < 2) throw std::runtime_error("no replies");
    return static_cast<double>(times.size() - 1) / (times.back() - times.front());
}

std::string SettingsFor(const test::ProgramFolder& folder) {
    folder.PutSettings({{"comport", "COM1"}, {"lastadxpath", PutViewDefinition(folder)}});
    return folder.Program();
}

}  // namespace

const char* NameOf(View view) {
    switch (view) {
        case View::kOutput:
            return "Output tab";
        case View::kReadouts:
            return "dash of 12 without analog gauges";
        case View::kFourAnalog:
            return "dash of 12, four of them analog";
        case View::kList:
            return "item list";
        case View::kHistogram:
            return "table of a histogram";
        case View::kSurface:
            return "histogram as a surface";
        case View::kMonitors:
            return "two monitors of seven series";
    }
    return "";
}

ViewedScan::ViewedScan()
    : program_(SettingsFor(folder_), folder_.Path()), window_(test::CorvexWindow::WaitFor(program_.Id())) {}

ViewedScan::~ViewedScan() {
    window_.Close();
    program_.WaitForExit(30000);
}

ScanFigures ViewedScan::Paced(View view) {
    engines_.Start({"--pace"});
    Show(view);
    Begin();
    const Stopwatch time;
    const double before = ProcessorTime();
    const StolenTime stolen;
    ::Sleep(kPacedTime);
    ScanFigures figures;
    figures.stolen = stolen.Share();
    figures.processor = (ProcessorTime() - before) / time.Seconds();
    figures.rate = RateOf(ReplyTimes(window_.OutputLines()));
    End();
    engines_.Stop();
    return figures;
}

ScanFigures ViewedScan::Unpaced(View view) {
    engines_.Start();
    Show(view);
    const Stopwatch time;
    const double before = ProcessorTime();
    Begin();
    ::Sleep(kUnpacedTime);
    End();
    const double seconds = time.Seconds(), processor = ProcessorTime() - before;
    const auto replies = static_cast<double>(test::CountIn(engines_.Stop(), "replies"));
    return {replies / seconds, processor / seconds};
}

void ViewedScan::Show(View view) const {
    if (view == View::kReadouts || view == View::kFourAnalog) {
        test::SelectRow(test::FindBelow(window_.Handle(), "ComboBox", kDashComboId),
                        view == View::kReadouts ? kTwelveReadouts : kFourAnalog);
        window_.ShowTab(kDashTab);
    } else {
        window_.ShowTab(view == View::kOutput     ? kOutputTab
                        : view == View::kList     ? kListTab
                        : view == View::kMonitors ? kMonitorTab
                                                  : kHistogramTab);
        const HWND graph = test::FindBelow(window_.Handle(), "Button", kGraphId);
        const bool isChecked = ::SendMessageA(graph, BM_GETCHECK, 0, 0) == BST_CHECKED;
        if (isChecked != (view == View::kSurface)) ::SendMessageA(graph, BM_CLICK, 0, 0);
    }
}

void ViewedScan::Begin() const {
    window_.Send(test::kScan);
    if (!test::Eventually([&] { return window_.LeftText() == "ALDL: Connected"; }))
        throw std::runtime_error("no connection: " + window_.LeftText());
}

void ViewedScan::End() const {
    window_.Send(test::kScan);
    if (!test::Eventually([&] { return window_.LeftText() == "ALDL: Not Connected"; }))
        throw std::runtime_error("the scan does not end");
    ::Sleep(300);  // the stop's own thread may take a moment longer
}

// The system's own account of another process is empty under Wine.
double ViewedScan::ProcessorTime() const {
    return engines_.ProcessorTimeOf(folder_.Program());
}

}  // namespace corvex::bench
