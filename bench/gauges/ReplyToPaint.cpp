#include "bench/gauges/ReplyToPaint.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <future>
#include <stdexcept>

#include "bench/desktop/Figures.h"
#include "bench/gauges/DashOfTwelve.h"
#include "bench/gauges/PaintWatch.h"
#include "controls/tabsheet/TabSheet.h"
#include "session/window/Desktop.h"
#include "session/window/MainWindow.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/TestFolder.h"
#include "tests/support/VirtualClock.h"
#include "views/DashPage.h"
#include "views/PageResources.h"

namespace corvex::bench {

namespace {

constexpr int kReplies = 300, kWarmUp = 10;
constexpr int kWidth = 1000, kHeight = 740;  // within the screen of the tests' desktop
constexpr int kDashTab = 1, kHistogramTab = 3;
constexpr UINT kHandedOver = WM_APP + 0x200;  // to the main thread itself, beyond all of PrivateMessages.h
constexpr DWORD kRest = 10;                   // ms from reply to reply, in which what the last one left over is done

// The main window of a program of its own, with a page in front.
class ShownPage {
public:
    ShownPage(const std::string& definition, int tab) {
        folder_.Put("dash.adx", definition);
        folder_.Put("Settings.dat", "lastadxpath=" + folder_.Name("dash.adx") + "\n");
        SetDefaults(&desktop_.session.settings);
        window_ = MainWindow::Create(desktop_);
        ::SetWindowPos(window_, nullptr, 0, 0, kWidth, kHeight, SWP_NOZORDER);
        ::ShowWindow(window_, SW_SHOWNOACTIVATE);
        TabSheet::selectPage(AsWindow(Session().tabSheet), tab);
        ::UpdateWindow(window_);
    }
    ~ShownPage() {
        ::PostMessageA(window_, WM_CLOSE, 0, 0);
        MSG message;
        while (::IsWindow(window_) && ::GetMessageA(&message, nullptr, 0, 0) > 0)
            ::DispatchMessageA(&message);
        desktop_.Drain();
        while (::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {
        }
    }
    ShownPage(const ShownPage&) = delete;
    ShownPage& operator=(const ShownPage&) = delete;

    SessionState& Session() { return desktop_.session; }

private:
    test::TestFolder folder_;
    test::FixedProgramPlace place_{folder_};
    const ScopedProgramPlace placeScope_{place_};
    test::VirtualClock clock_;
    test::ScriptedSerial serial_{clock_};
    Desktop desktop_{::GetModuleHandleA(nullptr), serial_};
    HWND window_ = nullptr;
};

class ShownDash : public ShownPage {
public:
    explicit ShownDash(std::size_t dials) : ShownPage(DashOfTwelve(dials), kDashTab) {}
    // Throws std::runtime_error when not every one of them can be seen.
    const std::vector<HWND>& Gauges() {
        const std::vector<HWND>& gauges = PageOf<DashPage>(Session().dashPage)->Gauges();
        bool all = gauges.size() == kGaugesOnDash;
        for (const HWND gauge : gauges)
            all = all && ::IsWindowVisible(gauge) != FALSE;
        if (!all) throw std::runtime_error("not every gauge is on show");
        return gauges;
    }
};

// Microseconds, for each reply.
struct Latencies {
    std::vector<double> whole, held, paints, dials;
};

// No two successive replies have a byte alike, and the lamps' bit changes each time.
std::array<std::uint8_t, kPollReply> ReplyOf(int number) {
    std::array<std::uint8_t, kPollReply> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(static_cast<std::size_t>(number) * 7 + i * 13);
    return bytes;
}

double MicrosecondsOf(std::chrono::steady_clock::duration time) {
    return std::chrono::duration<double, std::micro>(time).count();
}

// On a thread of its own, as an engine does it.
void HandOver(SessionState& session, PaintWatch& watch, Latencies& latencies) {
    DataAcqStatus status;
    status.command = session.definition.FindById(kPollId);
    status.commandId = status.command->GetIdHash();
    for (int number = 1; number <= kWarmUp + kReplies; ++number) {
        const auto reply = ReplyOf(number);
        ::Sleep(kRest);
        watch.Forget();
        const auto begin = std::chrono::steady_clock::now();
        session.callback.OnSendCommandEnd(&status, reply.data(), kPollReply);
        const auto back = std::chrono::steady_clock::now();
        const PaintWatch::Paints paints = watch.WaitForAll();
        if (number <= kWarmUp) continue;
        latencies.whole.push_back(MicrosecondsOf(paints.last - begin));
        latencies.held.push_back(MicrosecondsOf(back - begin));
        latencies.paints.push_back(paints.microseconds);
        latencies.dials.push_back(paints.dialMicroseconds);
    }
}

// A failure comes to an end too.
struct WakeAtEnd {
    DWORD thread;
    ~WakeAtEnd() { ::PostThreadMessageA(thread, kHandedOver, 0, 0); }
};

// Of what is watched on the page.
Latencies Measure(ShownPage& page, const std::vector<HWND>& watched) {
    Latencies latencies;
    PaintWatch watch(watched);
    auto handing = std::async(std::launch::async, [&, main = ::GetCurrentThreadId()] {
        const WakeAtEnd wake{main};
        HandOver(page.Session(), watch, latencies);
    });
    MSG message;
    while (::GetMessageA(&message, nullptr, 0, 0) > 0 && message.message != kHandedOver)
        ::DispatchMessageA(&message);
    handing.get();
    return latencies;
}

double Milliseconds(const std::vector<double>& microseconds) {
    return Median(microseconds) / 1000.0;
}

// Wants every sample, as histograms and strip charts do whichever tab is in front.
class AlwaysWanted final : public ISampleView {
public:
    AlwaysWanted(SampleViews& views, SampleViewKind kind) : views_(views), kind_(kind) { views_.Register(kind_, this); }
    ~AlwaysWanted() override { views_.Register(kind_, nullptr); }
    AlwaysWanted(const AlwaysWanted&) = delete;
    AlwaysWanted& operator=(const AlwaysWanted&) = delete;

