#include <memory>
#include <ostream>

#include "apps/cli/Commands.h"
#include "apps/cli/HistogramText.h"
#include "apps/cli/LogPlayer.h"
#include "apps/cli/TextOutput.h"
#include "apps/cli/WriteFailure.h"
#include "definition/ADXHistogram.h"
#include "definition/HistogramFeed.h"
#include "export/CsvWriter.h"
#include "export/ItemPattern.h"
#include "platform/Clock.h"
#include "platform/Terminal.h"

namespace corvex {

namespace {

class HistogramRun : public ISampleView {
public:
    HistogramRun(const HistogramOptions& options, std::ostream& out, std::ostream& err)
        : options_(options), out_(out), err_(err), player_(SessionCalls{}) {}

    ExitCode Run() {
        if (!player_.Open(options_.definition, options_.log, err_)) return kExitFailure;
        feed_ = std::make_unique<HistogramFeed>(player_.Session().definition);
        player_.Session().views.Register(SampleViewKind::kHistograms, this);
        if (!Choose()) return kExitFailure;
        // What a damaged log has brought until it ended is shown all the same.
        const bool whole = Play();
        const bool written = options_.csv ? WriteCsv() : WriteTables();
        return whole && written ? kExitSuccess : kExitFailure;
    }

    bool WantsSamples() const override { return true; }
    void Read(const PublishedSample& sample) override {
        feed_->Update(sample.last.View(), sample.last.command, sample.commandId);
    }
    void Draw() override {}

private:
    bool Choose() {
        for (const FedHistogram& fed : feed_->All()) {
            const bool named = options_.id.empty() || options_.id == fed.histogram->Id();
            if (named && ItemMatches(options_.items, *fed.histogram)) chosen_.push_back(&fed);
        }
        for (const std::string& name : options_.views)
            views_.push_back(FindHistogramView(name));
        if (views_.empty()) views_.push_back(FindHistogramView("last"));
        if (!chosen_.empty()) return true;
        err_ << "corvex-cli: " << options_.definition << ": no histogram";
        if (!options_.id.empty()) err_ << " has the id \"" << options_.id << '"';
        if (!options_.items.empty()) err_ << " matches what is asked for";
        err_ << "; corvex-cli list " << options_.definition << " shows what there is\n";
        return false;
    }

    bool Play() {
        if (!player_.Start(0.0, 0.0, err_)) return false;
        IClock& clock = SystemClock();
        while (player_.Runs())
            SleepUntil(clock.Counter() + clock.Frequency() / 1000);
        player_.Close();
        return player_.Report(err_);
    }

    bool WriteTables() {
        const char* between = "";
        for (const FedHistogram* fed : chosen_) {
            for (const HistogramStatistic* view : views_) {
                out_ << between << HistogramTable(*fed, *view);
                between = "\n";
            }
        }
        return true;
    }

    // Several blocks get a row of their own that names each.
    bool WriteCsv() {
        TextOutput output("-", out_);
        CsvWriter csv(output);
        const bool named = chosen_.size() * views_.size() > 1;
        for (const FedHistogram* fed : chosen_) {
            for (const HistogramStatistic* view : views_) {
                if (named) {
                    csv.Text(HistogramTitle(*fed));
                    csv.Text(view->title);
                    csv.EndRow();
                }
                WriteHistogramCells(*fed, *view, csv);
            }
        }
        if (csv.Flush() && output.Finish()) return true;
        if (OutputReaderIsGone()) return true;
        err_ << "corvex-cli: the output" << CannotBeWritten(output.Reason()) << '\n';
        return false;
    }

    const HistogramOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    std::unique_ptr<HistogramFeed> feed_;  // outlives the thread that fills it
    LogPlayer player_;
    std::vector<const FedHistogram*> chosen_;
    std::vector<const HistogramStatistic*> views_;
};

}  // namespace

ExitCode RunHistogram(const HistogramOptions& options, std::ostream& out, std::ostream& err) {
    return HistogramRun(options, out, err).Run();
}

}  // namespace corvex
