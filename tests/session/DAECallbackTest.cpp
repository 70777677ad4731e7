#include <memory>
#include <tuple>

#include "acquisition/DataAcqEngine.h"
#include "definition/ADXCListenChatter.h"
#include "session/DAECallback.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

constexpr auto kRefused = static_cast<std::int32_t>(0x80004005);

class DAECallbackTest : public testing::Test {
protected:
    DAECallbackTest() {
        session.debug.edit = &text;
        recorder.Watch(session.views);
    }

    // The end of a send, live unless told.
    std::int32_t EndSend(const ADXCSendCommand& command, const Bytes& reply, std::uint32_t code = 0) {
        status.command = &command;
        status.commandId = command.GetIdHash();
        status.code = code;
        return session.callback.OnSendCommandEnd(&status, reply.data(), static_cast<std::uint32_t>(reply.size()));
    }
    std::int32_t End160(const Bytes& packet, std::uint32_t code = 0) {
        status.command = listen;
        status.code = code;
        return session.callback.On160BaudEnd(&status, packet.data(), static_cast<std::uint32_t>(packet.size()));
    }

    VirtualClock clock;
    ScopedClock scope{clock};
    TextRecorder text;
    SessionRecorder recorder;
    SessionState session{recorder.Calls()};
    DataAcqStatus status;
    ADXCSendCommand* send = AddSend(session.definition, "SEND", {0xF4, 0x57}, 4);
    ADXC160BaudListen* listen = Add<ADXC160BaudListen>(session.definition, "LISTEN");
    std::string id = IdText(*send);
};

TEST_F(DAECallbackTest, GoodReplyTakesTheWholeRoadInOrder) {
    clock.AdvanceMilliseconds(1234);
    session.scanning = 1;
    session.connectionState = kConnecting;
    recorder.ShowDashAndList(true);
    ADXValue* own = AddValue(session.definition, "OWN", "X");
    own->packetoffset = 1;
    own->parentcmdidhash = send->GetIdHash();
    ADXValue* foreign = AddValue(session.definition, "FOREIGN", "X");
    foreign->parentcmdidhash = listen->GetIdHash();
    recorder.onNoted = [&](const std::string& call) {
        if (!call.starts_with("dash")) return;
        EXPECT_EQ("1.234: Command/Reply Success", text.Text());
        EXPECT_EQ(4U, session.CopyLastPacket().size);
        EXPECT_EQ(kConnecting, session.connectionState);
        EXPECT_EQ(0x22U, own->GetRaw(nullptr));
    };
    EXPECT_EQ(0, EndSend(*send, {0x11, 0x22, 0x33, 0x44}));
    EXPECT_EQ((Calls{"dash 4 " + id, "list", "histograms 4 " + id, "monitor 1.234 4 " + id, "status", "buttons",
                     "status", "reply 0 4"}),
              recorder.Noted());
    EXPECT_EQ(0U, foreign->GetRaw(nullptr));
    EXPECT_EQ(Listed(kConnected, 1, 0), Listed(session.connectionState, session.timer.tickCount, session.errorCount));
}

