#include <algorithm>
#include <ostream>
#include <string>

#include "apps/cli/AtomicReplace.h"
#include "apps/cli/Commands.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/DroppedText.h"
#include "apps/cli/LegacyFile.h"
#include "apps/cli/OutputGuard.h"
#include "apps/cli/WriteFailure.h"
#include "checking/DefinitionChecker.h"
#include "definition/ADXDefinition.h"
#include "export/text/TextFormat.h"
#include "platform/FileReplacement.h"

namespace corvex {

namespace {

bool RefuseToSave(std::ostream& err, const std::string& path, const std::string& why) {
    err << "corvex-cli: " << path << ": " << why << '\n';
    return false;
}

bool RefuseToWrite(std::ostream& err, const std::string& path) {
    err << "corvex-cli: " << path << ':' << CannotBeWritten(ReasonNotWritten(path)) << '\n';
    return false;
}

// Not every definition survives the way through a file, and the one that stands there may be the only one.
bool SaveChecked(const ADXDefinition& definition, const std::string& path, std::ostream& err) {
    ForgetReason();
    if (IsDeviceOrPipe(path)) return definition.Save(path.c_str()) != 0 || RefuseToWrite(err, path);
    AtomicReplace fresh(path);
    if (fresh.Name().empty() || definition.Save(fresh.Name().c_str()) == 0) return RefuseToWrite(err, path);
    ADXDefinition read;
    char error[ADXDefinition::kErrorSize] = {};
    if (read.Load(fresh.Name().c_str(), error) == 0)
        return RefuseToSave(err, path, std::string("is not written, since it would not load again: ") + error);
    return fresh.MoveIntoPlace() || RefuseToWrite(err, path);
}

}  // namespace

ExitCode RunConvert(const ConvertOptions& options, std::ostream&, std::ostream& err) {
    if (!MayReplace(options.output, {options.input}, options.force, err)) return kExitFailure;
    ADXDefinition definition;
    SourceRecord source;
    const bool legacy = IsLegacyFile(options.input);
    if (legacy ? !ImportDefinition(definition, options.input, err)
               : !LoadDefinition(definition, options.input, err, &source))
        return kExitFailure;
    if (!legacy && definition.GetCount() == 0 && source.Header().start.name.empty()) {
        err << "corvex-cli: " << options.input << ": there is no header and no object in it, so nothing is written\n";
        return kExitFailure;
    }
    const auto findings = CheckDefinition(definition, nullptr);
    // Before the file that is read may be replaced.
    const std::string dropped = legacy ? "" : DroppedText(options.input, definition, source);
    if (!SaveChecked(definition, options.output, err)) return kExitFailure;
    if (!dropped.empty()) err << "corvex-cli: " << options.input << ": left out " << dropped << '\n';
    const auto lost = std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.lostonsave; });
    if (lost != 0) {
        err << "corvex-cli: " << options.output << ": " << Counted(static_cast<std::size_t>(lost), "thing")
            << " did not survive the save";
        if (!legacy) err << "; corvex-cli check " << options.input << " names them";
        err << '\n';
    }
    return kExitSuccess;
}

}  // namespace corvex
