#include "session/ScratchLog.h"

#include "session/AppSettings.h"

namespace corvex {

std::string ScratchLogPath() {
    constexpr std::size_t kLongest = 260;
    char folder[AppSettings::kPathSize];
    GetProgramDirectory(nullptr, folder);
    return std::string(folder).append(kScratchLogName).substr(0, kLongest);
}

}  // namespace corvex
