#include "apps/cli/FreshFile.h"

#include <filesystem>
#include <system_error>

#include "platform/FileReplacement.h"

namespace corvex {

FreshFile::FreshFile(const std::string& path) : path_(path), name_(FreshNameFor(path)) {}

FreshFile::~FreshFile() {
    std::error_code ignored;
    if (!done_ && !name_.empty()) std::filesystem::remove(name_, ignored);
}

bool FreshFile::MoveIntoPlace() {
    done_ = true;
    return !name_.empty() && corvex::MoveIntoPlace(name_, path_);
}

}  // namespace corvex
