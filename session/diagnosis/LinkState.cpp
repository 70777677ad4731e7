#include "session/diagnosis/LinkState.h"

#include "export/text/TextFormat.h"
#include "session/diagnosis/LineAdvice.h"
#include "session/diagnosis/LinkRecord.h"

namespace corvex {

namespace {

constexpr double kRefusalAlarm = 10.0;  // seconds
constexpr int kLately = 10;             // seconds
// Below this share, and this number, bad replies are only counted.
constexpr std::uint32_t kLinkTellingPart = 10, kLinkTellingBad = 2;

LinkState Made(const char* word, const std::string& text, const std::string& sentence, LinkLevel level) {
    return {word, text, sentence, AdviceFor(word), level};
}

bool Has(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

LinkState Refused(const LinkRecord& record, double now) {
    const std::string& why = *record.refusal;
    const LinkLevel level = now - record.refusedAt < kRefusalAlarm ? LinkLevel::kAlarm : LinkLevel::kCalm;
    const std::string sentence = record.port + (why.empty() ? " could not be opened" : " could not be opened: " + why);
    if (Has(why, "in use")) return Made("port-busy", "port in use by another program", sentence, level);
    if (Has(why, "no such")) return Made("no-port", "no such port", sentence, level);
    return Made("no-port", "port can't be opened", sentence, level);
}

LinkState Lost(const LinkRecord& record, double now) {
    const std::string why = record.lost->empty() ? "" : " (" + *record.lost + ")";
    return Made("lost-port", "device vanished, waiting for it",
                "the device of " + record.port + " has vanished" + why +
                    Printf("; the scan has waited for it for %.0f s, and goes on when it is back", now - record.lostAt),
                LinkLevel::kAlarm);
}

const char* WordOf(LineTrouble trouble) {
    switch (trouble) {
        case LineTrouble::kUnsent:
            return "unsent";
        case LineTrouble::kBadFraming:
            return "noise";
        case LineTrouble::kWrongLength:
            return "wrong-length";
        case LineTrouble::kLate:
            return "late";
        case LineTrouble::kStrangers:
        case LineTrouble::kStrangeReplies:
            return "chatter";
        case LineTrouble::kOnlyEcho:
            return "only-echo";
        case LineTrouble::kUnknownEcho:
            return "unknown-echo";
        default:
            return "silent";
    }
}

std::string TextOf(const LineDiagnosis& bad, double seconds) {
    switch (bad.Trouble()) {
        case LineTrouble::kUnsent:
            return "port takes no bytes";
        case LineTrouble::kNoStream:
            return "no 160-baud stream";
        case LineTrouble::kBadFraming:
            return "noise, no packet is whole";
        case LineTrouble::kWrongLength:
            return Printf("replies of %u bytes in place of %u", static_cast<unsigned>(bad.UsualLength()),
                          bad.WantedLength());
        case LineTrouble::kLate:
            return "replies are cut off, maybe late";
        case LineTrouble::kStrangers:
            return "other module's chatter, no reply";
        case LineTrouble::kOnlyEcho:
            return "only our own echo";
        case LineTrouble::kSilentOrEcho:
            return Printf("silent line or echo only, %.0f s", seconds);
        default:
            return Printf("silent line, %.0f s", seconds);
    }
}

// Of what depends on more than the word.
std::string NextOf(const LineDiagnosis& bad, const std::string& word) {
    if (word == "wrong-length")
        return Printf("Choose the definition of this engine, or set its replysize to %u",
                      static_cast<unsigned>(bad.UsualLength()));
    if (word == "late") return "Set the definition's replytimeout higher, or choose the definition of this engine";
    if (word == "unsent") return "Plug the adapter in again, and begin the scan anew";
    if (word == "silent" || word == "no-port") return std::string(AdviceFor("silent")) + " (File, Preferences)";
    return AdviceFor(word);
}

// `seconds`: since something good came, or since the scan began.
LinkState Dead(const LinkRecord& record, double seconds) {
    const LineDiagnosis& bad = record.bad.Now();
    if (!record.bad.Any()) {
        const char* const text = record.returned ? "device is back, connecting" : "no reply";
        return Made(record.returned ? "connecting" : "silent",
                    record.returned ? text : Printf("%s, %.0f s", text, seconds),
                    Printf("no reply in %.1f s", seconds) + (record.returned ? ", since the device had vanished" : ""),
                    LinkLevel::kAlarm);
    }
    LinkState state = Made(WordOf(bad.Trouble()), TextOf(bad, seconds), bad.WhyNoReply(seconds), LinkLevel::kAlarm);
    state.next = NextOf(bad, state.word);
    return state;
}

LinkState Alive(const LinkRecord& record, double now) {
    const LinkCounts lately = record.Lately(now, kLately);
    const std::uint32_t missing = lately.silent + lately.onlyEcho + lately.other;
    const auto tells = [&](std::uint32_t bad) {
        return bad >= kLinkTellingBad && bad * kLinkTellingPart > lately.All();
    };
    const LineDiagnosis& goods = record.goods.Now();
    const LineTrouble doubt = goods.DoubtfulTrouble();
    if (doubt != LineTrouble::kNone)
        return Made(
            WordOf(doubt),
            doubt == LineTrouble::kUnknownEcho ? "replies begin with our own echo" : "chatter or noise for replies",
            goods.Doubt(), LinkLevel::kDoubtful);
    if (tells(lately.cut))
        return Made(
            "noise", Printf("noise, %u of %u cut", lately.cut, lately.All()),
            Printf("%u of %u replies of the last %d s were cut on their way", lately.cut, lately.All(), kLately),
            LinkLevel::kDoubtful);
    if (tells(missing))
        return Made("missing-replies", Printf("%u of %u replies missing", missing, lately.All()),
                    Printf("%u of %u requests of the last %d s were not answered", missing, lately.All(), kLately),
                    LinkLevel::kDoubtful);
    return Made("good", Printf("good, last reply %.2f s ago", now - record.lastGood),
                "the engine answers as the definition says", LinkLevel::kCalm);
}

}  // namespace

LinkState JudgeLink(const LinkRecord& record, double now, bool scanning) {
    if (record.refusal) return Refused(record, now);
    if (!scanning)
        return {"not-connected", "not connected", "no scan runs", "Scan with Scanner, Scan or the back-quote key"};
    if (!record.asks)
        return Made("nothing-to-ask", "definition asks for nothing", "the definition's scan asks for no replies",
                    LinkLevel::kDoubtful);
    if (record.lost) return Lost(record, now);
    if (record.good == 0) {
        if (record.bad.Any()) return Dead(record, now - record.begun);
        return Made("connecting", "connecting", "no command that is answered has ended yet", LinkLevel::kCalm);
    }
    if (now - record.lastGood > record.DeadAfter()) return Dead(record, now - record.lastGood);
    return Alive(record, now);
}

}  // namespace corvex
