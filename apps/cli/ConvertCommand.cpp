#include "apps/cli/ConvertCommand.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <system_error>

#include "apps/cli/DefinitionChecker.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/TextFormat.h"
#include "definition/ADXDefinition.h"

namespace corvex {

namespace {

namespace fs = std::filesystem;

// A device or a pipe has no place to be put into: it is written directly.
bool IsReplaceable(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return !fs::exists(status) || fs::is_regular_file(status);
}

// Beside the output, so that taking its place is one step within one file system.
fs::path DraftOf(const fs::path& output) {
    std::error_code error;
    for (unsigned i = 0;; ++i) {
        fs::path draft = output;
        draft += Printf(".new%u", i);
        if (!fs::exists(draft, error)) return draft;
    }
}

bool SaveAside(const ADXDefinition& definition, const fs::path& output) {
    if (!IsReplaceable(output)) return definition.Save(output.string().c_str()) != 0;
    std::error_code error;
    // Behind a symbolic link the file itself is replaced, not the link.
    const fs::path target = fs::exists(output, error) ? fs::canonical(output, error) : output;
    const fs::path draft = DraftOf(target);
    if (definition.Save(draft.string().c_str()) != 0) {
        fs::rename(draft, target, error);
        if (!error) return true;
    }
    fs::remove(draft, error);
    return false;
}

}  // namespace

ExitCode RunConvert(const ConvertOptions& options, std::ostream&, std::ostream& err) {
    ADXDefinition definition;
    if (!LoadDefinition(definition, options.input, err)) return kExitFailure;
    const auto findings = CheckDefinition(definition, nullptr);
    if (!SaveAside(definition, options.output)) {
        err << "corvex-cli: " << options.output << ": cannot be written\n";
        return kExitFailure;
    }
    const auto lost = std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.lostonsave; });
    if (lost != 0)
        err << "corvex-cli: " << options.output << ": " << Counted(static_cast<std::size_t>(lost), "thing")
            << " did not survive the save; corvex-cli check " << options.input << " names them\n";
    return kExitSuccess;
}

}  // namespace corvex
