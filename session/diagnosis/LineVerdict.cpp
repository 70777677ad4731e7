#include "session/diagnosis/LineVerdict.h"

#include <algorithm>
#include <map>

#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"
#include "session/diagnosis/LineAdvice.h"

namespace corvex {

namespace {

// Below this share a fault is only told.
constexpr std::size_t kTellingPart = 10;
constexpr std::size_t kTellingCount = 4;

double Middle(std::vector<double> numbers) {
    if (numbers.empty()) return -1.0;
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::ranges::nth_element(numbers, middle);
    return *middle;
}

std::string HeaderOf(const LineAnswer& answer, std::uint32_t length) {
    const std::size_t count = std::min<std::size_t>(answer.reply.size(), length);
    return {answer.reply.begin(), answer.reply.begin() + static_cast<std::ptrdiff_t>(count)};
}

// The answers to one command, counted by what is the matter with each.
struct AnswerCounts {
    explicit AnswerCounts(const LineFindings& found) : all(found.answers.size()) {
        const ADXCSendCommand& command = *found.asked;
        std::map<std::string, std::size_t> headers;
        std::vector<double> times;
        for (const LineAnswer& answer : found.answers) {
            if (answer.echoed) ++echoed;
            if (answer.reply.empty()) {
                ++(answer.echoed ? onlyEcho : nothing);
                continue;
            }
            ++lengths[answer.reply.size()];
            if (answer.reply.size() != command.replysize) continue;
            ++whole;
            ++headers[HeaderOf(answer, command.packetoffset)];
            times.push_back(answer.lastMs);
            if (command.replytimeout != 0 && answer.lastMs > command.replytimeout) ++late;
        }
        for (const auto& [header, count] : headers)
            alike = std::max(alike, count);
        lastMs = Middle(times);
    }

    // The length that nearly all have and that is not asked for; 0 for none.
    std::size_t SteadyLength() const {
        for (const auto& [length, count] : lengths) {
            if (count * 4 >= all * 3) return length;
        }
        return 0;
    }
    std::size_t Missing() const { return nothing + onlyEcho; }
    // Replies of another length, or that do not begin as the others do.
    std::size_t Damaged() const { return all - Missing() - alike; }

