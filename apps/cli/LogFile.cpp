#include "apps/cli/LogFile.h"

#include <filesystem>
#include <ostream>
#include <system_error>

#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// As the codes come from opening and reading.
const char* MeaningOf(std::uint32_t code) {
    switch (code) {
        case kLogFileError:
            return "ends before its header and item table do, or cannot be read";
        case kLogUnknownItem:
            return "a record of an unknown item leads nowhere";
        case kLogCannotOpen:
            return "cannot be opened";
        case kLogWrongVersion:
            return "no log of version 3";
        default:
            return "cannot be read";
    }
}

}  // namespace

std::string LogErrorText(std::uint32_t code) {
    return Printf("error 0x%X (%s)", static_cast<unsigned>(code), MeaningOf(code));
}

bool OpenLog(DataLogEngine& log, const std::string& path, std::ostream& err) {
    const std::uint32_t result = log.Open(path.c_str(), kLogForLooking);
    if (result == kLogSuccess) return true;
    err << "corvex-cli: " << path << ": " << LogErrorText(result) << '\n';
    return false;
}

bool SameFile(const std::string& path, const std::string& other) {
    std::error_code unknown;  // one of them is not there
    return std::filesystem::equivalent(path, other, unknown) && !unknown;
}

}  // namespace corvex
