// Tells from the replies, good and bad, what is the matter with a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "session/diagnosis/ReplyEvent.h"

namespace corvex {

class ADXCSendCommand;

// How one command that asks the line for something has ended.
enum class ReplyKind {
    kNone,  // it asks for nothing, or was stopped
    kGood,
    kSilent,    // nothing came
    kOnlyEcho,  // the command's own bytes came, or a piece of them
    kShort,     // some other bytes, too few
    kUnsent,    // the command could not be written
    kBadFraming,
    kNoSync,
    kOther,
};
// `echo` as the engine has it: it takes the echo off before the reply.
ReplyKind KindOf(const ReplyEvent& event, bool echo);

// What is the matter when nothing good comes, or when there is a doubt about what does.
enum class LineTrouble {
    kNone,
    kNothingAsked,  // no command that is answered has run yet
    kUnsent,
    kNoStream,  // of 160 baud
    kBadFraming,
    kWrongLength,
    kLate,  // replies begin and are cut off
    kStrangers,
    kOnlyEcho,
    kSilent,
    kSilentOrEcho,
    kStrangeReplies,  // they count as good
    kUnknownEcho,     // the same
};

// Pure: fed with replies, asked for a verdict at any time. One thread.
class LineDiagnosis {
public:
    // `echo` as the engine has it: it takes the echo off before the reply.
    explicit LineDiagnosis(bool echo) : echo_(echo) {}

    void Add(const ReplyEvent& event);

    // kNone once something good has come.
    LineTrouble Trouble() const;
    // Of replies that count as good.
    LineTrouble DoubtfulTrouble() const;
    // Bytes of most replies that came short, and of a whole one.
    std::size_t UsualLength() const;
    std::uint32_t WantedLength() const { return wanted_; }

    // Why nothing good has come in `seconds`, as one sentence without a full stop; empty once something good has.
    std::string WhyNoReply(double seconds) const;
    // A doubt about replies that count as good; empty when there is none.
    std::string Doubt() const;

    bool AnyGood() const { return good_ != 0; }
    // Too few replies came, good or bad, to go by.
    bool IsYoung() const;

private:
    void AddGood(const ADXCSendCommand& command, const std::vector<std::uint8_t>& reply);
    void AddShort(const ReplyEvent& event, ReplyKind kind);
    LineTrouble ShortTrouble() const;

    bool echo_;
    std::size_t good_ = 0, bad_ = 0;
    std::size_t silent_ = 0;  // nothing came
    std::size_t echoes_ = 0;  // the command's own bytes came, or a piece of them
    std::size_t shorts_ = 0;  // some other bytes, too few
    std::size_t begun_ = 0;   // of those, that begin as their command does
    std::size_t writes_ = 0;  // the command could not be written
    std::size_t framings_ = 0, syncs_ = 0;
    std::size_t echoedgood_ = 0;                                 // good replies that begin with the command's own bytes
    std::size_t strange_ = 0;                                    // good replies whose beginning is nobody's
    std::map<const ADXCSendCommand*, std::uint8_t> beginnings_;  // first byte of each command's first good reply
    std::map<std::size_t, std::size_t> lengths_;                 // of the short ones
    std::uint32_t wanted_ = 0;                                   // bytes of the last short reply, had it been whole
    std::uint32_t timeout_ = 0;                                  // milliseconds that it was waited for
};

}  // namespace corvex
