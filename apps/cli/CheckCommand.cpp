#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/DefinitionJson.h"
#include "apps/cli/DefinitionText.h"
#include "checking/DefinitionChecker.h"
#include "definition/ADXDefinition.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

std::string CountsText(const ADXDefinition& definition) {
    std::vector<std::vector<std::string>> rows;
    for (const NamedKind& kind : NamedKinds()) {
        const std::size_t count = CountOfType(definition, kind.type);
        if (count != 0) rows.push_back({PadLeft(std::to_string(count), 6), kind.noun});
    }
    return AlignColumns(rows, "");
}

void PrintFinding(const std::string& file, const Finding& finding, std::ostream& out) {
    out << file;
    if (finding.line != 0) out << ':' << finding.line;
    out << ": " << SeverityName(finding.severity) << ": ";
    if (!finding.object.empty()) out << finding.object << ": ";
    out << finding.text << " [" << finding.kind << "]\n";
}

std::string Verdict(const std::vector<Finding>& findings) {
    if (findings.empty()) return "nothing to report";
    return Counted(CountSeverity(findings, Severity::kError), "error") + ", " +
           Counted(CountSeverity(findings, Severity::kWarning), "warning") + ", " +
           Counted(CountSeverity(findings, Severity::kNote), "note");
}

void PrintText(const CheckOptions& options, const ADXDefinition& definition, const std::vector<Finding>& findings,
               std::ostream& out) {
    out << options.file << '\n'
        << HeaderText(definition) << Counted(definition.GetCount(), "object") << '\n'
        << CountsText(definition);
    for (const Finding& finding : findings)
        PrintFinding(options.file, finding, out);
    out << Verdict(findings) << '\n';
}

void PrintJson(const CheckOptions& options, const ADXDefinition& definition, const std::vector<Finding>& findings,
               std::ostream& out) {
    nlohmann::ordered_json report;
    report["file"] = Utf8Text(options.file);
    report["header"] = HeaderJson(definition);
    report["objects"] = definition.GetCount();
    for (const NamedKind& kind : NamedKinds())
        report["counts"][kind.key] = CountOfType(definition, kind.type);
    report["errors"] = CountSeverity(findings, Severity::kError);
    report["warnings"] = CountSeverity(findings, Severity::kWarning);
    report["notes"] = CountSeverity(findings, Severity::kNote);
    report["findings"] = nlohmann::ordered_json::array();
    for (const Finding& finding : findings) {
        nlohmann::ordered_json entry{{"severity", SeverityName(finding.severity)},
                                     {"kind", finding.kind},
                                     {"object", finding.object},
                                     {"text", finding.text}};
        if (finding.line != 0) entry["line"] = finding.line;
        report["findings"].push_back(std::move(entry));
    }
    out << report.dump(2) << '\n';
}

}  // namespace

ExitCode RunCheck(const CheckOptions& options, std::ostream& out, std::ostream& err) {
    ADXDefinition definition;
    SourceRecord source;
    if (!LoadDefinition(definition, options.file, err, &source)) return kExitFailure;
    const std::vector<Finding> findings = CheckDefinition(definition, &source);
    if (options.json)
        PrintJson(options, definition, findings, out);
    else
        PrintText(options, definition, findings, out);
    const bool clean = CountSeverity(findings, Severity::kError) + CountSeverity(findings, Severity::kWarning) == 0;
    if (!options.strict || clean) return kExitSuccess;
    err << "corvex-cli: " << options.file << ": " << Verdict(findings) << '\n';
    return kExitFailure;
}

}  // namespace corvex
