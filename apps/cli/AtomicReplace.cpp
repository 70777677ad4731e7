#include "apps/cli/AtomicReplace.h"

#include <filesystem>
#include <system_error>

#include "logging/LogContent.h"
#include "platform/FileReplacement.h"

namespace corvex {

namespace {

// What was left on the way to a log may be all there is of it.
void SweepBeside(const std::string& path) {
    SweepAbandoned(path, [log = IsLogName(path)](const std::string& left) {
        const LogContent content = LookIntoLog(left);
        return content == LogContent::kNothing || (content == LogContent::kForeign && !log);
    });
}

}  // namespace

AtomicReplace::AtomicReplace(const std::string& path) : path_(path), name_(FreshNameFor(path)) {
    SweepBeside(path);
}

AtomicReplace::~AtomicReplace() {
    std::error_code ignored;
    if (!done_ && !name_.empty()) std::filesystem::remove(name_, ignored);
}

bool AtomicReplace::MoveIntoPlace() {
    done_ = true;
    return !name_.empty() && corvex::MoveIntoPlace(name_, path_);
}

}  // namespace corvex
