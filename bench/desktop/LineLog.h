// What happened on a serial line, as its other end saw it; written by watch_line.py.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace corvex::bench {

struct LineEvent {
    std::int64_t at;   // nanoseconds of the Unix clock
    std::string what;  // "open", "bytes", "close"
};

// Grows while the program under measurement works.
class LineLog {
public:
    // The file named by the environment variable CORVEX_LINE_LOG. Throws std::runtime_error when there is none.
    LineLog();

    // Events so far.
    std::size_t Count() const { return Read().size(); }
    // The first event of that kind from the one at place `first` on, waited for; throws when none comes.
    LineEvent WaitFor(const std::string& what, std::size_t first) const;

private:
    std::vector<LineEvent> Read() const;
    std::string file_;
};

// The present, in nanoseconds of the Unix clock, which this side and the far end of the line have in common.
std::int64_t UnixNow();

}  // namespace corvex::bench