    std::size_t all, echoed = 0, nothing = 0, onlyEcho = 0, whole = 0, late = 0;
    std::size_t alike = 0;  // whole, with the beginning that most have
    std::map<std::size_t, std::size_t> lengths;
    double lastMs = -1.0;
};

std::vector<std::string> EvidenceOf(const ADXDefinition& definition, const LineFindings& found,
                                    const AnswerCounts& counts) {
    const ADXCSendCommand& command = *found.asked;
    std::vector<std::string> lines;
    lines.push_back(Counted(counts.all, "request") + " of the " + NameOf(command) + ": " +
                    Counted(counts.whole, "whole reply") + ", " + std::to_string(counts.Missing()) + " without one, " +
                    Counted(counts.Damaged(), "damaged one"));
    if (counts.lastMs >= 0.0)
        lines.push_back(Printf("replies are whole %.0f ms after the request began; the definition waits %u ms",
                               counts.lastMs, command.replytimeout));
    std::string lengths;
    for (const auto& [length, count] : counts.lengths)
        lengths += (lengths.empty() ? "" : ", ") + std::to_string(length) + " (" + std::to_string(count) + " times)";
    if (!lengths.empty()) lines.push_back(Printf("bytes of the replies, %u asked for: ", command.replysize) + lengths);
    const double delay = EchoDelay(definition, found);
    if (delay >= 0.0)
        lines.push_back(
            Printf("the echo comes %.1f ms after its bytes were on the line: that is the adapter's latency", delay));
    return lines;
}

LineVerdict JudgeNoReply(const LineFindings& found, const AnswerCounts& counts) {
    if (counts.onlyEcho * 2 > counts.all)
        return {"only-echo",
                "only our own echo comes back: the adapter works, and no engine answers",
                {},
                AdviceFor("only-echo")};
    if (found.heard != 0)
        return {"unanswered", "the line carries bytes, but nobody answers the request", {}, AdviceFor("unanswered")};
    return {"silent", "the line is silent", {}, std::string(AdviceFor("silent")) + " (corvex-cli ports)"};
}

LineVerdict JudgeReplies(const ADXDefinition& definition, const LineFindings& found, const AnswerCounts& counts) {
    const std::uint32_t size = found.asked->replysize;
    const std::size_t steady = counts.SteadyLength();
    const bool damaged = counts.Damaged() * kTellingPart > counts.all;
    if (!definition.HasEcho() && counts.echoed * 2 > counts.all && found.asked->size() >= 3)
        return {"unknown-echo",
                "the adapter echoes what is sent, and the definition does not say so",
                {},
                AdviceFor("unknown-echo")};
    if (definition.HasEcho() && counts.echoed == 0)
        return {"missing-echo", "the definition counts on an echo, and none comes", {}, AdviceFor("missing-echo")};
    if (steady != 0 && steady != size)
        return {"wrong-length",
                "replies have " + Counted(steady, "byte") + Printf(", and the definition asks for %u", size),
                {},
                Printf("Set replysize to %u, or choose the definition of this engine", static_cast<unsigned>(steady))};
    if (counts.late * 2 > counts.whole)
        return {"late",
                Printf("replies come after the replytimeout of %u ms", found.asked->replytimeout),
                {},
                Printf("Set replytimeout to %.0f or more", counts.lastMs * 1.5)};
    if (found.heard != 0 && damaged)
        return {"chatter", "other modules talk on the line and damage replies", {}, AdviceFor("chatter")};
    if (damaged) return {"noise", "replies are damaged on their way", {}, AdviceFor("noise")};
    if (counts.Missing() * kTellingPart > counts.all)
        return {"missing-replies", "the engine leaves requests unanswered", {}, AdviceFor("missing-replies")};
    return {"good", "the engine answers as the definition says", {}, "Scan: corvex-cli scan"};
}

LineVerdict JudgeStream(const LineFindings& found) {
    const std::string counts = Counted(found.packets, "whole packet") + ", " + Counted(found.badPackets, "failed one");
    if (found.packets * 2 > found.badPackets && found.packets != 0)
        return {"good", "packets of the stream come", {counts}, "Scan: corvex-cli scan"};
    if (found.heard == 0)
        return {
            "silent", "the line is silent", {counts}, "Switch the ignition on, and check the adapter's plug and wires"};
    return {"noise",
            "bytes come, but hardly a packet of the stream",
            {counts},
            "Check that this engine sends a 160-baud stream, and ground and shielding of the wire"};
}

}  // namespace

double EchoDelay(const ADXDefinition& definition, const LineFindings& found) {
    std::vector<double> delays;
    for (const LineAnswer& answer : found.answers) {
        if (answer.echoMs < 0.0 || definition.baud == 0) continue;
        delays.push_back(std::max(0.0, answer.echoMs - found.asked->size() * 10'000.0 / definition.baud));
    }
    return Middle(delays);
}

LineVerdict JudgeLine(const ADXDefinition& definition, const LineFindings& found) {
    if (!found.refusal.empty())
        return {"no-port",
                found.refusal,
                {},
                "See which ports there are with corvex-cli ports, and close what uses this one"};
    if (!found.lost.empty()) return {"lost-port", "the port vanished: " + found.lost, {}, AdviceFor("lost-port")};
    const std::string heard =
        found.heard == 0
            ? Printf("nothing came in %.1f s while nobody asked", found.heardSeconds)
            : Counted(found.heard, "byte") + Printf(" came in %.1f s while nobody asked; the longest quiet was %.0f ms",
                                                    found.heardSeconds, found.longestQuiet);
    if (found.asked == nullptr && !found.stream)
        return {"nothing-to-ask",
                "the definition's scan asks for no replies",
                {},
                std::string(AdviceFor("nothing-to-ask")) + "; see corvex-cli check"};
    LineVerdict verdict;
    if (found.stream) {
        verdict = JudgeStream(found);
    } else {
        const AnswerCounts counts(found);
        // Where others talk, what comes after a request need not be its reply: no two begin alike then.
        const bool others = found.heard != 0 && counts.all >= kTellingCount && counts.alike <= 1;
        verdict =
            counts.lengths.empty() || others ? JudgeNoReply(found, counts) : JudgeReplies(definition, found, counts);
        verdict.evidence = EvidenceOf(definition, found, counts);
    }
    verdict.evidence.insert(verdict.evidence.begin(), heard);
    return verdict;
}

}  // namespace corvex
