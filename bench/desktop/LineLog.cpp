#include "bench/desktop/LineLog.h"

#include <cstdlib>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "platform/WindowsApi.h"
#include "tests/support/Eventually.h"

namespace corvex::bench {

namespace {

constexpr std::int64_t kUnixEpoch = 116444736000000000;  // in the 100-ns units since 1601 that Windows counts

}  // namespace

LineLog::LineLog() {
    const char* const file = std::getenv("CORVEX_LINE_LOG");
    if (file == nullptr) throw std::runtime_error("not started by watch_line.py");
    file_ = file;
}

// A line that is still being written has no end yet and does not count.
std::vector<LineEvent> LineLog::Read() const {
    std::vector<LineEvent> events;
    std::ifstream lines(file_, std::ios::binary);
    for (std::string line; std::getline(lines, line) && !lines.eof();) {
        const std::size_t gap = line.find(' ');
        if (gap != std::string::npos) events.push_back({std::stoll(line.substr(0, gap)), line.substr(gap + 1)});
    }
    return events;
}

LineEvent LineLog::WaitFor(const std::string& what, std::size_t first) const {
    std::optional<LineEvent> found;
    const auto came = [&] {
        const std::vector<LineEvent> events = Read();
        for (std::size_t i = first; i < events.size() && !found; ++i) {
            if (events[i].what == what) found = events[i];
        }
        return found.has_value();
    };
    if (!test::Eventually(came)) throw std::runtime_error("the line saw no " + what);
    return *found;
}

std::int64_t UnixNow() {
    FILETIME now{};
    ::GetSystemTimePreciseAsFileTime(&now);
    const std::uint64_t ticks = (static_cast<std::uint64_t>(now.dwHighDateTime) << 32) | now.dwLowDateTime;
    return (static_cast<std::int64_t>(ticks) - kUnixEpoch) * 100;
}

}  // namespace corvex::bench
