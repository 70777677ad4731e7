// Runs the simulated engine on a line: hears requests, sends replies in the line's time.
#pragma once

#include <atomic>
#include <cmath>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

#include "apps/sim/CommandMatcher.h"
#include "apps/sim/IdleTalk.h"
#include "apps/sim/LineFaults.h"
#include "apps/sim/PaceMeter.h"
#include "apps/sim/ReplySource.h"
#include "apps/sim/SimLine.h"
#include "apps/sim/SimOptions.h"

namespace corvex {

// Paced, every byte has an absolute moment on the line, so nothing adds up: a request that arrives at once takes its
// own bytes' time from its first byte on, and the reply follows without a gap. Unpaced, all goes out as fast as the far
// end takes it. The engine's own time runs by the bytes exchanged, not by the clock: the same requests and the same
// seed give the same replies at any speed.
//
// A request cuts off whatever the line is still saying, as a tester talking over it would. Paced bytes that the far end
// does not take are lost, as on a wire. A command that expects no reply gets none.
//
// One thread runs it; the definition is not touched after construction.
class LineDriver {
public:
    LineDriver(ISimLine& line, const ADXDefinition& definition, const SimOptions& options);

    // Until `stop` is set, the options' time is over, or the device was unplugged.
    void Run(const std::atomic<bool>& stop);

    // What happened so far; on the thread that runs, or after Run.
    SimStats Stats() const;

private:
    struct Byte {
        std::int64_t due;
        std::uint8_t value;
        bool lastOfReply = false;
    };
    using Queue = std::deque<Byte>;

    double SecondsOf(std::int64_t counts) const { return static_cast<double>(counts) / frequency_; }
    std::int64_t CountsOf(double seconds) const { return std::llround(seconds * frequency_); }

    bool Streams() const { return source_.HasStream() && !options_.silent; }
    bool Over(std::int64_t now);
    void Hear(std::int64_t now);
    void HearByte(std::uint8_t byte, std::int64_t now);
    void Answer(std::size_t command);
    void FillIdle(std::int64_t now);
    void Rest(std::int64_t from, bool afterReply);
    void Say(std::span<const std::uint8_t> bytes, std::int64_t start, double byteTime);
    void SendDue();
    void SendFrom(Queue& queue, std::int64_t now);
    void NoteReplyEnd(const Byte& byte);
    std::int64_t NextMoment(std::int64_t now) const;

    ISimLine& line_;
    const SimOptions options_;
    const bool echoes_;  // asked for, or counted on by the definition
    const double frequency_;
    const double byteTime_;  // seconds on the line
    ReplySource source_;
    CommandMatcher matcher_;
    LineFaults faults_;
    IdleTalk idle_;
    PaceMeter meter_;
    SimStats stats_;

    double engineTime_ = 0.0;  // seconds
    std::int64_t start_ = 0;   // of the run; moments are the line's counts
    std::int64_t lastHeard_ = 0;
    std::int64_t heardEnd_ = 0;  // when the last byte heard has left the line
    std::int64_t streamEnd_ = 0;
    std::int64_t nextTalk_ = 0;
    std::int64_t requestStart_ = 0;  // of the reply in the queue
    Queue echo_, talk_;
};

}  // namespace corvex
