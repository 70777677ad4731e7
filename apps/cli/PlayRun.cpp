#include "apps/cli/PlayRun.h"

#include <algorithm>
#include <chrono>
#include <ostream>

#include "apps/cli/DefinitionFile.h"
#include "export/text/TextFormat.h"
#include "platform/ConsoleStop.h"
#include "platform/Terminal.h"
#include "session/diagnosis/LineState.h"

namespace corvex {

namespace {

using namespace std::chrono_literals;

constexpr auto kPlayPatience = 50ms;
constexpr double kSlowestPaced = 0.01;

}  // namespace

PlayRun::PlayRun(const PlayOptions& options, std::ostream& out, std::ostream& err)
    : options_(options), out_(out), err_(err), log_(err), player_(tap_.Calls()) {
    tap_.Attach(player_.Session());
}

// A playback thread that waits for its reply to be taken would hold the player's destructor for ever.
PlayRun::~PlayRun() {
    queue_.Close();
}

bool PlayRun::Prepare() {
    if (!player_.Open(options_.definition, options_.log, err_)) return false;
    SessionState& session = player_.Session();
    if (!CheckItems(session.definition, options_.items, options_.definition, err_)) return false;
    records_ = session.log.header.sampleCount;
    if (options_.verbose) session.debug.edit = &log_;
    view_ = MakeScanView({options_.plain, options_.json, false, false, options_.items}, session.definition,
                         options_.log, OutputIsTerminal(), out_);
    return true;
}

ExitCode PlayRun::Run() {
    if (!Prepare()) return kExitFailure;
    {
        const ConsoleStop stop([this] { queue_.Wake(); });
        if (!player_.Start(options_.speed, options_.from, err_)) {
            view_.reset();
            return kExitFailure;
        }
        Loop(stop);
    }
    player_.Close();
    log_.Finish();
    ended_ = true;
    view_->OnEnd(Moment());
    view_.reset();
    out_.flush();
    const bool whole = player_.Report(err_);
    if (!out_) err_ << "corvex-cli: nobody takes the output any more\n";
    return whole && out_ ? kExitSuccess : kExitFailure;
}

void PlayRun::Loop(const ConsoleStop& stop) {
    bool stopping = false;
    while (player_.Runs()) {
        Take(queue_.Take(kPlayPatience));
        if (!stopping && (stop.Requested() || !out_)) {
            stopping = true;
            player_.Stop();
        }
        if (!stopping) view_->OnTick(Moment());
    }
}

void PlayRun::Take(const std::vector<ReplyEvent>& events) {
    for (const ReplyEvent& event : events) {
        summary_.Add(event);
        view_->OnReply(event);
    }
}

ScanMoment PlayRun::Moment() const {
    // A record's time is known before the record is done with.
    const double now = std::max(player_.Time(), summary_.LastGood());
    return {now, std::max(0.0, now - options_.from), summary_, StateText(), ""};
}

std::string PlayRun::StateText() const {
    std::string text = ended_ ? "Played" : "Playing";
    if (options_.speed > kSlowestPaced) text += Printf(" at %g%%", options_.speed * 100.0);
    text += Printf(": %.1f s, record %u", player_.Time(), static_cast<unsigned>(player_.Index()));
    if (records_ != 0) text += Printf(" of %u", static_cast<unsigned>(records_));
    return text + ", " + CountsText(summary_);
}

}  // namespace corvex
