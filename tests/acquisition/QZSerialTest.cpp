#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "acquisition/QZSerial.h"
#include "session/base/DebugOutput.h"
#include "tests/support/Listed.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/TextRecorder.h"

namespace corvex::test {
namespace {

using Words = std::vector<std::string>;

class QZSerialTest : public ::testing::Test {
protected:
    QZSerialTest() : line_(clock_), port_(line_) {
        log_.edit = &text_;
        port_.sink = &log_;
    }

    VirtualClock clock_;
    ScopedClock scope_{clock_};
    ScriptedSerial line_;
    TextRecorder text_;
    DebugOutput log_;
    QZSerial port_;
};

TEST_F(QZSerialTest, ResetBringsBackTheBeginning) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    text_.Clear();
    port_.block = std::make_unique<std::uint8_t[]>(4);
    port_.blockSize = 4;
    port_.Reset();
    EXPECT_FALSE(line_.IsOpen());
    EXPECT_EQ(text_.Text(), "QZSerial: Port Closed");
    const QZSerial fresh(line_);
    for (const QZSerial* port : {&fresh, static_cast<const QZSerial*>(&port_)}) {
        EXPECT_EQ(Listed(port->IsOpen(), port->path, port->baud, port->blockSize), "0  115200 0");
        EXPECT_EQ(port->handle, kInvalidSerialHandle);
        EXPECT_EQ(port->sink, nullptr);
        EXPECT_EQ(port->block, nullptr);
    }
}

TEST_F(QZSerialTest, OpensInTheOrderThatDriversExpect) {
    EXPECT_EQ(port_.Open("COM1", 8192), 1);
    EXPECT_EQ(line_.Calls(), (Words{"open COM1", "getstate", "setstate 8192", "getstate", "timeouts 40 0 50 0 300"}));
    EXPECT_EQ(text_.Text(), "QZSerial: Successfully opened COM1\r\nQZSerial: COM1 opened at 8192 baud");
    EXPECT_TRUE(port_.IsOpen());
    EXPECT_EQ(port_.baud, 8192U);
    EXPECT_STREQ(port_.path, "COM1");
}

TEST_F(QZSerialTest, SetsTheFieldsOfTheLineThatItDecidesOn) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    SerialSettings odd;
    odd.byteSize = 7;
    odd.parity = odd.ctsFlow = odd.dsrFlow = odd.dsrSensitivity = true;
    odd.dtrEnable = odd.rtsEnable = false;
    line_.SetState(ScriptedSerial::kHandle, odd);
    ASSERT_EQ(port_.Open("COM1", 9600), 1);
    const SerialSettings settings = line_.Settings();
    EXPECT_EQ(settings.baud, 9600U);
    EXPECT_EQ(settings.byteSize, 8);
    EXPECT_FALSE(settings.parity || settings.ctsFlow || settings.dsrFlow || settings.dsrSensitivity);
    EXPECT_TRUE(settings.dtrEnable && settings.rtsEnable);
}

TEST_F(QZSerialTest, OpeningAnOpenPortClosesItFirst) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    line_.ForgetCalls();
    text_.Clear();
    EXPECT_EQ(port_.Open("COM2", 8192), 1);
    EXPECT_EQ(line_.Calls().at(0), "close");
    EXPECT_EQ(line_.Calls().at(1), "open COM2");
    EXPECT_EQ(text_.Text(),
              "QZSerial: Port Closed\r\nQZSerial: Successfully opened COM2\r\nQZSerial: COM2 opened at 8192 baud");
}

TEST_F(QZSerialTest, AFailedOpenLeavesTheOldPortClosed) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    text_.Clear();
    line_.failOpen = true;
    EXPECT_EQ(port_.Open("COM2", 8192), 0);
    EXPECT_FALSE(port_.IsOpen());
    EXPECT_EQ(text_.Text(), "QZSerial: Port Closed\r\nQZSerial: Open Port COM2 Failed\r\nQZSerial: Port Closed");
    EXPECT_EQ(port_.LastError(), "no such port");
}

