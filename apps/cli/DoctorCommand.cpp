#include <nlohmann/json.hpp>
#include <ostream>

#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"
#include "platform/ConsoleStop.h"
#include "session/diagnosis/LineVerdict.h"

namespace corvex {

namespace {

nlohmann::ordered_json JsonOf(const ADXDefinition& definition, const LineFindings& found, const LineVerdict& verdict) {
    nlohmann::ordered_json json{{"verdict", verdict.word},
                                {"text", Utf8Text(verdict.text)},
                                {"evidence", nlohmann::ordered_json::array()},
                                {"next", Utf8Text(verdict.next)},
                                {"heardBytes", found.heard},
                                {"heardSeconds", found.heardSeconds},
                                {"longestQuietMs", found.longestQuiet},
                                {"echoDelayMs", nullptr},
                                {"answers", nlohmann::ordered_json::array()}};
    for (const std::string& line : verdict.evidence)
        json["evidence"].push_back(Utf8Text(line));
    const double delay = EchoDelay(definition, found);
    if (delay >= 0.0) json["echoDelayMs"] = delay;
    for (const LineAnswer& answer : found.answers)
        json["answers"].push_back(
            {{"bytes", answer.reply.size()}, {"echoed", answer.echoed}, {"lastMs", answer.lastMs}});
    return json;
}

}  // namespace

ExitCode RunDoctor(const DoctorOptions& options, std::ostream& out, std::ostream& err) {
    ADXDefinition definition;
    if (!LoadDefinition(definition, options.definition, err)) return kExitFailure;
    const ConsoleStop stop;
    const ExamPlan plan{options.port, options.seconds, [&] { return stop.Requested(); }};
    const LineFindings found = ExamineLine(definition, plan, SystemSerial());
    const LineVerdict verdict = JudgeLine(definition, found);
    if (options.json) {
        out << JsonOf(definition, found, verdict).dump(2) << '\n';
    } else {
        out << options.port << ": " << verdict.word << ": " << verdict.text << ".\n";
        for (const std::string& line : verdict.evidence)
            out << "  " << line << '\n';
        out << "Next: " << verdict.next << ".\n";
    }
    out.flush();
    if (verdict.Good()) return kExitSuccess;
    err << "corvex-cli: " << options.port << ": " << verdict.text << '\n';
    return kExitFailure;
}

}  // namespace corvex
