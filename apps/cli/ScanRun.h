// One scan from the first poll to the summary.
#pragma once

#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"
#include "apps/cli/PatientOutput.h"
#include "apps/cli/ReplyQueue.h"
#include "apps/cli/ScanRecorder.h"
#include "apps/cli/ScanTap.h"
#include "apps/cli/ScanView.h"
#include "apps/cli/StreamAppender.h"
#include "apps/sim/SimulatorSession.h"
#include "session/SessionState.h"
#include "session/diagnosis/LineDiagnosis.h"
#include "session/diagnosis/ScanSummary.h"

namespace corvex {

class ConsoleStop;

// Stands on a SessionState, which does all that concerns the line on its own threads. The main thread takes what the
// replies brought from a queue, computes, shows, and decides when to stop. Used once.
class ScanRun {
public:
    // The streams outlive the run. The text log goes to `err` when it is asked for.
    ScanRun(const ScanOptions& options, std::ostream& out, std::ostream& err);

    // kExitFailure comes with one line on `err` that is no part of the log.
    ExitCode Run();

private:
    bool Prepare();
    bool PrepareSimulator();
    bool PrepareRecording();
    bool ReportRecording();
    void Loop();
    bool HasPatience(int milliseconds);
    void StopOnce();
    void Take(const std::vector<ReplyEvent>& events);
    bool WantsStop() const;
    bool EveryoneAnswered() const;
    void ReportTrouble();
    void ReportOutages();
    ScanMoment Moment() const;
    std::string StateText(double seconds) const;
    std::string WhyFailed() const;
    std::string WhoIsMissing() const;

    const ScanOptions options_;
    PatientOutput patient_;
    std::ostream out_;  // a reader that takes nothing holds neither the end of the scan nor that of its log
    std::ostream& err_;
    double limit_;  // seconds, 0 for none
    ReplyQueue queue_;
    ScanTap tap_{queue_};
    StreamAppender log_;
    ScanRecorder recorder_;
    const ConsoleStop* stop_ = nullptr;  // while it scans
    bool stopping_ = false;
    bool troubleReported_ = false;
    SessionState session_;
    SimulatorSession simulator_;
    std::string port_;
    std::vector<const ADXObject*> polled_;
    std::set<const ADXObject*> answered_;
    LineDiagnosis diagnosis_{false};
    ScanSummary summary_;
    std::unique_ptr<IScanView> view_;
};

}  // namespace corvex