    bool WantsSamples() const override { return true; }
    void Read(const PublishedSample& sample) override { last_ = sample.t; }
    void Draw() override { drawn_ = last_; }

private:
    SampleViews& views_;
    const SampleViewKind kind_;
    double last_ = 0, drawn_ = 0;
};

// How long the line's thread is held by a reply, and how much longer by two more views that read it.
void PrintHold(std::size_t dials) {
    ShownDash dash(dials);
    const double alone = Milliseconds(Measure(dash, dash.Gauges()).held);
    double together = 0;
    {
        const AlwaysWanted histograms(dash.Session().views, SampleViewKind::kHistograms);
        const AlwaysWanted monitors(dash.Session().views, SampleViewKind::kMonitors);
        together = Milliseconds(Measure(dash, dash.Gauges()).held);
    }
    std::printf(
        "callback held, %zu dials: dash alone %.2f ms, with two views that want every sample %.2f ms (median)\n", dials,
        alone, together);
}

void PrintHistogramHold() {
    ShownPage page(HistogramOfSixteen(), kHistogramTab);
    const HWND dialog = AsWindow(page.Session().histogramPage);
    const HWND grid = ::GetDlgItem(dialog, IDC_HISTOGRAM_GRID), chart = ::GetDlgItem(dialog, IDC_HISTOGRAM_CHART);
    const Latencies table = Measure(page, {grid});
    ::SendMessageA(::GetDlgItem(dialog, IDC_HISTOGRAM_GRAPH), BM_CLICK, 0, 0);
    const Latencies surface = Measure(page, {chart});
    std::printf(
        "histogram of 16 by 16 cells: callback held with the table %.2f ms, with the surface %.2f ms; reply to paint "
        "%.2f and %.2f ms (median)\n",
        Milliseconds(table.held), Milliseconds(surface.held), Milliseconds(table.whole), Milliseconds(surface.whole));
}

void PrintFor(std::size_t dials) {
    ShownDash dash(dials);
    RECT area{};
    ::GetClientRect(dash.Gauges().front(), &area);
    const Latencies latencies = Measure(dash, dash.Gauges());
    std::printf(
        "reply to last paint, 12 gauges of %ld by %ld, %zu of them analog: median %.2f ms, worst %.2f ms of %d\n",
        area.right, area.bottom, dials, Milliseconds(latencies.whole), Largest(latencies.whole) / 1000.0, kReplies);
    std::printf("  of that the callback %.2f ms, all paints %.2f ms, those of the analog ones %.2f ms\n",
                Milliseconds(latencies.held), Milliseconds(latencies.paints), Milliseconds(latencies.dials));
}

}  // namespace

void PrintReplyToPaint() {
    PrintFor(0);
    PrintFor(4);
    PrintHold(kGaugesOnDash);
    PrintHistogramHold();
}

}  // namespace corvex::bench
