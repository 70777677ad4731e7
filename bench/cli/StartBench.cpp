// What it costs to start the tool and check the example: time and peak memory of whole processes, beside a process that
// does nothing.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int kRuns = 51;

struct Cost {
    double milliseconds = 0.0;  // median
    long peakKiB = 0;           // largest
};

bool RunOnce(std::vector<std::string> command, double* milliseconds, long* peakKiB) {
    std::vector<char*> argv;
    for (std::string& word : command)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = -1;
    const bool started = posix_spawn(&child, argv[0], &quiet, nullptr, argv.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&quiet);
    int status = 0;
    rusage usage{};
    if (!started || wait4(child, &status, 0, &usage) != child || status != 0) return false;
    *milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    *peakKiB = usage.ru_maxrss;
    return true;
}

bool Measure(const std::vector<std::string>& command, Cost* cost) {
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
        double milliseconds = 0.0;
        long peakKiB = 0;
        if (!RunOnce(command, &milliseconds, &peakKiB)) return false;
        times.push_back(milliseconds);
        cost->peakKiB = std::max(cost->peakKiB, peakKiB);
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    cost->milliseconds = times[kRuns / 2];
    return true;
}

}  // namespace

int main(int, char** argv) {
    const std::string tool = (std::filesystem::path(argv[0]).parent_path() / "corvex-cli").string();
    Cost check, nothing;
    if (!Measure({tool, "check", CORVEX_SOURCE_DIR "/examples/harrier-8192.adx"}, &check) ||
        !Measure({"/bin/true"}, &nothing)) {
        std::fprintf(stderr, "cannot run %s\n", tool.c_str());
        return 1;
    }
    std::printf("corvex-cli check: %.2f ms, peak %.1f MB; /bin/true: %.2f ms, peak %.1f MB; ratio %.2f\n",
                check.milliseconds, static_cast<double>(check.peakKiB) / 1024, nothing.milliseconds,
                static_cast<double>(nothing.peakKiB) / 1024, check.milliseconds / nothing.milliseconds);
    return 0;
}
