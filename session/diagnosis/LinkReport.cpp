#include "session/diagnosis/LinkReport.h"

#include <algorithm>

#include "export/text/TextFormat.h"
#include "session/diagnosis/LinkRecord.h"
#include "session/diagnosis/LinkState.h"

namespace corvex {

namespace {

std::string Sentence(std::string text) {
    if (text.empty()) return "Nothing.\n";
    if (text.front() >= 'a' && text.front() <= 'z') text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text + ".\n";
}

std::string EchoText(const LinkRecord& record, const LinkCounts& seen) {
    if (record.settings.echo) return Counted(seen.echo, "byte") + ", taken off before the replies";
    return seen.onlyEcho == 0 ? "none" : Counted(seen.onlyEcho, "time") + " nothing but our own request";
}

std::string LengthsText(const LinkCounts& seen) {
    std::string text;
    for (const LengthCount& length : seen.lengths) {
        if (length.count == 0) break;
        text +=
            (text.empty() ? "" : ", ") + Counted(length.length, "byte") + " (" + Counted(length.count, "time") + ")";
    }
    return text.empty() ? "none came short" : text;
}

std::string RateText(const LineSettings& line) {
    if (line.baud == 0) return "not known before the first reply";
    return Printf("%u baud asked for, ", line.baud) +
           (line.lineBaud == 0 ? "not read back" : Printf("%u read back", line.lineBaud));
}

std::string SeenText(const LinkRecord& record, double now) {
    const LinkCounts seen = record.Lately(now, LinkRecord::kSeconds);
    const std::uint32_t other = seen.onlyEcho + seen.other;
    const std::string gaps = record.good < 2 ? "not known yet"
                                             : Printf("%.2f s between good ones, %.2f s at most", record.UsualGap(),
                                                      std::max(seen.longestGap, record.UsualGap()));
    return AlignColumns({{"Port", record.port.empty() ? "none yet" : record.port},
                         {"Bytes out", Printf("%u in %s", seen.out, Counted(seen.All(), "request").c_str())},
                         {"Bytes in", Printf("%u in ", seen.in) + Counted(seen.good, "whole reply")},
                         {"Bad", Printf("%u silent, %u cut, %u other", seen.silent, seen.cut, other)},
                         {"Echo", EchoText(record, seen)},
                         {"Cut at", LengthsText(seen)},
                         {"Replies", gaps},
                         {"Line rate", RateText(record.settings)},
                         {"Adapter", "the system does not tell its latency"}},
                        "  ");
}

}  // namespace

std::string LinkReport(const LinkRecord& record, double now, bool scanning) {
    const LinkState state = JudgeLink(record, now, scanning);
    return "Seen in the last minute\n" + SeenText(record, now) + "\nWhat that means\n  " + Sentence(state.sentence) +
           "\nWhat to try first\n  " + Sentence(state.next);
}

}  // namespace corvex
