// What the gauges cost, from inside of their process.
// Usage: bench_gauges [paint|reply|chart|chart2d|grid|histogram|surface|monitor|scope]...
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "bench/gauges/Chart2DCost.h"
#include "bench/gauges/ChartCost.h"
#include "bench/gauges/GaugePaintCost.h"
#include "bench/gauges/GridCost.h"
#include "bench/gauges/HistogramCost.h"
#include "bench/gauges/MonitorCost.h"
#include "bench/gauges/ReplyToPaint.h"
#include "bench/gauges/ScopeCost.h"
#include "bench/gauges/SurfaceCost.h"

int main(int argc, char** argv) {
    std::vector<std::string> subjects(argv + 1, argv + argc);
    if (subjects.empty())
        subjects = {"paint", "reply", "chart", "chart2d", "grid", "histogram", "surface", "monitor", "scope"};
    try {
        for (const std::string& subject : subjects) {
            if (subject == "paint") corvex::bench::PrintGaugePaintCost();
            if (subject == "reply") corvex::bench::PrintReplyToPaint();
            if (subject == "chart") corvex::bench::PrintChartCost();
            if (subject == "chart2d") corvex::bench::PrintChart2DCost();
            if (subject == "grid") corvex::bench::PrintGridCost();
            if (subject == "histogram") corvex::bench::PrintHistogramCost();
            if (subject == "surface") corvex::bench::PrintSurfaceCost();
            if (subject == "monitor") corvex::bench::PrintMonitorCost();
            if (subject == "scope") corvex::bench::PrintScopeCost();
            std::fflush(stdout);
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_gauges: %s\n", error.what());
        return 1;
    }
}
