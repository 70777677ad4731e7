#include "bench/gauges/MonitorCost.h"

#include <array>
#include <cstdio>

#include "bench/desktop/Figures.h"
#include "bench/gauges/BareCalls.h"
#include "controls/RegisterControlClasses.h"
#include "controls/tabsheet/TabSheet.h"
#include "tests/controls/window/ShownControl.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/MonitorPage.h"

namespace corvex::bench {

namespace {

constexpr int kPageWidth = 1000, kPageHeight = 640, kMeasured = 400;
constexpr int kSeriesPerChart = 4, kCharts = 2;
constexpr double kHertz = 11, kHour = 3600;
constexpr std::uint32_t kPolled = 0x2222;

// Two charts of four series on show, after so many seconds of samples. Who publishes is the page's own thread.
class ShownMonitors {
public:
    explicit ShownMonitors(double history) : sheet_(kTabSheetClass, kPageWidth, kPageHeight) {
        session_.instance = ::GetModuleHandleA(nullptr);
        session_.tabSheet = sheet_.Window();
        for (int i = 0; i < kCharts; ++i)
            AddMonitor(i);
        CreateMonitorPage(session_);
        sheet_.Resize(kPageWidth, kPageHeight);
        // Unseen, where nothing is painted.
        ::ShowWindow(sheet_.Window(), SW_HIDE);
        for (; time_ < history; time_ += 1 / kHertz)
            Publish();
        ::ShowWindow(sheet_.Window(), SW_SHOWNOACTIVATE);
        TabSheet::selectPage(sheet_.Window(), 0);
        ::UpdateWindow(sheet_.Window());
    }
    // Until it is drawn.
    void Publish() {
        const std::array<std::uint8_t, 8> bytes{
            static_cast<std::uint8_t>(time_ * kHertz), 20, 40, 60, 80, 100, 120, 140};
        const PacketView packet(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        session_.StoreLastPacket(LastPacket::Of(packet, kPolled));
        session_.definition.UpdateValues(packet, kPolled);
        session_.PublishSample(time_, packet, kPolled);
    }
    void PublishNext() {
        time_ += 1 / kHertz;
        Publish();
    }

private:
    void AddMonitor(int number) {
        static constexpr const char* kIds[] = {"A", "B", "C", "D", "E", "F", "G", "H"};
        auto* const monitor = test::Add<ADXMonitor>(session_.definition, number == 0 ? "M0" : "M1");
        for (int i = 0; i < kSeriesPerChart; ++i) {
            const int place = number * kSeriesPerChart + i;
            ADXValue* const value = test::AddValue(session_.definition, kIds[place], "X");
            value->packetoffset = static_cast<std::uint32_t>(place);
            value->rangehigh = 255;
            const ADXMONSERIES entry{.linecolor = RGB(60 * i, 0, 200 - 60 * i), .item = value};
            monitor->AddEntry(&entry);
        }
    }

    SessionState session_{SessionCalls{}};
    ShownControl sheet_;
    double time_ = 0;
};

double MedianSample(double history) {
    ShownMonitors shown(history);
    std::vector<double> samples;
    for (int i = 0; i < kMeasured; ++i)
        samples.push_back(Microseconds([&] { shown.PublishNext(); }));
    return Median(samples);
}

}  // namespace

void PrintMonitorCost() {
    RegisterControlClasses(::GetModuleHandleA(nullptr));
    const double fresh = MedianSample(60), late = MedianSample(kHour);
    std::printf(
        "a sample on %d charts of %d series until it is drawn: after a minute %.0f us, after an hour %.0f us, ratio "
        "%.2f\n",
        kCharts, kSeriesPerChart, fresh, late, late / fresh);
}

}  // namespace corvex::bench
