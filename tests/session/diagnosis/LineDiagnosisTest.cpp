#include <gtest/gtest.h>

#include "acquisition/DataAcqStatus.h"
#include "definition/ADXCSendCommand.h"
#include "session/diagnosis/LineDiagnosis.h"

namespace corvex {
namespace {

using Bytes = std::vector<std::uint8_t>;

const Bytes kRequest{0xF4, 0x57, 0x01, 0x00, 0xB4};

class LineDiagnosisTest : public testing::Test {
protected:
    LineDiagnosisTest() {
        command_.SetBytes(kRequest.data(), 5);
        command_.replysize = 63;
        command_.flags = 1;
        command_.packetoffset = 3;
    }

    ReplyEvent Event(std::uint32_t code, Bytes reply = {}) const {
        ReplyEvent event;
        event.command = &command_;
        event.code = code;
        event.reply = std::move(reply);
        event.sampled = code == kCodeSuccess;
        event.expected = true;
        return event;
    }

    ADXCSendCommand command_;
};

TEST_F(LineDiagnosisTest, TellsWhyNoReplyCame) {
    const ReplyEvent silence = Event(kCodeShortReply), echo = Event(kCodeShortReply, kRequest);
    const ReplyEvent shorter = Event(kCodeShortReply, Bytes(57, 0xAA)), good = Event(kCodeSuccess, Bytes(63, 0));
    ReplyEvent sent = Event(kCodeSuccess);
    sent.expected = sent.sampled = false;
    std::vector<ReplyEvent> chatter;
    for (std::size_t i = 1; i < 9; ++i)
        chatter.push_back(Event(kCodeShortReply, Bytes(i, 0xAA)));
    std::vector<ReplyEvent> late;
    for (std::size_t i = 50; i < 58; ++i)
        late.push_back(Event(kCodeShortReply, Bytes(i, i % 2 == 0 ? 0xF4 : 0x11)));
    const struct {
        bool echoIsTakenOff;
        std::vector<ReplyEvent> events;
        const char* text;
    } rows[] = {
        {false, {silence, silence}, "no reply in 2.0 s: the line is silent"},
        {false, {echo, echo}, "no reply in 2.0 s: only our own echo comes back"},
        {true, {silence}, "no reply in 2.0 s: the line is silent, or carries only our own echo"},
        {false, std::vector(5, shorter),
         "no whole reply in 2.0 s: 57 bytes come where the definition expects 63; the engine sends another length, or "
         "answers too late for the replytimeout of 200 ms"},
        {false, chatter,
         "no whole reply in 2.0 s: bytes come that are no reply; another device talks, or the baud is wrong"},
        {false, late,
         "no whole reply in 2.0 s: replies begin, but are cut off by the replytimeout of 200 ms; the engine answers "
         "late, "
         "or the definition expects too much with 63 bytes"},
        {false, {Event(kCodeNoSync)}, "no packet in 2.0 s: the line is silent, or carries no 160-baud stream"},
        {false, {Event(kCodeShortWrite)}, "no reply in 2.0 s: the port takes no bytes"},
        {false, {silence, good}, ""},
        {false, {sent, sent}, "no reply in 2.0 s: no command that is answered has run yet"},
        {false, {sent, silence, sent}, "no reply in 2.0 s: the line is silent"},
    };
    for (const auto& row : rows) {
        LineDiagnosis diagnosis(row.echoIsTakenOff);
        for (const ReplyEvent& event : row.events)
            diagnosis.Add(event);
        EXPECT_EQ(diagnosis.WhyNoReply(2.0), row.text);
        EXPECT_EQ(diagnosis.Doubt(), "");
    }
}

TEST_F(LineDiagnosisTest, DoubtsRepliesThatBeginWithTheCommand) {
    Bytes reply = kRequest;
    reply.resize(63);
    for (const bool echoIsTakenOff : {false, true}) {
        LineDiagnosis diagnosis(echoIsTakenOff);
        diagnosis.Add(Event(kCodeSuccess, reply));
        EXPECT_EQ(diagnosis.Doubt() != "", !echoIsTakenOff);
    }
}

TEST_F(LineDiagnosisTest, DoubtsRepliesThatNobodyBegan) {
    const auto reply = [](std::uint8_t first, std::uint8_t rest) {
        Bytes bytes(63, rest);
        bytes[0] = first;
        return bytes;
    };
    const struct {
        std::vector<Bytes> replies;
        bool noise;
    } rows[] = {{{reply(1, 9), reply(7, 8), reply(3, 9)}, true},
                {{reply(0, 0), reply(0, 0), reply(0, 0)}, true},
                {{reply(0xF4, 9), reply(0xF4, 8), reply(7, 9)}, false},
                {{reply(5, 9), reply(5, 8), reply(5, 7)}, false}};
    for (const std::uint32_t offset : {3U, 0U}) {
        command_.packetoffset = offset;
        for (const auto& row : rows) {
            LineDiagnosis diagnosis(false);
            for (const Bytes& bytes : row.replies)
                diagnosis.Add(Event(kCodeSuccess, bytes));
            EXPECT_EQ(diagnosis.Doubt().find("noise") != std::string::npos, row.noise && offset != 0);
        }
    }
}

}  // namespace
}  // namespace corvex
