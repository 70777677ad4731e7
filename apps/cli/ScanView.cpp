#include "apps/cli/ScanView.h"

#include <algorithm>
#include <chrono>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>
#include <vector>

#include "apps/cli/SampleLines.h"
#include "apps/cli/ScreenLines.h"
#include "apps/cli/TableLines.h"
#include "definition/ADXObject.h"
#include "export/ItemPattern.h"
#include "export/text/TextFormat.h"
#include "platform/Terminal.h"

namespace corvex {

namespace {

constexpr auto kRedraw = std::chrono::milliseconds(100);
// Quiet seconds until a line of text says so for the first time; each further one comes after twice as many.
constexpr double kFirstQuiet = 3.0;

std::string SummaryLine(const ScanMoment& moment) {
    std::string text = moment.summary.Text(moment.seconds);
    if (moment.outages.value_or(0) != 0) text += "; " + Counted(*moment.outages, "outage");
    return moment.note.empty() ? text : text + "\nnote: " + moment.note;
}

class TableView : public IScanView {
public:
    TableView(const ADXDefinition& definition, const std::string& items, std::string source, std::ostream& out)
        : table_(definition, items), source_(std::move(source)), screen_(out, mode_.Escapes()), out_(out) {}

    void OnReply(const ReplyEvent& event) override { table_.Add(event); }

    void OnTick(const ScanMoment& moment) override {
        // By the wall's clock: a log's own time may run at any speed.
        const auto now = std::chrono::steady_clock::now();
        if (now - drawn_ < kRedraw) return;
        drawn_ = now;
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
        auto lines = TableLines(table_.Rows(moment.now), width, height, mode_.Escapes());
        lines.insert(lines.begin(), CutToWidth(source_ + ": " + moment.state, width));
        screen_.Show(lines);
    }

    TerminalMode mode_;
    LiveTable table_;
    std::string source_;
    ScreenLines screen_;
    std::ostream& out_;
    std::chrono::steady_clock::time_point drawn_;
};

class PlainView : public IScanView {
public:
    PlainView(const ADXDefinition& definition, const std::string& items, bool live, std::ostream& out)
        : definition_(definition), items_(definition, items), live_(live), out_(out) {}

    void OnReply(const ReplyEvent& event) override {
        if (!event.sampled) return;
        out_ << PlainSample(definition_, items_, event) << '\n' << std::flush;
        told_ = event.t;
        quiet_ = kFirstQuiet;
    }
    void OnTick(const ScanMoment& moment) override {
        if (!live_ || moment.now - told_ < quiet_) return;
        out_ << Printf("%.3f ", moment.now) << moment.state << '\n' << std::flush;
        told_ = moment.now;
        quiet_ *= 2.0;
    }
    void OnEnd(const ScanMoment& moment) override { out_ << SummaryLine(moment) << '\n'; }

private:
    const ADXDefinition& definition_;
    const ItemChoice items_;
    const bool live_;
    std::ostream& out_;
    double told_ = 0.0, quiet_ = kFirstQuiet;
};

class JsonView : public IScanView {
public:
    JsonView(const ADXDefinition& definition, const std::string& items, bool once, std::ostream& out)
        : definition_(definition), items_(definition, items), once_(once), out_(out) {}

    void OnReply(const ReplyEvent& event) override {
        if (!event.sampled || (once_ && !shown_.insert(event.command).second)) return;
        out_ << JsonSample(definition_, items_, event).dump() << '\n' << std::flush;
    }
    void OnTick(const ScanMoment&) override {}
    void OnEnd(const ScanMoment& moment) override {
        nlohmann::ordered_json json{{"summary", moment.summary.Json(moment.seconds)}};
        if (moment.outages) json["summary"]["outages"] = *moment.outages;
        if (!moment.note.empty()) json["summary"]["note"] = moment.note;
        out_ << json.dump() << '\n';
    }

private:
    const ADXDefinition& definition_;
    const ItemChoice items_;
    const bool once_;
    std::ostream& out_;
    std::set<const ADXObject*> shown_;
};

// All values at the end, one a line.
class OnceView : public IScanView {
public:
    OnceView(const ADXDefinition& definition, const std::string& items, std::ostream& out)
        : table_(definition, items), out_(out) {}

    void OnReply(const ReplyEvent& event) override { table_.Add(event); }
    void OnTick(const ScanMoment&) override {}
    void OnEnd(const ScanMoment& moment) override {
        std::vector<std::vector<std::string>> rows;
        for (const LiveRow& row : table_.Rows(moment.now))
            rows.push_back({row.title, (row.alarm ? "!" : "") + row.value, row.units});
        out_ << AlignColumns(rows, "") << SummaryLine(moment) << '\n';
    }

private:
    LiveTable table_;
    std::ostream& out_;
};

}  // namespace

std::unique_ptr<IScanView> MakeScanView(const ViewOptions& options, const ADXDefinition& definition,
                                        const std::string& source, bool terminal, std::ostream& out) {
    if (options.json) return std::make_unique<JsonView>(definition, options.items, options.once, out);
    if (options.once) return std::make_unique<OnceView>(definition, options.items, out);
    if (options.plain || !terminal) return std::make_unique<PlainView>(definition, options.items, options.live, out);
    return std::make_unique<TableView>(definition, options.items, source, out);
}

}  // namespace corvex
