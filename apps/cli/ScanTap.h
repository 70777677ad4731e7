// Listens to a session and hands its replies to a queue, and to a recorder before that.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

#include "apps/cli/ReplyQueue.h"
#include "session/SampleViews.h"
#include "session/SessionCalls.h"

namespace corvex {

class ScanRecorder;
class SessionState;

// The calls are made on the connect thread, or on the playback thread of a log; the rest is for the main thread. The
// queue outlives the tap, and the tap outlives the session. A reply of a log comes with the log's time and the
// definition's own command.
class ScanTap : public ISampleView {
public:
    explicit ScanTap(ReplyQueue& queue) : queue_(queue) {}

    // For the construction of the session.
    SessionCalls Calls();
    // Before the first scan.
    void Attach(SessionState& session);
    // Before the first scan. A good reply is recorded before it goes into the queue, so nothing is shown that is not
    // in the log. The recorder outlives the session.
    void RecordTo(ScanRecorder* recorder) { recorder_ = recorder; }

    // Why the port could not be opened, in words that may be empty; false while it was not refused.
    bool PortRefused(std::string& reason) const;
    // What the port said when it vanished in use; empty while it has not, and again when it is back.
    std::string PortLost() const;
    // How often it vanished and was waited for.
    std::uint32_t Outages() const;
    // What became of the device since the last call, oldest first.
    std::vector<std::string> TakeNews();

    bool WantsSamples() const override { return true; }
    void Read(const PublishedSample& sample) override;
    void Draw() override {}

private:
    void TakeReply(const DataAcqStatus& status, PacketView reply);
    void TakeRefusal(const std::string& reason);
    void TakeOutage(const std::string& reason);
    void TakeReturn();

    ReplyQueue& queue_;
    SessionState* session_ = nullptr;
    ScanRecorder* recorder_ = nullptr;
    ReplyEvent pending_;  // worker: the sample whose reply has not ended yet
    mutable std::mutex lock_;
    bool refused_ = false;
    std::string refusal_, lost_;
    std::uint32_t outages_ = 0;
    std::vector<std::string> news_;
};

}  // namespace corvex
