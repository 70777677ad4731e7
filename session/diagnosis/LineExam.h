// Looks at a line before anybody scans it: listens, asks, and measures what comes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/SerialPlatform.h"

namespace corvex {

class ADXCSendCommand;
class ADXDefinition;

// What came after one request. Milliseconds count from the request's first byte; negative: never.
struct LineAnswer {
    std::vector<std::uint8_t> reply;  // without the echo
    bool echoed = false;              // the request's own bytes came first
    double echoMs = -1.0;             // when the echo was whole
    double lastMs = -1.0;             // when the last byte of the reply came
};

struct LineFindings {
    std::string refusal;  // why the port cannot be opened; empty when it is open
    std::string lost;     // why it vanished while it was open
    double heardSeconds = 0.0;
    std::size_t heard = 0;                      // bytes that came while nobody asked
    double longestQuiet = 0.0;                  // milliseconds between them
    const ADXCSendCommand* asked = nullptr;     // null: the definition asks for nothing, or for a stream
    std::vector<LineAnswer> answers;            // one for each request, in order
    bool stream = false;                        // a 160-baud stream was listened for
    std::uint32_t packets = 0, badPackets = 0;  // of it
};

struct ExamPlan {
    std::string port;
    double seconds = 5.0;        // half of them, 2 at most, nobody asks
    std::function<bool()> stop;  // asked between requests; empty: never
};

// Runs the definition's connect command before the first request and its disconnect command at the end, 5 s each at
// most. Asks for the first command that its scan polls. Blocks; one thread. The definition outlives the findings.
LineFindings ExamineLine(const ADXDefinition& definition, const ExamPlan& plan, ISerialPlatform& platform);

}  // namespace corvex
