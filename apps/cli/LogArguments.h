// Reads the arguments of the commands for logs.
#pragma once

#include <optional>
#include <string>

#include "apps/cli/LogOptions.h"
#include "apps/cli/Options.h"

namespace CLI {
class App;
}

namespace corvex {

inline constexpr double kLongestSeconds = 1e9;  // that any option takes

// An option for patterns of items (export/ItemPattern.h) that may be given more than once.
void AddItems(CLI::App& command, std::string& items, const char* what);

class LogArguments {
public:
    LogArguments() = default;
    LogArguments(const LogArguments&) = delete;
    LogArguments& operator=(const LogArguments&) = delete;

    // Registers info, decode, play, histogram and repair with a parser, which must not parse after this is gone.
    void AddTo(CLI::App& app);
    // The options of the command of that name; none when it is not for logs. After parsing.
    std::optional<Options> Chosen(const std::string& name) const;

private:
    void AddInfo(CLI::App& app);
    void AddDecode(CLI::App& app);
    void AddPlay(CLI::App& app);
    void AddHistogram(CLI::App& app);
    void AddRepair(CLI::App& app);

    InfoOptions info_;
    DecodeOptions decode_;
    PlayOptions play_;
    HistogramOptions histogram_;
    RepairOptions repair_;
};

}  // namespace corvex