TEST_F(DAECallbackTest, WhatIsNoSampleIsToldByItsCodeAndState) {
    const std::string failure = "0.000: !!!!!!SEND COMMAND FAILURE (0x0000000";
    const char *none = "", *framing = "Data errors detected!", *sync = "160 BAUD PACKET ERROR";
    const struct {
        const char* name;
        std::uint32_t state, code;
        Bytes reply;
        const char *text, *flash, *told;  // the text is that of a 160-baud packet
        std::uint32_t errors;
    } rows[] = {
        {"while connected", kConnected, kCodeShortReply, {1, 2}, none, "ALDL Data Error!", "6 2", 1},
        {"before the first good one", kConnecting, kCodeShortReply, {}, none, none, "6 0", 0},
        {"before the read", kNotConnected, kCodeShortWrite, {1}, none, none, "5 -", 0},
        {"by a stop", kConnected, kCodeStopped, {1, 2}, none, none, "2 -", 0},
        {"badly framed in every state", kConnecting, kCodeBadFraming, {1, 0, 3}, framing, none, "7 3", 1},
        {"badly framed when connected", kConnected, kCodeBadFraming, {1, 0, 3}, framing, "Data Byte Error!", "7 3", 1},
        {"without sync", kConnected, kCodeNoSync, {}, sync, "Packet Error!", "8 -", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        session.connectionState = row.state;
        session.errorCount = session.timer.tickCount = 0;
        session.StoreLastPacket({});
        text.Clear();
        const bool isSend = *row.text == '\0';
        EXPECT_EQ(0, isSend ? EndSend(*send, row.reply, row.code) : End160(row.reply, row.code));
        EXPECT_EQ(isSend ? failure + row.told[0] + ")!!!!!!" : row.text, text.Text());
        Calls calls{"status", std::string("reply ") + row.told};
        if (*row.flash != '\0')
            calls.insert(calls.begin(), std::string("flash ") + row.flash + " 0x000000 0x0000FF 500");
        EXPECT_EQ(calls, recorder.Take());
        EXPECT_EQ(row.errors, session.errorCount);
        EXPECT_EQ(1U, session.timer.tickCount);
        // What is framed badly is kept all the same.
        EXPECT_EQ(row.code == kCodeBadFraming ? 3U : 0U, session.CopyLastPacket().size);
    }
}

TEST_F(DAECallbackTest, SendWithoutReplyCountsATickAndDecodesNothing) {
    send->flags = 0;
    clock.AdvanceMilliseconds(500);
    session.connectionState = kConnected;
    EXPECT_EQ(0, EndSend(*send, {0xF4, 0x57}));
    EXPECT_EQ("0.500: Command sent. Reply not processed.", text.Text());
    EXPECT_EQ((Calls{"status", "reply 0 -"}), recorder.Noted());
    EXPECT_EQ(1U, session.timer.tickCount);
    EXPECT_EQ(0U, session.CopyLastPacket().size);
}

// Live and played alike: a packetsize that is too small hides no field of the reply, and the last packet is as long as
// it says.
TEST_F(DAECallbackTest, ItemsReadFromTheOffsetToTheEndOfTheReply) {
    send->packetoffset = 1;
    send->packetsize = 1;
    ADXValue* beyond = AddValue(session.definition, "BEYOND", "X");
    beyond->packetoffset = 2;
    for (status.source = 0; status.source <= 1; ++status.source) {
        const auto last = static_cast<std::uint8_t>(0x44 + status.source);
        EndSend(*send, {0x11, 0x22, 0x33, last});
        EXPECT_EQ(last, beyond->GetRaw(nullptr));
        const LastPacket packet = session.CopyLastPacket();
        EXPECT_EQ(1U, packet.size);
        EXPECT_EQ(0x22, packet.bytes[0]);
        EXPECT_EQ(send->GetIdHash(), packet.command);
        // A reader of the last packet, like a histogram, takes the raw word.
        EXPECT_EQ(last, beyond->GetRaw(packet.View()));
    }
    EXPECT_EQ(2U, recorder.Count("monitor 0.000 3 " + id));
    EXPECT_EQ(2U, recorder.Count("histograms 1 " + id));
    EXPECT_EQ(2U, recorder.Count("reply 0 4"));
}

// Bytes that never came are neither read nor made up.
TEST_F(DAECallbackTest, PacketBeyondTheReplyIsCutToWhatCame) {
    send->packetsize = 100;
    ADXValue* inside = AddValue(session.definition, "IN", "X");
    ADXValue* outside = AddValue(session.definition, "OUT", "X");
    inside->packetoffset = 1;
    outside->packetoffset = 2;
    const auto exact = std::make_unique<std::uint8_t[]>(4);  // a byte further is the sanitizer's
    exact[3] = 9;
    status.command = send;
    // Offset and replysize of the command; a count beyond the reply's buffer is not believed.
    const std::tuple<std::uint32_t, std::uint32_t, std::uint32_t> rows[] = {{2, 4, 2}, {0xFFFFFFFF, 4, 0}, {0, 2, 2}};
    for (const auto& [offset, replysize, size] : rows) {
        send->packetoffset = offset;
        send->replysize = replysize;
        EXPECT_EQ(0, session.callback.OnSendCommandEnd(&status, exact.get(), 4));
        EXPECT_EQ(size, session.CopyLastPacket().size);
        EXPECT_EQ(offset == 0 ? 0U : 9U, inside->GetRaw(nullptr));
        EXPECT_EQ(0U, outside->GetRaw(nullptr));
    }
    send->replysize = send->packetsize = 0;
    EndSend(*send, {});
    EXPECT_EQ(1U, recorder.Count("reply 0 0"));
}

TEST_F(DAECallbackTest, TextBeginsAnewAtEvery201stReply) {
    const std::string line = "0.000: !!!!!!SEND COMMAND FAILURE (0x00000006)!!!!!!";
    for (std::size_t reply = 0; reply < 2 * 201 + 1; ++reply) {
        EndSend(*send, {}, kCodeShortReply);
        const std::size_t lines = reply < 200 ? reply + 1 : (reply - 200) % 201 + 1;
        ASSERT_EQ(lines * line.size() + 2 * (lines - 1), text.Text().size()) << reply;
    }
}

TEST_F(DAECallbackTest, LoggedReplyIsFoundByHashAndTimedByTheLog) {
    clock.AdvanceMilliseconds(9000);
    ADXCSendCommand standIn;  // what playback passes: sizes alone
    standIn.flags = 1;
    send->packetoffset = 1;
    send->packetsize = 2;
    session.log.currentMs = 1500;
    status.source = 1;
    status.command = &standIn;
    status.commandId = send->GetIdHash();
    const Bytes reply{1, 2, 3, 4};
    EXPECT_EQ(0, session.callback.OnSendCommandEnd(&status, reply.data(), 4));
    EXPECT_EQ("1.500: Command/Reply Success", text.Text());
    EXPECT_EQ(1U, recorder.Count("monitor 1.500 3 " + id));
    EXPECT_EQ(2U, session.CopyLastPacket().bytes[0]);
}

TEST_F(DAECallbackTest, LoggedReplyOfAnUnknownCommandOrOneThatSendsNothingIsRefused) {
    status.source = 1;
    for (const std::uint32_t command : {0x12345678U, listen->GetIdHash()}) {
        text.Clear();
        status.commandId = command;
        EXPECT_EQ(kRefused, session.callback.OnSendCommandEnd(&status, nullptr, 0));
        EXPECT_EQ("Log playback: Command not found in def. Wrong definition?", text.Text());
    }
    status.commandId = 0x12345678;
    EXPECT_EQ(kRefused, session.callback.On160BaudEnd(&status, nullptr, 0));
    EXPECT_TRUE(recorder.Noted().empty());
    EXPECT_EQ(0U, session.timer.tickCount);
}

// The values keep their raw words: views compute from the packet. The id is the last send's.
TEST_F(DAECallbackTest, Packet160IsPublishedUnderTheStaleIdWithoutCapture) {
    ADXValue* value = AddValue(session.definition, "V", "X");
    session.scanning = 1;
    session.connectionState = kConnecting;
    recorder.ShowDashAndList(true);
    double seen = 0.0;
    const Bytes packet{5, 6};
    recorder.onNoted = [&](const std::string& call) {
        if (call.starts_with("monitor")) {
            EXPECT_EQ(0U, session.CopyLastPacket().size);
            EXPECT_EQ(0U, value->GetRaw(nullptr));
            seen = value->Compute(session.definition, PacketView(packet.data(), 2));
        }
    };
    status.commandId = send->GetIdHash();
    EXPECT_EQ(0, End160(packet));
    EXPECT_EQ("160 baud packet acquired", text.Text());
    EXPECT_EQ((Calls{"status", "buttons", "dash 2 " + id, "list", "histograms 0 " + id, "monitor 0.000 2 " + id,
                     "status", "reply 0 2"}),
              recorder.Take());
    EXPECT_EQ(5.0, seen);
    const LastPacket last = session.CopyLastPacket();
    EXPECT_EQ(Listed(kConnected, 2, send->GetIdHash(), 1),
              Listed(session.connectionState, last.size, last.command, session.timer.tickCount));
    recorder.onNoted = nullptr;
    // The last packet is stored after the views are told, so a histogram takes the one before.
    End160({7, 8, 9});
    EXPECT_EQ(1U, recorder.Count("histograms 2 " + id));
    EXPECT_EQ(0, session.callback.On160BaudEnd(&status, nullptr, 7));  // a count without bytes, as of a stop
    EXPECT_EQ(3U, session.CopyLastPacket().size);
}

TEST_F(DAECallbackTest, TriggerMakesTheViewsCatchUp) {
    auto* trigger = Add<ADXCTrigger>(session.definition, "T");
    const std::string own = IdText(*trigger);
    EndSend(*send, {1, 2, 3, 4});
    recorder.Take();
    recorder.ShowDashAndList(true);
    clock.AdvanceMilliseconds(2000);
    status.command = trigger;
    const struct {
        std::uint32_t bits;
        Calls calls;
    } rows[] = {
        {0x1, {}},
        {0x2, {"histograms 4 " + own}},
        {0x4, {"list"}},
        {0x8, {"monitor 2.000 - " + own}},
        {0x10, {"dash - " + own}},
        {0x1E, {"dash - " + own, "list", "histograms 4 " + own, "monitor 2.000 - " + own}},
    };
    for (const auto& row : rows) {
        trigger->triggertype = row.bits;
        EXPECT_EQ(0, session.callback.OnTrigger(&status));
        EXPECT_EQ(row.calls, recorder.Take()) << row.bits;
    }
    EXPECT_EQ(1U, session.timer.tickCount);  // the send's
    recorder.ShowDashAndList(false);
    session.callback.OnTrigger(&status);
    EXPECT_EQ((Calls{"histograms 4 " + own, "monitor 2.000 - " + own}), recorder.Noted());
}

TEST_F(DAECallbackTest, ListensAreToldInTheLog) {
    auto* silence = Add<ADXCListenSilence>(session.definition, "S");
    silence->silencelen = 25;
    status.command = silence;
    const std::tuple<std::int32_t (DAECallback::*)(const DataAcqStatus*), std::uint32_t, const char*> rows[] = {
        {&DAECallback::OnListenSilenceBegin, 0, "Looking for 25 ms of silence..."},
        {&DAECallback::OnListenSilenceEnd, 0, "Silence found"},
        {&DAECallback::OnListenSilenceEnd, kCodeTimeout, "NO SILENCE FOUND"},
        {&DAECallback::OnListenChatterBegin, 0, "Looking for chatter..."},
        {&DAECallback::OnListenChatterEnd, 0, "Chatter found"},
        {&DAECallback::OnListenChatterEnd, kCodeTimeout, "CHATTER NOT FOUND"},
        {&DAECallback::OnMacroBegin, 0, "BEGIN MACRO"},
        {&DAECallback::OnMacroEnd, 0, "END MACRO"},
        {&DAECallback::On160BaudBegin, 0, "Listening for 160 baud packet"},
        {&DAECallback::OnSendCommandBegin, 0, ""},
    };
    for (const auto& [call, code, line] : rows) {
        text.Clear();
        status.code = code;
        EXPECT_EQ(0, (session.callback.*call)(&status));
        EXPECT_EQ(line, text.Text());
    }
    EXPECT_TRUE(recorder.Noted().empty());
}

TEST_F(DAECallbackTest, RawTrafficIsDumpedWhenRead) {
    const Bytes bytes{0x41};
    EXPECT_EQ(0, session.callback.OnWrite(&status, bytes.data(), 1));
    EXPECT_EQ(0, session.callback.OnRead(&status, bytes.data(), 0));
    EXPECT_EQ("", text.Text());
    EXPECT_EQ(0, session.callback.OnRead(&status, bytes.data(), 1));
    EXPECT_EQ(0U, text.Text().find("Read\r\n0000: 41 "));
}

TEST_F(DAECallbackTest, LogProgressMovesCursorAndSliderAndItsEndStartsAStop) {
    EXPECT_EQ(0, session.callback.OnLogSeekBegin(3, 1));
    EXPECT_EQ(0, session.callback.OnLogProgress(2500, 17));
    session.log.currentMs = 750;
    EXPECT_EQ(0, session.callback.OnLogSeekEnd());
    EXPECT_EQ((Calls{"monitor time 2.500", "slider 17", "monitor time 0.750"}), recorder.Noted());
    session.log.state = kLogPlaying;
    EXPECT_EQ(0, session.callback.OnLogEnd());
    EXPECT_TRUE(recorder.WaitFor("post 32770"));
    EXPECT_EQ(kLogStopRequested, session.log.State());
}

}  // namespace
}  // namespace corvex::test
