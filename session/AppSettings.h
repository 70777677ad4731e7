// What the program remembers between runs.
#pragma once

#include <cstdint>

namespace corvex {

// A plain structure of terminated texts and pixels. Main thread only, but for comport, which the connect thread reads
// when it starts: it is not to be changed while a scan is on.
struct AppSettings {
    // A settings file carries only the first kFilePortLength characters of a port name; a caller with longer names
    // (a pseudo-terminal, "\\.\COM12") stores them here whole.
    static constexpr std::uint32_t kFilePortLength = 4;
    static constexpr std::uint32_t kPathSize = 260;

    char comport[kPathSize] = "COM1";
    char lastadxpath[kPathSize] = {};  // last definition
    char lastxdlpath[kPathSize] = {};  // last log, also the one that Play opens
    std::int32_t loadlastdef = 1;      // not 0: load lastadxpath at start-up
    std::int32_t winposx = 0, winposy = 0;
    std::int32_t winsizex = 0, winsizey = 0;
    char lineBuffer[512] = {};  // scratch of the reader
};

}  // namespace corvex