TEST_F(QZSerialTest, ClosesWhenTheStateCannotBeReadOrSet) {
    const std::tuple<bool ScriptedSerial::*, const char*, Words> cases[] = {
        {&ScriptedSerial::failGetState, "GetCommState", {"open COM1", "getstate", "close"}},
        {&ScriptedSerial::failSetState, "SetCommState", {"open COM1", "getstate", "setstate 8192", "close"}}};
    for (const auto& [fails, call, calls] : cases) {
        line_.*fails = true;
        EXPECT_EQ(port_.Open("COM1", 8192), 0);
        line_.*fails = false;
        EXPECT_EQ(line_.Calls(), calls);
        EXPECT_EQ(port_.handle, kInvalidSerialHandle);
        EXPECT_EQ(text_.Text(), std::string("QZSerial: Successfully opened COM1\r\nQZSerial: ") + call +
                                    " Failed\r\nQZSerial: Port Closed");
        line_.ForgetCalls();
        text_.Clear();
    }
}

TEST_F(QZSerialTest, KnowsTheRateThatTheLineReallyHas) {
    EXPECT_EQ(port_.Open("COM1", 8192), 1);
    EXPECT_EQ(port_.lineBaud, 8192U);
    line_.lineBaud = 9600;
    EXPECT_EQ(port_.Open("COM1", 8192), 1);
    EXPECT_EQ(port_.lineBaud, 9600U);
    EXPECT_EQ(port_.baud, 8192U);
    line_.failOpen = true;
    EXPECT_EQ(port_.Open("COM1", 8192), 0);
    EXPECT_EQ(port_.lineBaud, 0U);
}

TEST_F(QZSerialTest, OpensEvenWhenTheTimeoutsAreRefused) {
    line_.failTimeouts = true;
    EXPECT_EQ(port_.Open("COM1", 8192), 1);
}

TEST_F(QZSerialTest, CutsAPathAt259Characters) {
    for (const std::size_t length : {259U, 260U, 5000U}) {
        EXPECT_EQ(port_.Open(std::string(length, 'a').c_str(), 8192), 1);
        EXPECT_EQ(std::string(port_.path), std::string(259, 'a'));
    }
}

TEST_F(QZSerialTest, WithoutAPathTheLastOneIsOpenedAgain) {
    ASSERT_EQ(port_.Open("COM3", 8192), 1);
    line_.ForgetCalls();
    EXPECT_EQ(port_.Open(nullptr, 9600), 1);
    EXPECT_EQ(line_.Calls("open"), (Words{"open COM3"}));
    EXPECT_EQ(port_.Open(port_.path, 9600), 1);
    EXPECT_STREQ(port_.path, "COM3");
}

TEST_F(QZSerialTest, CloseSaysSoEvenWhenNothingWasOpen) {
    port_.Close();
    EXPECT_EQ(text_.Text(), "QZSerial: Port Closed");
    EXPECT_EQ(line_.Calls(), Words{});
}

TEST_F(QZSerialTest, TheDestructorCloses) {
    {
        QZSerial port(line_);
        ASSERT_EQ(port.Open("COM1", 8192), 1);
    }
    EXPECT_FALSE(line_.IsOpen());
}

TEST_F(QZSerialTest, StoresTheSelectedTimeoutsAndAppliesAll) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    // The system hears of no wait that is longer than a slice. The bits are a contract.
    const std::pair<std::uint32_t, const char*> cases[] = {{0, "timeouts 40 0 50 0 300"}, {1, "timeouts 40 0 3 0 300"},
                                                           {2, "timeouts 40 0 50 0 300"}, {4, "timeouts 1 0 50 0 300"},
                                                           {8, "timeouts 1 0 50 0 5"},    {16, "timeouts 1 0 50 4 5"}};
    for (const auto& [mask, applied] : cases) {
        line_.ForgetCalls();
        EXPECT_EQ(port_.SetTimeouts(1, 2, 3, 4, 5, mask), 1);
        EXPECT_EQ(line_.Calls().at(0), applied) << mask;
    }
    EXPECT_EQ(port_.timeouts.readMultiplier, 2U);
    EXPECT_EQ(port_.timeouts.readConstant, 3U);
    EXPECT_EQ(port_.SetTimeouts(9, 9, 9, 9, 9, QZSerial::kAllTimeouts), 1);
    EXPECT_EQ(port_.timeouts.writeMultiplier, 9U);
    line_.failTimeouts = true;
    EXPECT_EQ(port_.SetTimeouts(1, 1, 1, 1, 1, 0), 0);
}

