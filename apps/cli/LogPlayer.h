// Plays a log through a session, from opening it to closing it.
#pragma once

#include <atomic>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "session/SessionCalls.h"
#include "session/SessionState.h"

namespace corvex {

// The replies take the road that those of a line take: engine, callback, values, calls. The log is opened for looking
// only. All on the main thread, which asks again and again whether it runs; the calls are made on the playback thread.
class LogPlayer {
public:
    // What `calls` holds outlives the player. Its log slider and messages are the player's.
    explicit LogPlayer(SessionCalls calls);
    LogPlayer(const LogPlayer&) = delete;
    LogPlayer& operator=(const LogPlayer&) = delete;

    SessionState& Session() { return session_; }

    // False after one line on `err`, as with all that follow.
    bool Open(const std::string& definition, const std::string& log, std::ostream& err);
    // At a factor of recorded time, 0.01 and less as fast as it goes; no record before `from` seconds is delivered.
    bool Start(double speed, double from, std::ostream& err);
    // False when no thread plays or stops any more.
    bool Runs() const;
    // Asks it to end.
    void Stop();
    // Closes the log, once it runs no more.
    void Close();
    // Of the playback that was closed: true when it ended with the log, or as asked. Tells of records that no command
    // was for, and of what the log has lost.
    bool Report(std::ostream& err) const;

    // Of the record played last, in seconds of the log, and its number from 1 on.
    double Time() const { return time_.load(std::memory_order_relaxed); }
    std::uint32_t Index() const { return index_.load(std::memory_order_relaxed); }

private:
    SessionCalls WithOwn(SessionCalls calls);
    bool SeekTo(double from, std::ostream& err);
    std::string WhyEndedEarly() const;
    void ReportLoss(std::ostream& err) const;

    std::string path_;
    std::atomic<double> time_{0.0};
    std::atomic<std::uint32_t> index_{0};
    std::atomic<std::uint32_t> played_{0}, answered_{0};
    std::atomic<std::uint32_t> stops_{0};  // messages that the log has been stopped
    bool asked_ = false;                   // to end before the log does
    SessionState session_;
};

}  // namespace corvex
