// Watches the line of a scan: told by its worker, asked by whoever shows it.
#pragma once

#include <mutex>
#include <string>

#include "acquisition/DataAcqStatus.h"
#include "definition/PacketView.h"
#include "session/base/StopWatch.h"
#include "session/diagnosis/LinkRecord.h"
#include "session/diagnosis/LinkState.h"

namespace corvex {

// Any thread; nobody waits for another for longer than a record takes to be copied. What is asked for is worked out
// from a copy. Must outlive the session's workers.
class LinkWatch {
public:
    // Times are this one's; the arguments are LinkRecord's.
    void Begin(const std::string& port, bool asks);
    void Refuse(const std::string& reason);
    void Vanish(const std::string& reason);
    void Return();
    // As SessionCalls::replyEnded tells it. What a log brings is nothing of the line.
    void Add(const DataAcqStatus& status, PacketView reply, const LineSettings& settings);

    LinkState State(bool scanning) const;
    std::string Report(bool scanning) const;

private:
    double Now() const { return watch_.Elapsed(); }
    LinkRecord Copy() const;

    const StopWatch watch_;
    mutable std::mutex lock_;  // of all below
    LinkRecord record_;
    ReplyEvent event_;  // kept for its room
};

}  // namespace corvex
