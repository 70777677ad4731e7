// The line of a scan on a page: what was seen, what that means, what to try first.
#pragma once

#include <string>

namespace corvex {

class LinkRecord;

// Lines end with "\n". Arguments as JudgeLink's. Pure.
std::string LinkReport(const LinkRecord& record, double now, bool scanning);

}  // namespace corvex
