// The line of a scan in words, second by second, as its worker would tell of it.
#include <gtest/gtest.h>

#include "acquisition/DataAcqStatus.h"
#include "definition/ADXCSendCommand.h"
#include "session/diagnosis/LinkRecord.h"
#include "session/diagnosis/LinkReport.h"
#include "session/diagnosis/LinkState.h"

namespace corvex {
namespace {

using Packet = std::vector<std::uint8_t>;

const Packet kAsked{0xE4, 0x57, 0x01};

class LinkStateTest : public testing::Test {
protected:
    LinkStateTest() {
        command_.SetBytes(kAsked.data(), 3);
        command_.replysize = 10;
        command_.flags = 1;
        command_.packetoffset = 1;
        record.Begin(100.0, "COM3", true);
    }

    void Add(double t, std::uint32_t code, Packet reply = {}) {
        ReplyEvent event;
        event.t = t;
        event.command = &command_;
        event.code = code;
        event.reply = std::move(reply);
        event.expected = true;
        event.sampled = code == kCodeSuccess;
        record.Add(event, line);
    }
    void Good(double t) { Add(t, kCodeSuccess, Packet(10, 0xE4)); }
    void Cut(double t, std::size_t length) { Add(t, kCodeShortReply, Packet(length, 0xF0)); }
    // Every `distance` seconds from `t` on.
    void Goods(double t, double distance, int count) {
        for (int i = 0; i < count; ++i)
            Good(t + i * distance);
    }
    LinkState At(double now) const { return JudgeLink(record, now, true); }
    void Expect(double now, const char* word, const char* text, LinkLevel level) const {
        const LinkState state = At(now);
        EXPECT_EQ(state.word, word) << now;
        EXPECT_EQ(state.text, text) << now;
        EXPECT_EQ(state.level, level) << now;
        EXPECT_LE(state.text.size(), 36U);
        EXPECT_EQ(state.next.empty(), state.word == "good" || state.word == "connecting") << state.word;
    }

