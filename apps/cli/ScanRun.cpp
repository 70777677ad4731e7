#include "apps/cli/ScanRun.h"

#include <chrono>
#include <cstring>
#include <ostream>
#include <utility>

#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/sim/RecordedReplies.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"
#include "platform/ConsoleStop.h"
#include "platform/Terminal.h"
#include "session/diagnosis/LineState.h"
#include "session/diagnosis/PolledCommands.h"

namespace corvex {

namespace {

using namespace std::chrono_literals;

// A line that stays silent must not hold a script for ever.
constexpr double kOnceSeconds = 10.0;
constexpr auto kScanPatience = 50ms;
constexpr int kLastPatience = 1000;  // milliseconds

double LimitOf(const ScanOptions& options) {
    return options.seconds == 0.0 && options.once ? kOnceSeconds : options.seconds;
}

}  // namespace

ScanRun::ScanRun(const ScanOptions& options, std::ostream& out, std::ostream& err)
    : options_(options),
      patient_(out, {WaitForOutputRoom, [this](int milliseconds) { return HasPatience(milliseconds); }}),
      out_(&patient_),
      err_(err),
      limit_(LimitOf(options)),
      log_(err),
      session_(tap_.Calls()) {
    tap_.Attach(session_);
}

bool ScanRun::Prepare() {
    if (!LoadDefinition(session_.definition, options_.definition, err_)) return false;
    if (!CheckItems(session_.definition, options_.items, options_.definition, err_)) return false;
    if (!options_.record.empty() && !PrepareRecording()) return false;
    port_ = options_.port;
    if (options_.simulate && !PrepareSimulator()) return false;
    if (port_.size() >= AppSettings::kPathSize) {
        err_ << "corvex-cli: the name of the port is too long\n";
        return false;
    }
    std::memcpy(session_.settings.comport, port_.c_str(), port_.size() + 1);
    // The engine inside comes back no more, and the name of its line may be somebody else's terminal by then.
    session_.reconnects = options_.reconnect && !options_.simulate;
    if (options_.verbose) session_.debug.edit = &log_;
    polled_ = PolledCommands(session_.definition);
    diagnosis_ = LineDiagnosis(session_.definition.HasEcho());
    view_ = MakeScanView({options_.plain, options_.json, options_.once, true, options_.items}, session_.definition,
                         port_, OutputIsTerminal(), out_);
    return true;
}

bool ScanRun::PrepareSimulator() {
    std::string error;
    SimOptions engine = options_.engine;
    const bool loaded = options_.replay.empty() || LoadRecording(options_.replay, session_.definition, engine, error);
    if (loaded) port_ = simulator_.Start(session_.definition, engine, error);
    if (port_.empty()) err_ << "corvex-cli: --simulate: " << error << '\n';
    return !port_.empty();
}

bool ScanRun::PrepareRecording() {
    std::string error = options_.record + ": would be replaced by the recording";
    if (!SameFile(options_.record, options_.definition) && !SameFile(options_.record, options_.replay) &&
        recorder_.Begin(options_.record, session_.definition, options_.force, error)) {
        tap_.RecordTo(&recorder_);
        return true;
    }
    err_ << "corvex-cli: " << error << '\n';
    return false;
}

// False when something is not in the log that should be.
bool ScanRun::ReportRecording() {
    const bool ended = recorder_.End();
    ReportTrouble();
    out_.flush();
    std::ostream& told = options_.json ? err_ : out_;
    told << recorder_.Path() << ": " << Counted(recorder_.Records(), "record")
         << (recorder_.KeptOld() ? "; the old log is still there" : "") << '\n';
    if (recorder_.Failed())
        err_ << "corvex-cli: " << recorder_.Path() << ": " << Counted(recorder_.Lost(), "sample")
             << " could not be recorded\n";
    if (!ended)
        err_ << "corvex-cli: " << recorder_.Path() << ": the recording could not be ended; what is in it can be read\n";
    return ended && !troubleReported_;
}

// Once, and not on the connect thread, which has the line to serve.
void ScanRun::ReportTrouble() {
    if (troubleReported_ || options_.record.empty()) return;
    const std::string trouble = recorder_.Trouble();
    if (trouble.empty()) return;
    troubleReported_ = true;
    err_ << "corvex-cli: " << trouble << '\n' << std::flush;
}

void ScanRun::ReportOutages() {
    for (const std::string& news : tap_.TakeNews())
        err_ << "corvex-cli: " << port_ << ": " << news << '\n' << std::flush;
}

ExitCode ScanRun::Run() {
    if (!Prepare()) return kExitFailure;
    {
        const ConsoleStop stop([this] { queue_.Wake(); });
        stop_ = &stop;
        session_.ToggleScan();
        Loop();
        stop_ = nullptr;
    }
    simulator_.Stop();
    log_.Finish();
    std::string reason;
    if (!tap_.PortRefused(reason)) view_->OnEnd(Moment());
    view_.reset();
    out_.flush();
    const bool recorded = options_.record.empty() || ReportRecording();
    if (queue_.Dropped() != 0)
        err_ << "corvex-cli: " << Counted(queue_.Dropped(), "reply") << " not shown: the output was too slow\n";
    const std::string why = WhyFailed();
    if (why.empty()) return recorded ? kExitSuccess : kExitFailure;
    out_.flush();
    err_ << "corvex-cli: " << port_ << ": " << why << '\n';
    return kExitFailure;
}

// Ends when no thread of the session runs any more: after a stop, or when the scan has ended by itself.
void ScanRun::Loop() {
    while (!session_.WaitForThreads(0ms)) {
        Take(queue_.Take(kScanPatience));
        ReportTrouble();
        ReportOutages();
        if (WantsStop()) StopOnce();
        if (!stopping_) view_->OnTick(Moment());
    }
    Take(queue_.Take(0ms));
    ReportOutages();
}

void ScanRun::StopOnce() {
    if (stopping_) return;
    stopping_ = true;
    session_.StartStopThread(kStopScan);
}

// Whoever reads slowly is waited for; who takes nothing is not, once the scan is to end.
bool ScanRun::HasPatience(int milliseconds) {
    const bool ending = stop_ == nullptr || WantsStop();
    if (ending && stop_ != nullptr) StopOnce();
    ReportTrouble();
    return !ending || milliseconds < kLastPatience;
}

void ScanRun::Take(const std::vector<ReplyEvent>& events) {
    for (const ReplyEvent& event : events) {
        diagnosis_.Add(event);
        summary_.Add(event);
        if (event.sampled) answered_.insert(event.command);
        view_->OnReply(event);
    }
}

bool ScanRun::WantsStop() const {
    if (stop_->Requested() || !out_) return true;
    if (!session_.reconnects && !tap_.PortLost().empty()) return true;
    if (options_.once && EveryoneAnswered()) return true;
    return limit_ > 0.0 && session_.timer.Elapsed() >= limit_;
}

bool ScanRun::EveryoneAnswered() const {
    for (const ADXObject* command : polled_) {
        if (!answered_.contains(command)) return false;
    }
    return !polled_.empty();
}

ScanMoment ScanRun::Moment() const {
    const double seconds = session_.timer.Elapsed();
    return {seconds, seconds, summary_, StateText(seconds), diagnosis_.Doubt(), tap_.Outages()};
}

std::string ScanRun::StateText(double seconds) const {
    const std::uint32_t connection = session_.connectionState.load(std::memory_order_relaxed);
    if (connection == kConnecting && !tap_.PortLost().empty())
        return "Waiting for the port to come back, " + CountsText(summary_);
    if (connection == kConnecting && diagnosis_.AnyGood()) return "Connecting again, " + CountsText(summary_);
    return LineStateText(connection, seconds, summary_, diagnosis_);
}

std::string ScanRun::WhyFailed() const {
    std::string reason;
    if (tap_.PortRefused(reason)) return reason.empty() ? "the port cannot be opened" : reason;
    if (!out_) return "nobody takes the output any more";
    if (std::string lost = tap_.PortLost(); !lost.empty())
        return session_.reconnects ? lost + " and did not come back" : lost;
    if (!diagnosis_.AnyGood()) {
        if (polled_.empty()) return "the definition's scan asks for no replies";
        const std::string why = diagnosis_.WhyNoReply(session_.timer.Elapsed());
        return options_.simulate ? why : why + "; corvex-cli doctor looks closer";
    }
    return options_.once && !EveryoneAnswered() ? WhoIsMissing() : std::string();
}

std::string ScanRun::WhoIsMissing() const {
    for (const ADXObject* command : polled_) {
        if (!answered_.contains(command))
            return Printf("no good reply in %.1f s to the ", session_.timer.Elapsed()) + NameOf(*command);
    }
    return "the definition's scan asks for no replies";
}

}  // namespace corvex
