// Counts what a scan brought.
#pragma once

#include <cstdint>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "session/diagnosis/ReplyEvent.h"

namespace corvex {

// Pure; one thread. Times are those of the events.
class ScanSummary {
public:
    void Add(const ReplyEvent& event);

    std::uint32_t Good() const { return good_; }
    std::uint32_t Errors() const;
    // Good replies a second, from the first to the last of them; 0.0 with fewer than two.
    double Rate() const;
    // When the last good reply came; negative while there is none.
    double LastGood() const { return good_ == 0 ? -1.0 : last_; }

    // "121 replies in 10.0 s, 12.05 Hz; 2 errors: 2 short replies (6)".
    std::string Text(double seconds) const;
    nlohmann::ordered_json Json(double seconds) const;

private:
    std::uint32_t good_ = 0;
    double first_ = 0.0, last_ = 0.0;
    std::map<std::uint32_t, std::uint32_t> errors_;  // by code
};

// "short reply" for 6.
const char* CodeName(std::uint32_t code);

}  // namespace corvex
