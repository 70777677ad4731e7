// One thing that the author of a definition must know.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvex {

// An error reads, shows or does something wrong today, or makes a saved file unreadable; a warning is lost or goes
// wrong under a condition; a note is only worth knowing.
enum class Severity { kError, kWarning, kNote };

const char* SeverityName(Severity severity);

struct Finding {
    Severity severity = Severity::kNote;
    std::string kind;         // a fixed word for machines: "unresolved-link"
    std::string object;       // whose fault it is, by type, title and id; empty for the definition as a whole
    std::string text;         // one sentence
    std::uint32_t line = 0;   // in the file, 0 when not known
    bool lostonsave = false;  // today's model is right, the saved file is not
};

std::size_t CountSeverity(const std::vector<Finding>& findings, Severity severity);

}  // namespace corvex
