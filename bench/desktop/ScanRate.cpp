#include "bench/desktop/ScanRate.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <vector>

#include "bench/desktop/Figures.h"
#include "bench/desktop/ViewedScan.h"

namespace corvex::bench {

namespace {

constexpr double kBaud = 8192, kBitsOfByte = 10, kRequest = 5, kReply = 63;
constexpr int kScanRuns = 3;  // of each

using Series = std::map<View, std::vector<double>>;

struct Wanted {
    View view;
    double share;  // percent of the line's limit, at least; 0 when none is set
};

constexpr std::array kPacedViews = {
    Wanted{View::kOutput, 99},   Wanted{View::kReadouts, 98},  Wanted{View::kFourAnalog, 0}, Wanted{View::kList, 0},
    Wanted{View::kMonitors, 98}, Wanted{View::kHistogram, 98}, Wanted{View::kSurface, 98}};
constexpr std::array kUnpacedViews = {View::kOutput,    View::kReadouts, View::kFourAnalog, View::kList,
                                      View::kHistogram, View::kSurface,  View::kMonitors};

void ReportPaced(const Wanted& wanted, const std::vector<double>& rates, const std::vector<double>& processor,
                 const std::vector<double>& stolen) {
    const double limit = kBaud / kBitsOfByte / (kRequest + kReply);
    std::printf("scan rate, %s: median %.3f Hz of %zu scans, the line's limit %.3f Hz, share %.2f %%",
                NameOf(wanted.view), Median(rates), rates.size(), limit, 100.0 * Median(rates) / limit);
    if (wanted.share > 0) std::printf(" (wanted: at least %.0f)", wanted.share);
    std::printf("; of one processor %.1f %%; the host took %.1f to %.1f %% of all\n", 100.0 * Median(processor),
                100.0 * *std::min_element(stolen.begin(), stolen.end()), 100.0 * Largest(stolen));
}

}  // namespace

void PrintScanRate() {
    ViewedScan scan;
    Series rates, processor, stolen;
    for (int i = 0; i < kScanRuns; ++i) {
        for (const Wanted& wanted : kPacedViews) {
            const ScanFigures figures = scan.Paced(wanted.view);
            rates[wanted.view].push_back(figures.rate);
            processor[wanted.view].push_back(figures.processor);
            stolen[wanted.view].push_back(figures.stolen);
        }
    }
    for (const Wanted& wanted : kPacedViews)
        ReportPaced(wanted, rates[wanted.view], processor[wanted.view], stolen[wanted.view]);
}

void PrintSustainedRate() {
    ViewedScan scan;
    Series rates, processor;
    for (int i = 0; i < kScanRuns; ++i) {
        for (const View view : kUnpacedViews) {
            const ScanFigures figures = scan.Unpaced(view);
            rates[view].push_back(figures.rate);
            processor[view].push_back(figures.processor);
        }
    }
    const double output = Median(rates[View::kOutput]);
    for (const View view : kUnpacedViews)
        std::printf(
            "unpaced engine, %s: median %.0f replies a second of %d scans, ratio to the first %.3f; of one processor "
            "%.0f "
            "%%\n",
            NameOf(view), Median(rates[view]), kScanRuns, Median(rates[view]) / output,
            100.0 * Median(processor[view]));
}

}  // namespace corvex::bench
