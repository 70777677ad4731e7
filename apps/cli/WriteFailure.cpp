#include "apps/cli/WriteFailure.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace corvex {

void ForgetReason() {
    errno = 0;
}

std::string ReasonNotWritten(const std::string& path) {
    const int reason = errno;
    std::error_code unknown;
    const std::filesystem::path place(path);
    if (!path.empty() && std::filesystem::is_directory(place, unknown)) return "it is a folder";
    if (place.has_parent_path() && !std::filesystem::exists(place.parent_path(), unknown))
        return "its folder is not there";
    return reason == 0 ? std::string() : std::generic_category().message(reason);
}

std::string CannotBeWritten(const std::string& reason) {
    return reason.empty() ? " cannot be written" : " cannot be written: " + reason;
}

}  // namespace corvex
