// A recording that was never given a name: the program ended over it, or the user called its saving off.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Clock.h"

namespace corvex {

// When the recording in this scratch file was begun. No value when there is none: no such file, one that is open
// elsewhere, one without a record or a part of one. The header's count does not decide, as it is 0 after a crash. Any
// thread.
std::optional<LocalTime> FindUnsavedRecording(const std::string& scratch);

// "drive-2026-07-01-123456.xdl" for the time that it was begun at, or, when a damaged header holds no such time, for
// the present. From the second on the number of those of that second goes behind it.
std::string NameOfUnsavedRecording(const LocalTime& begun, unsigned number);

struct KeptRecording {
    std::string path;         // where it is now
    std::uint32_t error = 0;  // the system's; 0 when it has got its name
};

// Gives an unsaved recording, or what may be a damaged one, a name of its own in its folder, never one that is in use,
// so that the scratch file may be made anew. No value when there was nothing to keep. With an error it is where it was,
// and must stay there.
std::optional<KeptRecording> KeepUnsavedRecording(const std::string& scratch);

}  // namespace corvex
