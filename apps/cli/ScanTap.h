// Listens to a session and hands its replies to a queue.
#pragma once

#include <mutex>
#include <string>

#include "apps/cli/ReplyQueue.h"
#include "session/SessionCalls.h"

namespace corvex {

class SessionState;

// The calls are made on the connect thread; the rest is for the main thread. The queue outlives the tap, and the tap
// outlives the session.
class ScanTap {
public:
    explicit ScanTap(ReplyQueue& queue) : queue_(queue) {}

    // For the construction of the session.
    SessionCalls Calls();
    // Before the first scan.
    void Attach(SessionState& session) { session_ = &session; }

    // Why the port could not be opened, in words that may be empty; false while it was not refused.
    bool PortRefused(std::string& reason) const;
    // What the port said when it vanished in use; empty while it has not.
    std::string PortLost() const;

private:
    void TakeSample(double t, PacketView packet);
    void TakeReply(const DataAcqStatus& status, PacketView reply);
    void TakeRefusal(const std::string& reason);

    ReplyQueue& queue_;
    SessionState* session_ = nullptr;
    ReplyEvent pending_;  // connect thread: the sample whose reply has not ended yet
    mutable std::mutex lock_;
    bool refused_ = false;
    std::string refusal_, lost_;
};

}  // namespace corvex
