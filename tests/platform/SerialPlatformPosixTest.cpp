// What can be seen of the port from its other end, within one process.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <functional>
#include <string>

#include "platform/Clock.h"
#include "platform/SerialPlatform.h"

namespace corvex {
namespace {

class SerialPlatformPosixTest : public ::testing::Test {
protected:
    void SetUp() override {
        master_ = posix_openpt(O_RDWR | O_NOCTTY);
        ASSERT_GE(master_, 0);
        ASSERT_EQ(grantpt(master_), 0);
        ASSERT_EQ(unlockpt(master_), 0);
        path_ = ptsname(master_);
    }
    void TearDown() override {
        serial_.Close(handle_);
        HangUp();
    }

    void HangUp() {
        if (master_ >= 0) close(master_);
        master_ = -1;
    }
    void Open(const SerialTimeouts& times = {75, 0, 200, 0, 300}) {
        handle_ = serial_.Open(path_.c_str());
        ASSERT_NE(handle_, kInvalidSerialHandle) << serial_.LastError();
        SerialSettings settings;
        settings.baud = 8192;
        ASSERT_TRUE(serial_.SetState(handle_, settings));
        ASSERT_TRUE(serial_.SetTimeouts(handle_, times));
    }
    void FromFarEnd(const std::string& bytes) {
        ASSERT_EQ(write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    double MillisecondsOf(const std::function<void()>& work) const {
        const std::int64_t start = SystemClock().Counter();
        work();
        return static_cast<double>(SystemClock().Counter() - start) * 1000.0 /
               static_cast<double>(SystemClock().Frequency());
    }

    ISerialPlatform& serial_ = SystemSerial();
    SerialHandle handle_ = kInvalidSerialHandle;
    std::string path_;
    int master_ = -1;
};

std::string Every8BitPattern() {
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    return bytes;
}

TEST_F(SerialPlatformPosixTest, TakesARateThatIsNoStandardOne) {
    Open();
    SerialSettings settings;
    ASSERT_TRUE(serial_.GetState(handle_, settings));
    EXPECT_EQ(settings.baud, 8192U);
    EXPECT_EQ(settings.byteSize, 8);
    EXPECT_FALSE(settings.parity);
    EXPECT_FALSE(settings.ctsFlow);
    for (const std::uint32_t baud : {160U, 9600U, 10400U, 115200U, 4000000U}) {
        settings.baud = baud;
        EXPECT_TRUE(serial_.SetState(handle_, settings)) << baud;
        SerialSettings read;
        ASSERT_TRUE(serial_.GetState(handle_, read));
        EXPECT_EQ(read.baud, baud);
    }
}

TEST_F(SerialPlatformPosixTest, RefusesToHangUpForARateOfZero) {
    Open();
    SerialSettings settings;
    settings.baud = 0;
    EXPECT_FALSE(serial_.SetState(handle_, settings));
    EXPECT_EQ(serial_.LastError().rfind("port refuses 0 baud", 0), 0U) << serial_.LastError();
}

TEST_F(SerialPlatformPosixTest, LeavesStopBitsAsTheyAre) {
    const int slave = open(path_.c_str(), O_RDWR | O_NOCTTY);
    termios line{};
    ASSERT_EQ(tcgetattr(slave, &line), 0);
    line.c_cflag |= CSTOPB;
    ASSERT_EQ(tcsetattr(slave, TCSANOW, &line), 0);
    Open();
    ASSERT_EQ(tcgetattr(slave, &line), 0);
    EXPECT_NE(line.c_cflag & CSTOPB, 0U);
    close(slave);
}

// Even after a program that left every kind of translation behind.
TEST_F(SerialPlatformPosixTest, EveryBytePassesUnchangedBothWays) {
    const int slave = open(path_.c_str(), O_RDWR | O_NOCTTY);
    termios line{};
    ASSERT_EQ(tcgetattr(slave, &line), 0);
    line.c_iflag |= BRKINT | PARMRK | INPCK | ISTRIP | INLCR | IGNCR | ICRNL | IUCLC | IXON | IXOFF | IXANY;
    line.c_oflag |= OPOST | ONLCR | OLCUC;
    line.c_lflag |= ECHO | ICANON | ISIG | IEXTEN;
    ASSERT_EQ(tcsetattr(slave, TCSANOW, &line), 0);
    Open({0, 0, 2000, 0, 2000});
    ASSERT_EQ(tcgetattr(slave, &line), 0);
    EXPECT_EQ(line.c_iflag & (PARMRK | ISTRIP | INLCR | IGNCR | ICRNL | IUCLC | IXON | IXOFF | IXANY), 0U);
    close(slave);
    const std::string all = Every8BitPattern();
    FromFarEnd(all);
    std::array<char, 256> got{};
    ASSERT_EQ(serial_.Read(handle_, got.data(), 256), 256U);
    EXPECT_EQ(std::string(got.data(), got.size()), all);
    ASSERT_EQ(serial_.Write(handle_, all.data(), 256), 256U);
    std::string back;
    while (back.size() < 256) {
        const ssize_t moved = read(master_, got.data(), got.size());
        ASSERT_GT(moved, 0);
        back.append(got.data(), static_cast<std::size_t>(moved));
    }
    EXPECT_EQ(back, all);
}

TEST_F(SerialPlatformPosixTest, AnOpenPortIsInUse) {
    Open();
    EXPECT_EQ(serial_.Open(path_.c_str()), kInvalidSerialHandle);
    EXPECT_EQ(serial_.LastError(), "port is in use by another program");
    serial_.Close(handle_);
    handle_ = serial_.Open(path_.c_str());
    EXPECT_NE(handle_, kInvalidSerialHandle);
    EXPECT_EQ(serial_.LastError(), "");
}

TEST_F(SerialPlatformPosixTest, SaysWhyAPortDoesNotOpen) {
    for (const auto& [path, why] :
         {std::pair{"/dev/corvex-none", "no such port"}, {"/dev/null", "not a serial port"}, {"", "no such port"}}) {
        EXPECT_EQ(serial_.Open(path), kInvalidSerialHandle);
        EXPECT_EQ(serial_.LastError(), why);
    }
}

TEST_F(SerialPlatformPosixTest, AVanishedDeviceTakesTheWholeTotalForNothing) {
    Open({75, 0, 50, 0, 60});
    HangUp();
    EXPECT_FALSE(serial_.Vanished(handle_));
    char byte = 0;
    EXPECT_GE(MillisecondsOf([&] { EXPECT_EQ(serial_.Read(handle_, &byte, 1), 0U); }), 50.0);
    EXPECT_EQ(serial_.LastError(), "port has vanished");
    EXPECT_TRUE(serial_.Vanished(handle_));
    EXPECT_GE(MillisecondsOf([&] { EXPECT_EQ(serial_.Write(handle_, &byte, 1), 0U); }), 60.0);
    serial_.Purge(handle_, true, true);
    SerialSettings settings;
    EXPECT_FALSE(serial_.GetState(handle_, settings));
}

TEST_F(SerialPlatformPosixTest, ADeadLineDoesNotSpinEvenWithoutATotal) {
    Open({0, 0, 0, 0, 0});
    HangUp();
    char byte = 0;
    EXPECT_GE(MillisecondsOf([&] { EXPECT_EQ(serial_.Read(handle_, &byte, 1), 0U); }), 100.0);
}

TEST_F(SerialPlatformPosixTest, EveryKindOfCallTellsThatTheDeviceHasVanished) {
    char byte = 0;
    for (const SerialTimeouts& times : {SerialTimeouts{0xFFFFFFFF, 0, 0, 0, 20}, {75, 0, 20, 0, 20}}) {
        for (const bool reads : {true, false}) {
            SetUp();
            Open(times);
            HangUp();
            EXPECT_EQ(reads ? serial_.Read(handle_, &byte, 1) : serial_.Write(handle_, &byte, 1), 0U);
            EXPECT_TRUE(serial_.Vanished(handle_));
            serial_.Close(handle_);
        }
    }
    handle_ = kInvalidSerialHandle;
}

// Another program that asks for reads of nothing in place of a wait takes no device away.
TEST_F(SerialPlatformPosixTest, SilenceIsNoVanishedDevice) {
    Open({75, 0, 50, 0, 60});
    termios line{};
    for (const int least : {1, 0}) {
        ASSERT_EQ(tcgetattr(master_, &line), 0);
        line.c_cc[VMIN] = static_cast<cc_t>(least);
        ASSERT_EQ(tcsetattr(master_, TCSANOW, &line), 0);
        char byte = 0;
        EXPECT_GE(MillisecondsOf([&] { EXPECT_EQ(serial_.Read(handle_, &byte, 1), 0U); }), 50.0);
        EXPECT_FALSE(serial_.Vanished(handle_));
        FromFarEnd("a");
        EXPECT_EQ(serial_.Read(handle_, &byte, 1), 1U);
    }
    ASSERT_TRUE(serial_.SetTimeouts(handle_, {0xFFFFFFFF, 0, 0, 0, 60}));
    char byte = 0;
    errno = 0;
    EXPECT_EQ(serial_.Read(handle_, &byte, 1), 0U);
    EXPECT_FALSE(serial_.Vanished(handle_));
}

TEST_F(SerialPlatformPosixTest, TheFirstBytesEndAReadThatAsksForThem) {
    Open({0xFFFFFFFF, 0xFFFFFFFF, 20, 0, 0});
    FromFarEnd("ab");
    char bytes[5] = {};
    EXPECT_EQ(serial_.Read(handle_, bytes, 5), 2U);
    EXPECT_GE(MillisecondsOf([&] { EXPECT_EQ(serial_.Read(handle_, bytes, 5), 0U); }), 20.0);
}

TEST_F(SerialPlatformPosixTest, PurgeDropsInputOnlyWhenAsked) {
    Open({0, 0, 20, 0, 0});
    char byte = 0;
    FromFarEnd("abc");
    ASSERT_EQ(serial_.Read(handle_, &byte, 1), 1U);
    serial_.Purge(handle_, false, false);
    serial_.Purge(handle_, true, false);
    ASSERT_EQ(serial_.Read(handle_, &byte, 1), 1U);
    EXPECT_EQ(byte, 'b');
    serial_.Purge(handle_, false, true);
    EXPECT_EQ(serial_.Read(handle_, &byte, 1), 0U);
}

TEST_F(SerialPlatformPosixTest, NoPortMeansFailureEverywhere) {
    SerialSettings settings;
    char byte = 0;
    for (const SerialHandle none : {SerialHandle{0}, kInvalidSerialHandle}) {
        EXPECT_FALSE(serial_.GetState(none, settings));
        EXPECT_FALSE(serial_.SetState(none, settings));
        EXPECT_FALSE(serial_.SetTimeouts(none, {}));
        EXPECT_FALSE(serial_.SetQueues(none, 1024, 512));
        EXPECT_FALSE(serial_.Vanished(none));
        EXPECT_EQ(serial_.Read(none, &byte, 1), 0U);
        EXPECT_EQ(serial_.Write(none, &byte, 1), 0U);
        serial_.Purge(none, true, true);
        serial_.Close(none);
    }
}

}  // namespace
}  // namespace corvex
