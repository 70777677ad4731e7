// An engine on a scripted line, with virtual time and a callback that keeps a record.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "acquisition/DataAcqEngine.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "tests/support/RecordingCallback.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/VirtualClock.h"

namespace corvex::test {

using Words = std::vector<std::string>;

// One count of the clock is 1/1024 ms, so that milliseconds come out exact in seconds too.
class EngineTest : public ::testing::Test {
protected:
    EngineTest() : clock(1024 * 1000), scope(clock), line(clock), engine(line) { engine.callback = &callback; }

    void Open() {
        ASSERT_NE(engine.OpenPort("COM1", 8192), 0);
        line.ForgetCalls();
    }

    // Runs the command, which must succeed; the last word of the callback.
    std::string LastOf(const ADXObject& command) {
        EXPECT_EQ(engine.RunCommand(&command), 0);
        return callback.words.empty() ? "" : callback.words.back();
    }
    // All of its words.
    Words WordsOf(const ADXObject& command) {
        callback.words.clear();
        LastOf(command);
        return callback.words;
    }
    void StopAtRead(std::uint32_t which) {
        line.onRead = [this, which](std::uint32_t number) {
            if (number == which) engine.RequestStop();
        };
    }
    void StopAtTrigger(int which) {
        callback.hook = [this, left = which](const std::string& name) mutable {
            if (name == "Trigger" && --left == 0) engine.RequestStop();
        };
    }

    void GiveBytes(ADXCSendCommand& command, const Bytes& bytes) {
        command.SetBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    }

    // What the engine told the port, which tells the system of shorter waits.
    std::string Told() const {
        const SerialTimeouts& t = engine.port.timeouts;
        std::string text;
        for (const std::uint32_t ms :
             {t.readInterval, t.readMultiplier, t.readConstant, t.writeMultiplier, t.writeConstant})
            text += (text.empty() ? "" : " ") + std::to_string(ms);
        return text;
    }

    // A send of 1 2 3 that expects a reply of five bytes.
    void MakePoll(ADXCSendCommand& command) {
        command.SetId("poll");
        GiveBytes(command, {1, 2, 3});
        command.replysize = 5;
        command.flags = 1;
    }

    static void AddNode(ADXMacro& macro, const ADXObject& command, std::uint32_t repeatcount = 1,
                        std::uint32_t flags = 0) {
        ADXMacroNode node;
        node.command = &command;
        node.repeatcount = repeatcount;
        node.flags = flags;
        macro.AddNode(&node);
    }

    VirtualClock clock;
    ScopedClock scope;
    ScriptedSerial line;
    RecordingCallback callback;
    DataAcqEngine engine;
};

}  // namespace corvex::test
