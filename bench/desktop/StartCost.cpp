#include "bench/desktop/StartCost.h"

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/desktop/Figures.h"
#include "platform/WindowsApi.h"
#include "tests/support/Eventually.h"
#include "tools/driver/ProgramFolder.h"
#include "tools/driver/RunningProgram.h"
#include "tools/driver/WindowFinder.h"
// After windows.h, which it leans on.
#include <psapi.h>

namespace corvex::bench {

namespace {

constexpr int kStarts = 15;
constexpr DWORD kPatience = 30000;  // ms

struct Costs {
    std::vector<double> milliseconds, residentMiB, privateMiB;
};

struct Candidate {
    std::string file, folder, className;
    Costs costs;
};

class ProcessHandle {
public:
    explicit ProcessHandle(DWORD id)
        : handle_(::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ | SYNCHRONIZE, FALSE, id)) {}
    ~ProcessHandle() { ::CloseHandle(handle_); }
    ProcessHandle(const ProcessHandle&) = delete;
    ProcessHandle& operator=(const ProcessHandle&) = delete;
    HANDLE Get() const { return handle_; }

private:
    HANDLE handle_;
};

double MiB(SIZE_T bytes) {
    return static_cast<double>(bytes) / (1024.0 * 1024.0);
}

bool IsPainted(HWND window) {
    if (::GetUpdateRect(window, nullptr, FALSE) != FALSE) return false;
    for (const HWND child : test::AllBelow(window)) {
        if (::IsWindowVisible(child) != FALSE && ::GetUpdateRect(child, nullptr, FALSE) != FALSE) return false;
    }
    return true;
}

// A thread that waits for a message has painted all it has to paint. Returns the window.
HWND WaitUntilPainted(const Candidate& candidate, DWORD process, HANDLE handle) {
    HWND window = nullptr;
    const bool idle = ::WaitForInputIdle(handle, kPatience) == 0;
    const auto isPainted = [&] {
        window = test::FindTopWindow(process, candidate.className);
        return window != nullptr && IsPainted(window);
    };
    if (!idle || !test::Eventually(isPainted)) throw std::runtime_error(candidate.file + " shows no window");
    return window;
}

void TakeMemory(HANDLE process, Costs& costs) {
    PROCESS_MEMORY_COUNTERS counters{};
    if (::GetProcessMemoryInfo(process, &counters, sizeof counters) == 0) {
        throw std::runtime_error("no memory counters");
    }
    costs.residentMiB.push_back(MiB(counters.WorkingSetSize));
    costs.privateMiB.push_back(MiB(counters.PagefileUsage));
}

void RunOnce(Candidate& candidate) {
    IClock& clock = SystemClock();
    const std::int64_t start = clock.Counter();
    const test::RunningProgram program(candidate.file, candidate.folder);
    const ProcessHandle process(program.Id());
    const HWND window = WaitUntilPainted(candidate, program.Id(), process.Get());
    const auto taken = static_cast<double>(clock.Counter() - start);
    candidate.costs.milliseconds.push_back(1000.0 * taken / static_cast<double>(clock.Frequency()));
    TakeMemory(process.Get(), candidate.costs);
    ::PostMessageA(window, WM_CLOSE, 0, 0);
    if (!program.WaitForExit(kPatience)) throw std::runtime_error(candidate.file + " does not end");
}

void Print(const char* what, const char* unit, const std::vector<double>& corvex, const std::vector<double>& bare) {
    const double ours = Median(corvex), least = Median(bare);
    std::printf("%s: Corvex %.1f %s, bare window %.1f %s, ratio %.2f\n", what, ours, unit, least, unit, ours / least);
}

}  // namespace

void PrintStartCost() {
    const test::ProgramFolder folder;
    folder.PutSettings({{"lastadxpath", folder.TakeExample("harrier-8192.adx")}});
    Candidate corvex{folder.Program(), folder.Path(), "CORVEX", {}};
    Candidate bare{test::BuiltFile("bare_window.exe"), folder.Path(), "BAREWINDOW", {}};
    for (Candidate* warm : {&corvex, &bare})
        RunOnce(*warm);
    corvex.costs = bare.costs = {};
    for (int i = 0; i < kStarts; ++i) {
        RunOnce(corvex);
        RunOnce(bare);
    }
    std::printf("medians of %d starts each, in turn, Corvex with the example definition\n", kStarts);
    Print("start to painted window", "ms", corvex.costs.milliseconds, bare.costs.milliseconds);
    Print("memory, resident", "MiB", corvex.costs.residentMiB, bare.costs.residentMiB);
    Print("memory, private", "MiB", corvex.costs.privateMiB, bare.costs.privateMiB);
}

}  // namespace corvex::bench
