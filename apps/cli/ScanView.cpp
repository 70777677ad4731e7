#include "apps/cli/ScanView.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>
#include <vector>

#include "apps/cli/SampleLines.h"
#include "apps/cli/ScreenLines.h"
#include "apps/cli/TableLines.h"
#include "apps/cli/TextFormat.h"
#include "definition/ADXObject.h"
#include "platform/Terminal.h"
#include "session/ConnectionState.h"

namespace corvex {

namespace {

// A connected line that is quiet for longer than this is told to be; a 160-baud packet takes 1.2 s.
constexpr double kQuietSeconds = 3.0;
constexpr double kRedrawSeconds = 0.1;

std::string SummaryLine(const ScanMoment& moment) {
    std::string text = moment.summary.Text(moment.seconds);
    const std::string doubt = moment.diagnosis.Doubt();
    return doubt.empty() ? text : text + "\nnote: " + doubt;
}

class TableView : public IScanView {
public:
    TableView(const ADXDefinition& definition, std::string port, std::ostream& out)
        : table_(definition), port_(std::move(port)), screen_(out, mode_.Escapes()), out_(out) {}

    void OnReply(const ReplyEvent& event) override { table_.Add(event); }

    void OnTick(const ScanMoment& moment) override {
        if (moment.seconds - drawn_ < kRedrawSeconds) return;
        drawn_ = moment.seconds;
        Draw(moment);
    }

    void OnEnd(const ScanMoment& moment) override {
        Draw(moment);
        out_ << SummaryLine(moment) << '\n';
    }

private:
    void Draw(const ScanMoment& moment) {
        TerminalSize size = OutputTerminalSize();
        if (size.columns == 0) size = {80, 24};
        // The last column and row stay free: text there makes a terminal scroll.
        const std::size_t width = std::max(size.columns, 2U) - 1;
        const std::size_t height = size.rows > 3 ? size.rows - 2 : 1;
        auto lines = TableLines(table_.Rows(moment.seconds), width, height, mode_.Escapes());
        lines.insert(lines.begin(), CutToWidth(port_ + ": " + StateText(moment), width));
        screen_.Show(lines);
    }

    TerminalMode mode_;
    LiveTable table_;
    std::string port_;
    ScreenLines screen_;
    std::ostream& out_;
    double drawn_ = -1.0;
};

class PlainView : public IScanView {
public:
    PlainView(const ADXDefinition& definition, std::ostream& out) : definition_(definition), out_(out) {}

    void OnReply(const ReplyEvent& event) override {
        if (event.sampled) out_ << PlainSample(definition_, event) << '\n' << std::flush;
    }
    void OnTick(const ScanMoment&) override {}
    void OnEnd(const ScanMoment& moment) override { out_ << SummaryLine(moment) << '\n'; }

private:
    const ADXDefinition& definition_;
    std::ostream& out_;
};

class JsonView : public IScanView {
public:
    JsonView(const ADXDefinition& definition, bool once, std::ostream& out)
        : definition_(definition), once_(once), out_(out) {}

    void OnReply(const ReplyEvent& event) override {
        if (!event.sampled || (once_ && !shown_.insert(event.command).second)) return;
        out_ << JsonSample(definition_, event).dump() << '\n' << std::flush;
    }
    void OnTick(const ScanMoment&) override {}
    void OnEnd(const ScanMoment& moment) override {
        nlohmann::ordered_json json{{"summary", moment.summary.Json(moment.seconds)}};
        const std::string doubt = moment.diagnosis.Doubt();
        if (!doubt.empty()) json["summary"]["note"] = doubt;
        out_ << json.dump() << '\n';
    }

private:
    const ADXDefinition& definition_;
    const bool once_;
    std::ostream& out_;
    std::set<const ADXObject*> shown_;
};

// All values at the end, one a line.
class OnceView : public IScanView {
public:
    OnceView(const ADXDefinition& definition, std::ostream& out) : table_(definition), out_(out) {}

    void OnReply(const ReplyEvent& event) override { table_.Add(event); }
    void OnTick(const ScanMoment&) override {}
    void OnEnd(const ScanMoment& moment) override {
        std::vector<std::vector<std::string>> rows;
        for (const LiveRow& row : table_.Rows(moment.seconds))
            rows.push_back({row.title, (row.alarm ? "!" : "") + row.value, row.units});
        out_ << AlignColumns(rows, "") << SummaryLine(moment) << '\n';
    }

private:
    LiveTable table_;
    std::ostream& out_;
};

}  // namespace

std::string StateText(const ScanMoment& moment) {
    const std::string counts = Printf("%.2f Hz, ", moment.summary.Rate()) +
                               Counted(moment.summary.Good(), "good reply") + ", " +
                               Counted(moment.summary.Errors(), "error");
    const double quiet = moment.seconds - moment.summary.LastGood();
    if (moment.connection == kConnecting) {
        // The first moments say nothing about a line yet.
        if (moment.seconds < 1.0) return "Connecting";
        return "Connecting: " + moment.diagnosis.WhyNoReply(moment.seconds);
    }
    if (moment.connection == kConnected && quiet > kQuietSeconds)
        return Printf("No reply for %.1f s; ", quiet) + counts;
    if (moment.connection == kConnected) return "Connected, " + counts;
    return "Not connected, " + counts;
}

std::unique_ptr<IScanView> MakeScanView(const ScanOptions& options, const ADXDefinition& definition,
                                        const std::string& port, bool terminal, std::ostream& out) {
    if (options.json) return std::make_unique<JsonView>(definition, options.once, out);
    if (options.once) return std::make_unique<OnceView>(definition, out);
    if (options.plain || !terminal) return std::make_unique<PlainView>(definition, out);
    return std::make_unique<TableView>(definition, port, out);
}

}  // namespace corvex
