#include <gtest/gtest.h>

#include "acquisition/DataAcqStatus.h"
#include "definition/ADXCSendCommand.h"
#include "session/diagnosis/LineDiagnosis.h"

namespace corvex {
namespace {

class LineDiagnosisTest : public testing::Test {
protected:
    LineDiagnosisTest() {
        const std::uint8_t bytes[] = {0xF4, 0x57, 0x01, 0x00, 0xB4};
        command_.SetBytes(bytes, 5);
        command_.replysize = 63;
        command_.flags = 1;
    }

    ReplyEvent Event(std::uint32_t code, std::vector<std::uint8_t> reply = {}) const {
        ReplyEvent event;
        event.command = &command_;
        event.code = code;
        event.reply = std::move(reply);
        event.sampled = code == kCodeSuccess;
        return event;
    }

    ADXCSendCommand command_;
};

TEST_F(LineDiagnosisTest, TellsASilentLine) {
    LineDiagnosis diagnosis(false);
    for (int i = 0; i < 5; ++i)
        diagnosis.Add(Event(kCodeShortReply));
    EXPECT_EQ(diagnosis.WhyNoReply(2.0), "no reply in 2.0 s: the line is silent");
}

TEST_F(LineDiagnosisTest, TellsOurOwnEcho) {
    LineDiagnosis diagnosis(false);
    for (int i = 0; i < 5; ++i)
        diagnosis.Add(Event(kCodeShortReply, {0xF4, 0x57, 0x01, 0x00, 0xB4}));
    EXPECT_EQ(diagnosis.WhyNoReply(2.0), "no reply in 2.0 s: only our own echo comes back");
}

TEST_F(LineDiagnosisTest, DoesNotGuessWhenTheEchoIsTakenOff) {
    LineDiagnosis diagnosis(true);
    diagnosis.Add(Event(kCodeShortReply));
    EXPECT_EQ(diagnosis.WhyNoReply(2.0), "no reply in 2.0 s: the line is silent, or carries only our own echo");
}

TEST_F(LineDiagnosisTest, TellsAReplyOfTheWrongLength) {
    LineDiagnosis diagnosis(false);
    for (int i = 0; i < 5; ++i)
        diagnosis.Add(Event(kCodeShortReply, std::vector<std::uint8_t>(57, 0xAA)));
    EXPECT_EQ(diagnosis.WhyNoReply(2.0), "no whole reply in 2.0 s: 57 bytes come where the definition expects 63");
}

TEST_F(LineDiagnosisTest, TellsChatter) {
    LineDiagnosis diagnosis(false);
    for (std::size_t i = 1; i < 9; ++i)
        diagnosis.Add(Event(kCodeShortReply, std::vector<std::uint8_t>(i, 0xAA)));
    EXPECT_EQ(diagnosis.WhyNoReply(2.0),
              "no whole reply in 2.0 s: bytes come that are no reply; another device talks, or the baud is wrong");
}

TEST_F(LineDiagnosisTest, TellsAStreamWithoutSync) {
    LineDiagnosis diagnosis(false);
    diagnosis.Add(Event(kCodeNoSync));
    EXPECT_EQ(diagnosis.WhyNoReply(3.0), "no packet in 3.0 s: the line is silent, or carries no 160-baud stream");
}

TEST_F(LineDiagnosisTest, TellsAPortThatTakesNothing) {
    LineDiagnosis diagnosis(false);
    diagnosis.Add(Event(kCodeShortWrite));
    EXPECT_EQ(diagnosis.WhyNoReply(3.0), "no reply in 3.0 s: the port takes no bytes");
}

TEST_F(LineDiagnosisTest, HasNothingToExplainAfterAGoodReply) {
    LineDiagnosis diagnosis(false);
    diagnosis.Add(Event(kCodeShortReply));
    diagnosis.Add(Event(kCodeSuccess, std::vector<std::uint8_t>(63, 0)));
    EXPECT_EQ(diagnosis.WhyNoReply(3.0), "");
    EXPECT_EQ(diagnosis.Doubt(), "");
}

TEST_F(LineDiagnosisTest, DoubtsRepliesThatBeginWithTheCommand) {
    std::vector<std::uint8_t> reply(63, 0);
    std::copy_n(command_.bytestring(), 5, reply.begin());
    LineDiagnosis plain(false);
    plain.Add(Event(kCodeSuccess, reply));
    EXPECT_NE(plain.Doubt(), "");
    LineDiagnosis echo(true);
    echo.Add(Event(kCodeSuccess, reply));
    EXPECT_EQ(echo.Doubt(), "");
}

}  // namespace
}  // namespace corvex
