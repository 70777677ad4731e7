// What a scan shows of itself.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>

#include "apps/cli/LineDiagnosis.h"
#include "apps/cli/LiveTable.h"
#include "apps/cli/Options.h"
#include "apps/cli/ReplyEvent.h"
#include "apps/cli/ScanSummary.h"

namespace corvex {

class ADXDefinition;

// How the scan stands at a moment.
struct ScanMoment {
    double seconds = 0.0;          // since it began
    std::uint32_t connection = 0;  // a ConnectionState
    const ScanSummary& summary;
    const LineDiagnosis& diagnosis;
};

// One of the ways to show a scan. All calls on the main thread.
class IScanView {
public:
    virtual ~IScanView() = default;
    virtual void OnReply(const ReplyEvent& event) = 0;
    // Often, whether something came or not.
    virtual void OnTick(const ScanMoment& moment) = 0;
    // Once, at the end.
    virtual void OnEnd(const ScanMoment& moment) = 0;
};

// The view that the options ask for: a table redrawn in place when `terminal`, else lines. `port` is shown.
std::unique_ptr<IScanView> MakeScanView(const ScanOptions& options, const ADXDefinition& definition,
                                        const std::string& port, bool terminal, std::ostream& out);

// The state of the line in one sentence, true at the moment: "Connected, 12.05 Hz, 120 replies, 2 errors".
std::string StateText(const ScanMoment& moment);

}  // namespace corvex
