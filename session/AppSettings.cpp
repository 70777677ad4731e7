#include "session/AppSettings.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <memory>
#include <string>

#include "platform/FileReplacement.h"
#include "platform/ProgramPlace.h"

namespace corvex {

namespace {

// A text has a limit in characters, a number has none. In the order of the file.
struct Key {
    const char* name;
    char (AppSettings::*text)[AppSettings::kPathSize];
    std::size_t limit;
    std::int32_t AppSettings::*number;
};

constexpr Key kKeys[] = {
    {"lastadxpath", &AppSettings::lastadxpath, AppSettings::kPathSize - 1, nullptr},
    {"comport", &AppSettings::comport, AppSettings::kFilePortLength, nullptr},
    {"loadlastdef", nullptr, 0, &AppSettings::loadlastdef},
    {"lastxdlpath", &AppSettings::lastxdlpath, AppSettings::kPathSize - 1, nullptr},
    {"winposx", nullptr, 0, &AppSettings::winposx},
    {"winposy", nullptr, 0, &AppSettings::winposy},
    {"winsizex", nullptr, 0, &AppSettings::winsizex},
    {"winsizey", nullptr, 0, &AppSettings::winsizey},
};

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

// Empty when the program's folder is not known.
std::string SettingsPath() {
    char path[AppSettings::kPathSize];
    GetProgramDirectory(nullptr, path);
    if (path[0] == '\0') return {};
    return std::string(path).append("Settings.dat").substr(0, AppSettings::kPathSize - 1);
}

// Like atoi, but a number that is too large is defined too: the largest there is.
std::int32_t Number(const char* text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const long long number = std::strtoll(text, nullptr, 10);
    return static_cast<std::int32_t>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

void CutTo(char* out, std::size_t limit, const char* text) {
    const std::size_t length = std::min(std::strlen(text), limit);
    std::memcpy(out, text, length);
    out[length] = '\0';
}

// Only the key ends at the first "=".
void TakeLine(AppSettings* settings) {
    char* const line = settings->lineBuffer;
    line[std::strcspn(line, "\n")] = '\0';
    char* const sign = std::strchr(line, '=');
    if (sign == nullptr || sign[1] == '\0') return;
    *sign = '\0';
    const char* const value = sign + 1;
    for (const Key& key : kKeys) {
        if (std::strcmp(key.name, line) != 0) continue;
        if (key.text != nullptr) CutTo(settings->*key.text, key.limit, value);
        if (key.number != nullptr) settings->*key.number = Number(value);
    }
}

bool PrintAll(std::FILE* file, const AppSettings& settings) {
    bool printed = true;
    for (const Key& key : kKeys) {
        const int count =
            key.text != nullptr
                ? std::fprintf(file, "%s=%.*s\n", key.name, static_cast<int>(key.limit), settings.*key.text)
                : std::fprintf(file, "%s=%i\n", key.name, static_cast<int>(settings.*key.number));
        printed = count >= 0 && printed;
    }
    return printed;
}

bool PrintTo(const std::string& path, const AppSettings& settings) {
    std::FILE* const file = path.empty() ? nullptr : std::fopen(path.c_str(), "w");
    if (file == nullptr) return false;
    const bool printed = PrintAll(file, settings);
    return std::fclose(file) == 0 && printed;
}

}  // namespace

void AppSettings::SetLastLog(const std::string& path) {
    CutTo(lastxdlpath, kPathSize - 1, path.c_str());
}

// The height goes by the screen's width too: that gives the window its proportion.
void SetDefaults(AppSettings* settings) {
    const ScreenSize screen = CurrentProgramPlace().Screen();
    *settings = AppSettings();
    settings->winsizex = static_cast<std::int32_t>(0.75 * screen.width);
    settings->winsizey = static_cast<std::int32_t>(0.55 * screen.width);
    settings->winposx = screen.width / 2 - settings->winsizex / 2;
    settings->winposy = screen.height / 2 - settings->winsizey / 2;
}

int ReadSettings(AppSettings* settings) {
    const std::string path = SettingsPath();
    if (path.empty()) return 0;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "r"));
    if (!file) return 0;
    // A longer line is cut, and the rest taken for a line of its own.
    while (std::fgets(settings->lineBuffer, sizeof settings->lineBuffer, file.get()) != nullptr)
        TakeLine(settings);
    return std::ferror(file.get()) == 0 ? 1 : 0;
}

// Written beside the old file, which gives way when the new one is whole. Where there can be no file beside (a folder
// that lets nobody in), nothing is written: the old one is worth more than a new one that may not fit.
int WriteSettings(const AppSettings* settings) {
    const std::string path = SettingsPath();
    if (path.empty()) return 0;
    SweepAbandoned(path);
    const std::string fresh = FreshNameFor(path);
    if (PrintTo(fresh, *settings)) return MoveIntoPlace(fresh, path) ? 1 : 0;
    std::remove(fresh.c_str());
    return 0;
}

void GetProgramDirectory(void* instance, char* directory) {
    const std::string name = CurrentProgramPlace().FileName(instance).substr(0, AppSettings::kPathSize - 1);
    const std::size_t end = name.rfind(CurrentProgramPlace().Separator());
    CutTo(directory, AppSettings::kPathSize - 1, name.substr(0, end == std::string::npos ? 0 : end + 1).c_str());
}

}  // namespace corvex
