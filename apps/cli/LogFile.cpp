#include "apps/cli/LogFile.h"

#include <filesystem>
#include <ostream>
#include <system_error>

namespace corvex {

namespace {

// As the codes come from opening and reading.
const char* MeaningOf(std::uint32_t code) {
    switch (code) {
        case kLogFileError:
            return "it ends before its header and item table do, or cannot be read";
        case kLogUnknownItem:
            return "a record of an unknown item leads nowhere";
        case kLogCannotOpen:
            return "it cannot be opened";
        case kLogWrongVersion:
            return "it is no log of version 3";
        default:
            return "it cannot be read";
    }
}

}  // namespace

std::string LogErrorText(std::uint32_t code) {
    return MeaningOf(code);
}

bool OpenLog(DataLogEngine& log, const std::string& path, std::ostream& err) {
    const std::uint32_t result = log.Open(path.c_str(), kLogForLooking);
    if (result == kLogSuccess) return true;
    err << "corvex-cli: " << path << ": " << LogErrorText(result);
    if (result == kLogCannotOpen && !log.OpenError().empty()) err << ": " << log.OpenError();
    err << '\n';
    return false;
}

bool SameFile(const std::string& path, const std::string& other) {
    std::error_code unknown;  // one of them is not there
    return std::filesystem::equivalent(path, other, unknown) && !unknown;
}

}  // namespace corvex