TEST_F(QZSerialTest, AsksForQueues) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    EXPECT_EQ(port_.SetQueues(1024, 512), 1);
    EXPECT_EQ(line_.Calls().back(), "queues 1024 512");
    line_.failQueues = true;
    EXPECT_EQ(port_.SetQueues(1024, 512), 0);
}

TEST_F(QZSerialTest, PurgesWhatItIsTold) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    line_.ForgetCalls();
    QZSerial::Purge(&port_, true, true);
    QZSerial::Purge(&port_, true, false);
    QZSerial::Purge(&port_, false, true);
    QZSerial::Purge(&port_, false, false);
    QZSerial::Purge(nullptr, true, true);
    EXPECT_EQ(line_.Calls(), (Words{"purge 1 1", "purge 1 0", "purge 0 1", "purge 0 0"}));
}

TEST_F(QZSerialTest, DumpsWhatPassesThrough) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    text_.Clear();
    line_.Feed({'h', 'i'});
    char bytes[2] = {};
    EXPECT_EQ(port_.Read(bytes, 2), 2U);
    EXPECT_EQ(port_.Write("A", 1), 1U);
    const std::string blanks(3 * 14, ' ');
    EXPECT_EQ(text_.Text(),
              "QZSerial: Read\r\n0000: 68 69 " + blanks + "hi\r\nQZSerial: Write\r\n0000: 41 " + blanks + "   A");
}

TEST_F(QZSerialTest, ReadingNothingLogsNothing) {
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    text_.Clear();
    line_.Feed({1});
    char byte = 0;
    EXPECT_EQ(port_.Read(&byte, 0), 0U);
    EXPECT_EQ(port_.Read(&byte, 1), 1U);
    text_.Clear();
    EXPECT_EQ(port_.Read(&byte, 1), 0U);
    line_.Vanish();
    EXPECT_EQ(port_.Write(&byte, 1), 0U);
    EXPECT_EQ(text_.Text(), "");
}

TEST_F(QZSerialTest, OnlyAFailedCallTellsThatTheDeviceHasVanished) {
    char byte = 0;
    const auto read = [&] { port_.Read(&byte, 1); };
    const auto write = [&] { port_.Write(&byte, 1); };
    for (const std::function<void()>& call : {std::function<void()>(read), std::function<void()>(write)}) {
        ASSERT_EQ(port_.Open("COM1", 8192), 1);
        call();
        EXPECT_FALSE(port_.Vanished());  // nothing came, which is no failure
        line_.Vanish();
        EXPECT_FALSE(port_.Vanished());
        call();
        EXPECT_TRUE(port_.Vanished());
        port_.Close();
        EXPECT_FALSE(port_.Vanished());
        line_.ComeBack();
    }
    ASSERT_EQ(port_.Open("COM1", 8192), 1);
    EXPECT_FALSE(port_.Vanished());
}

TEST_F(QZSerialTest, AHandleOfZeroIsNeverUsed) {
    port_.handle = 0;
    char byte = 0;
    EXPECT_EQ(port_.Read(&byte, 1), 0U);
    EXPECT_EQ(port_.Write(&byte, 1), 0U);
    EXPECT_EQ(port_.SetTimeouts(1, 1, 1, 1, 1, QZSerial::kAllTimeouts), 0);
    EXPECT_EQ(port_.SetQueues(1, 1), 0);
    EXPECT_EQ(line_.Calls(), Words{});
    port_.handle = kInvalidSerialHandle;
}

TEST_F(QZSerialTest, AClosedPortIsAskedAndHasNothing) {
    char byte = 0;
    EXPECT_EQ(port_.Read(&byte, 1), 0U);
    EXPECT_EQ(line_.Calls(), (Words{"read 1 -> 0"}));
}

}  // namespace
}  // namespace corvex::test
