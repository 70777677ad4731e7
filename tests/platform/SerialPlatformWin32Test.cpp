// What the port leaves in the line's settings, as Windows tells them to another program.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/SerialPlatform.h"
#include "platform/WindowsApi.h"

namespace corvex {
namespace {

class SerialPlatformWin32Test : public ::testing::Test {
protected:
    void SetUp() override {
        name_ = std::getenv("CORVEX_TEST_PORT");
        ASSERT_NE(name_, nullptr) << "run this program through pty_peer, with the port's name in CORVEX_TEST_PORT";
    }
    HANDLE OpenRaw() const {
        return CreateFileA(name_, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    }
    DCB State() const {
        DCB line{};
        line.DCBlength = sizeof line;
        const HANDLE raw = OpenRaw();
        EXPECT_NE(GetCommState(raw, &line), 0);
        CloseHandle(raw);
        return line;
    }
    void SetState(DCB line) const {
        const HANDLE raw = OpenRaw();
        EXPECT_NE(SetCommState(raw, &line), 0);
        CloseHandle(raw);
    }
    // Opens the port at the rate; what GetState then tells.
    SerialSettings Apply(std::uint32_t baud) {
        ISerialPlatform& serial = SystemSerial();
        const SerialHandle handle = serial.Open(name_);
        EXPECT_NE(handle, kInvalidSerialHandle) << serial.LastError();
        SerialSettings settings;
        settings.baud = baud;
        EXPECT_TRUE(serial.SetState(handle, settings)) << serial.LastError();
        EXPECT_TRUE(serial.GetState(handle, settings));
        serial.Close(handle);
        return settings;
    }

    const char* name_ = nullptr;
};

// Another program's flow control would eat data bytes.
TEST_F(SerialPlatformWin32Test, NothingOfAnotherProgramTouchesTheBytes) {
    DCB line = State();
    line.fOutX = line.fInX = line.fErrorChar = line.fNull = line.fAbortOnError = 1;
    SetState(line);
    line = State();
    ASSERT_TRUE(line.fOutX != 0 && line.fInX != 0);  // this system keeps them
    Apply(8192);
    line = State();
    EXPECT_FALSE(line.fOutX != 0 || line.fInX != 0 || line.fErrorChar != 0 || line.fNull != 0 ||
                 line.fAbortOnError != 0);
}

// A pseudo-terminal has no rate, and is not to be taken for a line that runs at another one.
TEST_F(SerialPlatformWin32Test, ARateThatCannotBeKnownIsNone) {
    EXPECT_EQ(Apply(8192).baud, 0U);
    EXPECT_EQ(Apply(9600).baud, 9600U);
    EXPECT_EQ(Apply(38400).baud, 38400U);
}

}  // namespace
}  // namespace corvex
