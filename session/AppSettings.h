// What the program remembers between runs, in a file of its own folder.
#pragma once

#include <cstdint>
#include <string>

namespace corvex {

// A plain structure of terminated texts and pixels. Main thread only.
struct AppSettings {
    // A settings file carries only the first kFilePortLength characters of a port name; a caller with longer names
    // (a pseudo-terminal, "\\.\COM12") stores them here whole.
    static constexpr std::uint32_t kFilePortLength = 4;
    static constexpr std::uint32_t kPathSize = 260;

    // Cuts a path that is too long.
    void SetLastLog(const std::string& path);

    char comport[kPathSize] = "COM1";
    char lastadxpath[kPathSize] = {};  // last definition
    char lastxdlpath[kPathSize] = {};  // last log, also the one that Play opens
    std::int32_t loadlastdef = 1;      // not 0: load lastadxpath at start-up
    std::int32_t winposx = 0, winposy = 0;
    std::int32_t winsizex = 0, winsizey = 0;
    char lineBuffer[512] = {};  // scratch of the reader
};

// The port, no files, and a window in the middle of the screen, of a size that goes by the screen's width. Before the
// window exists.
void SetDefaults(AppSettings* settings);

// "Settings.dat" of the program's folder: one line "key=value" each. 1 when it was read, 0 when it could not be. What
// the file does not name, or leaves empty, stays as it is; what is too long for its place is cut. Any bytes will do.
int ReadSettings(AppSettings* settings);
// 1 when written; 0 when not, and the old file then stands as it was. Values are written as they are.
int WriteSettings(const AppSettings* settings);

// The folder of the program, or of the module when `instance` is not null, with its separator at the end. Empty when
// there is no telling. `directory` has AppSettings::kPathSize bytes.
void GetProgramDirectory(void* instance, char* directory);

}  // namespace corvex
