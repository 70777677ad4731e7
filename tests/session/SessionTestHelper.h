// A session with a recorder and a text log, and the commands that its tests need.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "session/SessionState.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/SessionRecorder.h"
#include "tests/support/TextRecorder.h"
#include "tests/support/VirtualClock.h"

namespace corvex::test {

using Calls = std::vector<std::string>;

// A command that sends `bytes` and takes `replysize` bytes, all of them its packet.
inline ADXCSendCommand* AddSend(ADXDefinition& definition, const char* id, const Bytes& bytes,
                                std::uint32_t replysize) {
    auto* command = Add<ADXCSendCommand>(definition, id);
    command->SetBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    command->replysize = replysize;
    command->packetsize = replysize;
    command->flags = 1;
    return command;
}

inline ADXMacro* AddMacro(ADXDefinition& definition, const char* id, const std::vector<const ADXObject*>& commands) {
    auto* macro = Add<ADXMacro>(definition, id);
    for (const ADXObject* command : commands) {
        ADXMacroNode node;
        node.command = command;
        macro->AddNode(&node);
    }
    return macro;
}

inline std::string IdText(const ADXObject& object) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%06X", static_cast<unsigned>(object.GetIdHash()));
    return text;
}

// A session on a scripted line in virtual time, with three commands: connect (sends C0), monitor (A0) and disconnect
// (D0), each with a reply of two bytes.
class ScanTest : public testing::Test {
protected:
    ScanTest() {
        session.debug.edit = &text;
        recorder.Watch(session.views);
        ADXDefinition& definition = session.definition;
        definition.connectcmd = connect = AddSend(definition, "CONNECT", {0xC0}, 2);
        definition.monitorcmd = monitor = AddSend(definition, "MONITOR", {0xA0}, 2);
        definition.disconnectcmd = disconnect = AddSend(definition, "DISCONNECT", {0xD0}, 2);
    }

    void AnswerAll() {
        serial.Answer({0xC0}, {1, 2}, 10);
        serial.Answer({0xA0}, {3, 4}, 10);
        serial.Answer({0xD0}, {5, 6}, 10);
    }
    // The scan is no longer wanted after so many commands with a reply, good or bad.
    void EndAfter(int replies) {
        recorder.onReplyEnded = [this, left = replies](const DataAcqStatus&, PacketView) mutable {
            if (--left == 0) session.scanning = 0;
        };
    }
    // Runs a scan to its own end.
    void Scan() {
        session.ToggleScan();
        ASSERT_TRUE(WaitForThreads());
    }
    bool WaitForThreads() { return session.WaitForThreads(std::chrono::seconds(60)); }
    std::size_t Opened() const { return serial.Calls("open").size(); }

    VirtualClock clock;
    ScopedClock scope{clock};
    ScriptedSerial serial{clock};
    TextRecorder text;
    SessionRecorder recorder;
    SessionState session{recorder.Calls(), serial};
    ADXCSendCommand *connect = nullptr, *monitor = nullptr, *disconnect = nullptr;
};

}  // namespace corvex::test
