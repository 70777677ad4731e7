#include "bench/gauges/HistogramCost.h"

#include <cstdio>

#include "bench/desktop/Figures.h"
#include "bench/gauges/BareCalls.h"
#include "controls/RegisterControlClasses.h"
#include "controls/grid/Grid.h"
#include "controls/tabsheet/TabSheet.h"
#include "definition/ADXHistogram.h"
#include "tests/controls/window/ShownControl.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/HistogramPage.h"
#include "views/PageResources.h"

namespace corvex::bench {

namespace {

constexpr int kSheetWidth = 1000, kSheetHeight = 640;
constexpr std::uint32_t kFedBy = 0x1111;

// The page with one histogram of so many rows and columns in front. Who publishes is the page's own thread.
class ShownHistogram {
public:
    explicit ShownHistogram(std::uint32_t divisions) : sheet_(kTabSheetClass, kSheetWidth, kSheetHeight) {
        session.instance = ::GetModuleHandleA(nullptr);
        session.tabSheet = sheet_.Window();
        auto* const histogram = test::Add<ADXHistogram>(session.definition, "MAP");
        histogram->SetCols(divisions);
        histogram->SetRows(divisions);
        histogram->SetXMax(255);
        histogram->SetYMax(255);
        auto* const x = test::AddValue(session.definition, "X", "X");
        auto* const y = test::AddValue(session.definition, "Y", "X");
        y->packetoffset = 1;
        histogram->SetX(x);
        histogram->SetY(y);
        histogram->SetZ(x);
        CreateHistogramPage(session);
        sheet_.Resize(kSheetWidth, kSheetHeight);
        TabSheet::selectPage(sheet_.Window(), 0);
        ::UpdateWindow(sheet_.Window());
    }
    HWND Grid() const { return ::GetDlgItem(static_cast<HWND>(session.histogramPage), IDC_HISTOGRAM_GRID); }
    void Sample(int number) {
        const std::uint8_t bytes[] = {static_cast<std::uint8_t>(number * 16), static_cast<std::uint8_t>(number)};
        const PacketView packet(bytes, sizeof bytes);
        session.StoreLastPacket(LastPacket::Of(packet, kFedBy));
        session.definition.UpdateValues(packet, kFedBy);
        session.PublishSample(0.0, packet, kFedBy);
        ::UpdateWindow(Grid());
    }

    SessionState session{SessionCalls{}};

private:
    ShownControl sheet_;
};

void PrintSample() {
    constexpr int kSamples = 2000;
    ShownHistogram shown(16);
    std::vector<double> samples, repaints;
    for (int i = 0; i < kSamples; ++i) {
        samples.push_back(Microseconds([&] { shown.Sample(i); }));
        repaints.push_back(Microseconds([&] { ::SendMessageA(shown.Grid(), GRM_REPAINT, 0, 0); }));
    }
    std::printf("histogram on show: a sample until its cell is drawn %.0f us, a repaint of the whole table %.0f us\n",
                Median(samples), Median(repaints));
}

void PrintRebuild(std::uint32_t divisions) {
    ShownHistogram shown(divisions);
    auto& histogram = static_cast<ADXHistogram&>(*shown.session.definition.Objects().front());
    for (std::uint32_t i = 0; i < divisions * divisions; ++i) {
        const auto row = static_cast<float>(i / divisions), col = static_cast<float>(i % divisions);
        histogram.AddPoint(col * 255 / static_cast<float>(divisions - 1), row * 255 / static_cast<float>(divisions - 1),
                           12.5F);
    }
    std::vector<double> builds;
    for (int round = 0; round < 5; ++round)
        builds.push_back(Microseconds([&] {
            RefreshHistogramPage(shown.session);
            ::UpdateWindow(shown.Grid());
        }));
    std::printf("histogram of %u by %u cells: the whole table anew, and drawn, %.1f ms\n", divisions, divisions,
                Median(builds) / 1000.0);
}

}  // namespace

void PrintHistogramCost() {
    RegisterControlClasses(::GetModuleHandleA(nullptr));
    PrintSample();
    for (const std::uint32_t divisions : {16U, 64U, 256U})
        PrintRebuild(divisions);
}

}  // namespace corvex::bench