    ADXCSendCommand command_;
    LineSettings line{false, 8192, 8192};
    LinkRecord record;
};

TEST_F(LinkStateTest, WhatNobodyScansIsNoAlarmHoweverOldItsReplies) {
    Good(101.0);
    EXPECT_EQ(JudgeLink(record, 900.0, false).word, "not-connected");
    EXPECT_EQ(JudgeLink(record, 900.0, false).level, LinkLevel::kCalm);
    EXPECT_EQ(JudgeLink(LinkRecord(), 0.0, false).text, "not connected");
}

TEST_F(LinkStateTest, ARefusedPortIsAnAlarmForAWhile) {
    for (const auto& [reason, word, text] :
         {std::tuple{"no such port", "no-port", "no such port"},
          {"port is in use by another program", "port-busy", "port in use by another program"},
          {"", "no-port", "port can't be opened"}}) {
        record.Begin(100.0, "COM3", true);
        record.Refuse(101.0, reason);
        for (const bool scanning : {true, false})
            EXPECT_EQ(JudgeLink(record, 110.9, scanning).level, LinkLevel::kAlarm);
        EXPECT_EQ(JudgeLink(record, 111.1, false).level, LinkLevel::kCalm);
        EXPECT_EQ(JudgeLink(record, 900.0, false).word, word);
        EXPECT_EQ(JudgeLink(record, 900.0, false).text, text);
    }
    record.Begin(120.0, "COM3", true);
    Expect(121.0, "connecting", "connecting", LinkLevel::kCalm);
}

TEST_F(LinkStateTest, BeforeTheFirstReplyTheCommandsOwnTimeoutsCount) {
    Expect(109.0, "connecting", "connecting", LinkLevel::kCalm);
    Add(109.2, kCodeShortReply);
    Expect(109.2, "silent", "silent line, 9 s", LinkLevel::kAlarm);
    EXPECT_EQ(At(109.2).sentence, "no reply in 9.2 s: the line is silent");
    Good(109.3);
    Expect(109.4, "good", "good, last reply 0.10 s ago", LinkLevel::kCalm);
}

TEST_F(LinkStateTest, TellsWhatComesInPlaceOfReplies) {
    const struct {
        bool echo;
        std::uint32_t code;
        Packet reply;
        const char *word, *text;
    } rows[] = {
        {false, kCodeShortReply, {}, "silent", "silent line, 1 s"},
        {true, kCodeShortReply, {}, "silent", "silent line or echo only, 1 s"},
        {false, kCodeShortReply, kAsked, "only-echo", "only our own echo"},
        {false, kCodeShortReply, Packet(7, 0x11), "wrong-length", "replies of 7 bytes in place of 10"},
        {false, kCodeShortWrite, {}, "unsent", "port takes no bytes"},
        {false, kCodeNoSync, {}, "silent", "no 160-baud stream"},
        {false, kCodeBadFraming, Packet(10, 0), "noise", "noise, no packet is whole"},
    };
    for (const auto& row : rows) {
        line.echo = row.echo;
        record.Begin(100.0, "COM3", true);
        Add(100.5, row.code, row.reply);
        Expect(101.0, row.word, row.text, LinkLevel::kAlarm);
    }
    for (const auto& [first, word, text] : {std::tuple{0x11, "chatter", "other module's chatter, no reply"},
                                            {0xE4, "late", "replies are cut off, maybe late"}}) {
        record.Begin(100.0, "COM3", true);
        for (std::size_t length = 1; length < 9; ++length)
            Add(100.5, kCodeShortReply, Packet(length, static_cast<std::uint8_t>(first)));
        Expect(101.0, word, text, LinkLevel::kAlarm);
    }
}

TEST_F(LinkStateTest, ALineIsDeadAfterThreeUsualDistancesButNotBeforeOneAndAHalfSeconds) {
    for (const auto& [distance, patience] : {std::pair{0.1, 1.5}, {0.5, 1.5}, {1.2, 3.6}}) {
        record.Begin(100.0, "COM3", true);
        Goods(101.0, distance, 20);
        const double last = 101.0 + 19 * distance;
        EXPECT_EQ(At(last + patience - 0.01).level, LinkLevel::kCalm) << distance;
        EXPECT_EQ(At(last + patience + 0.01).level, LinkLevel::kAlarm) << distance;
        EXPECT_EQ(At(last + patience + 0.01).word, "silent") << "whatever hangs, the values are old";
    }
    Good(200.0);
    Expect(200.0, "good", "good, last reply 0.00 s ago", LinkLevel::kCalm);
    EXPECT_EQ(At(203.6).level, LinkLevel::kCalm) << "one long distance makes no other usual";
}

TEST_F(LinkStateTest, OneReplyIsMeasuredByItsOwnTime) {
    Good(102.0);
    EXPECT_EQ(At(107.9).level, LinkLevel::kCalm);
    EXPECT_EQ(At(108.1).level, LinkLevel::kAlarm);
    record.Begin(100.0, "COM3", true);
    Add(159.9, kCodeShortReply);
    Good(160.0);
    Expect(161.6, "silent", "no reply, 2 s", LinkLevel::kAlarm);  // the wait for the ignition is none of its time
}

TEST_F(LinkStateTest, ADeadLineIsToldByWhatCameSince) {
    Goods(101.0, 0.1, 50);
    for (int i = 0; i < 10; ++i)
        Add(106.1 + i * 0.2, kCodeShortReply, kAsked);
    Expect(108.1, "only-echo", "only our own echo", LinkLevel::kAlarm);
    for (int i = 0; i < 1000; ++i)  // for minutes
        Add(108.2 + i * 0.2, kCodeShortReply);
    for (int i = 0; i < 5; ++i)
        Cut(308.2 + i * 0.2, 8);
    Expect(309.1, "silent", "silent line, 203 s", LinkLevel::kAlarm);
    for (int i = 0; i < 60; ++i)
        Cut(309.2 + i * 0.2, 8);
    EXPECT_EQ(At(321.2).word, "wrong-length") << "not outvoted by the minutes before";
}

TEST_F(LinkStateTest, OneReplyOfANewKindIsNoNewTrouble) {
    for (int i = 0; i <= 50; ++i)
        Add(101.0 + i * 0.2, kCodeShortReply);
    Cut(111.3, 8);
    EXPECT_EQ(At(111.3).word, "silent");
}

TEST_F(LinkStateTest, BadRepliesAmongGoodOnesAreCountedForTenSeconds) {
    Goods(101.0, 0.1, 80);
    Cut(109.05, 4);
    Expect(109.1, "good", "good, last reply 0.20 s ago", LinkLevel::kCalm);
    for (int i = 0; i < 19; ++i)
        Cut(109.06, 4);
    Expect(109.1, "noise", "noise, 20 of 100 cut", LinkLevel::kDoubtful);
    Goods(109.2, 0.1, 110);
    Expect(120.2, "good", "good, last reply 0.10 s ago", LinkLevel::kCalm);
    for (int i = 0; i < 30; ++i)
        Add(120.2, kCodeShortReply);
    Good(120.3);
    EXPECT_EQ(At(120.3).word, "missing-replies");
    EXPECT_EQ(At(120.3).level, LinkLevel::kDoubtful);
}

TEST_F(LinkStateTest, DoubtsRepliesThatAreNone) {
    for (int i = 0; i < 20; ++i)
        Add(101.0 + i * 0.1, kCodeSuccess, Packet(10, static_cast<std::uint8_t>(i)));
    Expect(103.0, "chatter", "chatter or noise for replies", LinkLevel::kDoubtful);
    record.Begin(100.0, "COM3", true);
    Packet echoed = kAsked;
    echoed.resize(10);
    for (int i = 0; i < 20; ++i)
        Add(101.0 + i * 0.1, kCodeSuccess, echoed);
    Expect(103.0, "unknown-echo", "replies begin with our own echo", LinkLevel::kDoubtful);
}

TEST_F(LinkStateTest, ADeviceThatVanishesIsWaitedForAndItsReturnIsNoReply) {
    Goods(101.0, 0.1, 10);
    record.Vanish(102.0, "port has vanished");
    Expect(102.0, "lost-port", "device vanished, waiting for it", LinkLevel::kAlarm);
    EXPECT_EQ(At(130.0).sentence,
              "the device of COM3 has vanished (port has vanished); the scan has waited for it for 28 s, and "
              "goes on when it is back");
    record.Return(140.0);
    Expect(140.1, "connecting", "device is back, connecting", LinkLevel::kAlarm);
    Add(140.3, kCodeShortReply);
    Expect(140.4, "silent", "silent line, 38 s", LinkLevel::kAlarm);
    Good(140.5);
    Expect(140.6, "good", "good, last reply 0.10 s ago", LinkLevel::kCalm);
    EXPECT_LT(record.Lately(140.6, 60).longestGap, 0.2) << "an outage is no gap";
    record.Begin(200.0, "COM3", true);
    record.Vanish(201.0, "");
    record.Return(202.0);
    Expect(203.0, "connecting", "connecting", LinkLevel::kCalm);
}

TEST_F(LinkStateTest, ADefinitionThatAsksForNothingIsNamed) {
    record.Begin(100.0, "COM3", false);
    Expect(109.0, "nothing-to-ask", "definition asks for nothing", LinkLevel::kDoubtful);
}

TEST_F(LinkStateTest, ReportsWhatWasSeenWhatItMeansAndWhatToTry) {
    Cut(41.6, 3);  // more than a minute ago
    Goods(100.5, 0.25, 4);
    Cut(101.6, 4);
    Cut(101.7, 4);
    Cut(101.8, 9);
    Add(102.0, kCodeShortReply);
    Add(102.2, kCodeShortReply, kAsked);
    EXPECT_EQ(LinkReport(record, 102.3, true),
              "Seen in the last minute\n"
              "  Port       COM3\n"
              "  Bytes out  27 in 9 requests\n"
              "  Bytes in   60 in 4 whole replies\n"
              "  Bad        1 silent, 3 cut, 1 other\n"
              "  Echo       1 time nothing but our own request\n"
              "  Cut at     4 bytes (2 times), 9 bytes (1 time)\n"
              "  Replies    0.25 s between good ones, 0.25 s at most\n"
              "  Line rate  8192 baud asked for, 8192 read back\n"
              "  Adapter    the system does not tell its latency\n"
              "\nWhat that means\n  3 of 9 replies of the last 10 s were cut on their way.\n"
              "\nWhat to try first\n  Check ground and shielding of the wire, the plug and the baud rate.\n");
}

TEST_F(LinkStateTest, ReportsNothingOfWhatIsNotKnown) {
    const std::string report = LinkReport(LinkRecord(), 5.0, false);
    for (const char* part : {"Port       none yet\n", "Bytes out  0 in 0 requests\n", "Replies    not known yet\n",
                             "Line rate  not known before the first reply\n", "No scan runs.\n"})
        EXPECT_NE(report.find(part), std::string::npos) << part << report;
}

TEST_F(LinkStateTest, KeepsNoMoreLengthsThanItHasRoomFor) {
    for (std::size_t length = 1; length < 9; ++length)
        Cut(101.0, length);
    EXPECT_EQ(record.Lately(101.0, 60).cut, 8U);
    EXPECT_NE(LinkReport(record, 101.0, true).find("3 bytes (1 time), 4 bytes (1 time)\n"), std::string::npos);
}

}  // namespace
}  // namespace corvex
