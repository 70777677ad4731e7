// What a scanned line has done lately, in bounded memory.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "session/diagnosis/RecentDiagnosis.h"
#include "session/diagnosis/ReplyEvent.h"

namespace corvex {

// How the line is driven. Rates are baud; the second is 0 where the system can't tell it.
struct LineSettings {
    bool echo = false;  // it is taken off before the reply
    std::uint32_t baud = 0, lineBaud = 0;
};

struct LengthCount {
    std::uint32_t length = 0, count = 0;
};

// Sums over a stretch of time. Bytes are those of requests and their replies.
struct LinkCounts {
    std::uint32_t out = 0, in = 0, echo = 0;
    std::uint32_t good = 0, cut = 0, silent = 0, onlyEcho = 0, other = 0;
    double longestGap = 0.0;               // seconds between two good replies
    std::array<LengthCount, 4> lengths{};  // of the cut ones, as they were met; further lengths are not counted

    std::uint32_t All() const { return good + Bad(); }
    std::uint32_t Bad() const { return cut + silent + onlyEcho + other; }
    void AddLength(LengthCount added);
    void Add(const LinkCounts& more);
};

// All times are seconds on one clock of the caller's, which never goes back. One thread.
class LinkRecord {
public:
    static constexpr int kSeconds = 60;

    // A scan begins, and what was before it counts no more. `asks`: its definition has something to ask for.
    void Begin(double now, const std::string& port, bool asks);
    void Refuse(double now, const std::string& reason);
    void Vanish(double now, const std::string& reason);
    void Return(double now);
    // `event.t` is now.
    void Add(const ReplyEvent& event, const LineSettings& settings);

    // Of the last `seconds`, kSeconds at most, the one that runs included.
    LinkCounts Lately(double now, int seconds) const;
    // Between good replies; of the first one, how long it took. 0.0 while there is none.
    double UsualGap() const;
    // When a good reply is overdue so long that the line must be called dead.
    double DeadAfter() const;

    double begun = 0.0;
    std::string port;
    bool asks = false;
    std::optional<std::string> refusal, lost;  // the system's words, maybe none; of the last scan
    double refusedAt = 0.0, lostAt = 0.0;
    bool returned = false;   // the device has, and nothing good came since
    std::uint64_t good = 0;  // of this scan
    double lastGood = 0.0;   // if there was one
    LineSettings settings;   // as of the last reply
    RecentDiagnosis bad;     // what came since the last good reply, or since the port was opened
    RecentDiagnosis goods;   // what they look like

private:
    struct Cell {
        std::int64_t second = -1;
        LinkCounts counts;
    };
    static constexpr std::size_t kGaps = 9;

    LinkCounts& CellAt(double now);
    void AddGood(const ReplyEvent& event, LinkCounts& counts);

    std::array<Cell, kSeconds> cells_;
    std::array<double, kGaps> gaps_{};
    std::size_t gapCount_ = 0;  // ever added
    double lastEnd_ = 0.0;      // of any command, or the opening of the port
    bool gapKnown_ = false;     // nothing stood between the last good reply and now
};

}  // namespace corvex
