// What the findings of an examination come to.
#pragma once

#include <string>
#include <vector>

#include "session/diagnosis/LineExam.h"

namespace corvex {

struct LineVerdict {
    std::string word;                   // for programs: "good", "silent", ...; all are in LineVerdict.cpp
    std::string text;                   // one sentence without a full stop
    std::vector<std::string> evidence;  // what it rests on, a line each
    std::string next;                   // what to do now, a sentence without a full stop
    bool Good() const { return word == "good"; }
};

// Pure.
LineVerdict JudgeLine(const ADXDefinition& definition, const LineFindings& found);

// Of those that were measured, the middle one; negative for none. How long the adapter holds an echo back beyond the
// time that its bytes take on the line, in milliseconds.
double EchoDelay(const ADXDefinition& definition, const LineFindings& found);

}  // namespace corvex
