// What the line of a scan does, in words: for a panel, for a sentence, for the question what to do.
#pragma once

#include <string>

namespace corvex {

class LinkRecord;

enum class LinkLevel {
    kCalm,
    kDoubtful,
    kAlarm,  // nothing good comes: what is on show is stale, or there is nothing to show
};

struct LinkState {
    std::string word;      // for programs; those of LineVerdict where it is the same
    std::string text;      // a few words, at most 36 characters
    std::string sentence;  // without a full stop
    std::string next;      // what to do, without a full stop; may be empty
    LinkLevel level = LinkLevel::kCalm;
    bool operator==(const LinkState&) const = default;
};

// `now` on the record's clock. `scanning`: a scan is wanted. What a line does that nobody scans is no alarm, but a
// refused port is one for a while. Pure.
LinkState JudgeLink(const LinkRecord& record, double now, bool scanning);

}  // namespace corvex
