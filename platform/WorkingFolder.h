// The folder that names without one are looked up in.
#pragma once

#include <filesystem>
#include <system_error>

namespace corvex {

// Puts the process's working folder back at its end, whatever was done with it meanwhile. It stays as it is when the
// folder has gone. It belongs to all threads, so this is for one that changes it: the main thread.
class KeptWorkingFolder {
public:
    KeptWorkingFolder() : folder_(std::filesystem::current_path(failed_)) {}
    ~KeptWorkingFolder() {
        if (!failed_) std::filesystem::current_path(folder_, failed_);
    }
    KeptWorkingFolder(const KeptWorkingFolder&) = delete;
    KeptWorkingFolder& operator=(const KeptWorkingFolder&) = delete;

private:
    std::error_code failed_;
    const std::filesystem::path folder_;
};

}  // namespace corvex
