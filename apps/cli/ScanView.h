// What a scan, or a log that is played, shows of itself.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

#include "apps/cli/LiveTable.h"
#include "session/diagnosis/ReplyEvent.h"
#include "session/diagnosis/ScanSummary.h"

namespace corvex {

class ADXDefinition;

// How it stands at a moment.
struct ScanMoment {
    double now = 0.0;      // on the clock of the replies' times
    double seconds = 0.0;  // since it began
    const ScanSummary& summary;
    std::string state;                          // in one sentence
    std::string note;                           // a doubt to tell at the end; empty for none
    std::optional<std::uint32_t> outages = {};  // how often the device was waited for; none for a log
};

struct ViewOptions {
    bool plain = false;
    bool json = false;
    bool once = false;
    bool live = false;  // of a line, whose silence is worth telling
    std::string items;  // patterns of those to show; empty: all
};

// One of the ways to show it. All calls on the main thread.
class IScanView {
public:
    virtual ~IScanView() = default;
    virtual void OnReply(const ReplyEvent& event) = 0;
    // Often, whether something came or not.
    virtual void OnTick(const ScanMoment& moment) = 0;
    // Once, at the end.
    virtual void OnEnd(const ScanMoment& moment) = 0;
};

// The view that the options ask for: a table redrawn in place when `terminal`, else lines. `source` is shown, the port
// or the log.
std::unique_ptr<IScanView> MakeScanView(const ViewOptions& options, const ADXDefinition& definition,
                                        const std::string& source, bool terminal, std::ostream& out);

}  // namespace corvex
