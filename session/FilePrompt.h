// How the user is asked for the name of a file.
#pragma once

#include <cstdint>

namespace corvex {

// The numbers that the system's own dialogs use.
enum FilePromptFlag : std::uint32_t {
    kPromptOverwrite = 0x2,  // asks before a name that is in use is taken
    kPromptCreate = 0x2000,  // asks before a name that is not in use is taken
};

struct FilePrompt {
    const char* title;
    const char* filter;     // as shown; it lets "*." and the extension through
    const char* extension;  // put behind a name that has none
    std::uint32_t flags;    // FilePromptFlags
    const char* suggested = "";
};

inline constexpr char kLogFilter[] = "Datalog (XDL) Files (*.xdl)";
inline constexpr FilePrompt kSaveLogPrompt{"Select/Create file to save...", kLogFilter, "xdl",
                                           kPromptOverwrite | kPromptCreate};
inline constexpr FilePrompt kOpenLogPrompt{"Select datalog...", kLogFilter, "xdl", kPromptOverwrite | kPromptCreate};

inline constexpr char kDefinitionFilter[] = "ADX Files (*.adx)";
inline constexpr FilePrompt kLoadDefinitionPrompt{"Select ADX...", kDefinitionFilter, "adx",
                                                  kPromptOverwrite | kPromptCreate};
inline constexpr FilePrompt kSaveDefinitionPrompt{"Choose file to save to...", kDefinitionFilter, "adx",
                                                  kPromptOverwrite | kPromptCreate};
inline constexpr FilePrompt kImportDefinitionPrompt{"Select file to import...", "ADS Files (*.ads)", "ads",
                                                    kPromptOverwrite | kPromptCreate};

}  // namespace corvex
