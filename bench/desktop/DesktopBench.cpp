// The desktop's figures: start and memory beside a bare window, from command to line and back, rate of a scan.
// Usage: bench_desktop [start|latency|rate|sustained]...
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "bench/desktop/LineLatency.h"
#include "bench/desktop/ScanRate.h"
#include "bench/desktop/StartCost.h"

int main(int argc, char** argv) {
    std::vector<std::string> subjects(argv + 1, argv + argc);
    if (subjects.empty()) subjects = {"start", "latency", "rate", "sustained"};
    try {
        for (const std::string& subject : subjects) {
            if (subject == "start") corvex::bench::PrintStartCost();
            if (subject == "latency") corvex::bench::PrintLineLatency();
            if (subject == "rate") corvex::bench::PrintScanRate();
            if (subject == "sustained") corvex::bench::PrintSustainedRate();
            std::fflush(stdout);
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_desktop: %s\n", error.what());
        return 1;
    }
}
