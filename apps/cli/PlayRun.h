// One playback of a log from its first record to the summary.
#pragma once

#include <iosfwd>
#include <memory>
#include <vector>

#include "apps/cli/ExitCode.h"
#include "apps/cli/LogPlayer.h"
#include "apps/cli/Options.h"
#include "apps/cli/ReplyQueue.h"
#include "apps/cli/ScanTap.h"
#include "apps/cli/ScanView.h"
#include "apps/cli/StreamAppender.h"
#include "session/diagnosis/ScanSummary.h"

namespace corvex {

class ConsoleStop;

// The twin of ScanRun: the replies come from a log, and the log's times are shown. The playback waits for what is shown
// of each record. Used once.
class PlayRun {
public:
    // The streams outlive the run. The text log goes to `err` when it is asked for.
    PlayRun(const PlayOptions& options, std::ostream& out, std::ostream& err);
    ~PlayRun();
    PlayRun(const PlayRun&) = delete;
    PlayRun& operator=(const PlayRun&) = delete;

    // kExitFailure comes with one line on `err` that is no part of the text log.
    ExitCode Run();

private:
    bool Prepare();
    void Loop(const ConsoleStop& stop);
    void Take(const std::vector<ReplyEvent>& events);
    ScanMoment Moment() const;
    std::string StateText() const;

    const PlayOptions options_;
    std::ostream& out_;
    std::ostream& err_;
    ReplyQueue queue_{ReplyQueue::Pace::kLog};
    ScanTap tap_{queue_};
    StreamAppender log_;
    LogPlayer player_;
    std::uint32_t records_ = 0;  // as the log's header has it; 0 when it was never ended
    ScanSummary summary_;
    bool ended_ = false;
    std::unique_ptr<IScanView> view_;
};

}  // namespace corvex
