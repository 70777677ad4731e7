#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "platform/Clock.h"
#include "platform/ConsoleStop.h"
#include "platform/PseudoTerminal.h"
#include "platform/SerialPlatform.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

class PseudoTerminalTest : public testing::Test {
protected:
    PseudoTerminalTest() { terminal = PseudoTerminal::Open(error); }

    const test::TestFolder folder;
    std::string error, link = folder.Name("port");
    std::unique_ptr<PseudoTerminal> terminal;
};

TEST_F(PseudoTerminalTest, TakesNoMoreThanTheFarEndHolds) {
    ASSERT_TRUE(terminal) << error;
    const std::string bytes(1U << 16, 'x');
    std::size_t taken = 0;
    for (int i = 0; i < 16; ++i)
        taken += terminal->Write(bytes.data(), bytes.size());
    EXPECT_GT(taken, 1000U);
    EXPECT_LT(taken, bytes.size() * 16);
    EXPECT_EQ(terminal->Write(bytes.data(), bytes.size()), 0U);
}

TEST_F(PseudoTerminalTest, WaitsForNothingUntilTheMoment) {
    ASSERT_TRUE(terminal) << error;
    const std::int64_t until = SystemClock().Counter() + SystemClock().Frequency() / 100;
    EXPECT_FALSE(terminal->WaitForInput(until));
    EXPECT_GE(SystemClock().Counter(), until);
}

TEST_F(PseudoTerminalTest, ReplacesALinkAndRemovesItAtTheEnd) {
    ASSERT_TRUE(terminal) << error;
    fs::create_symlink("/nowhere", link);
    ASSERT_TRUE(terminal->Link(link, error)) << error;
    EXPECT_EQ(fs::read_symlink(link), terminal->Name());
    terminal.reset();
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(link)));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST_F(PseudoTerminalTest, LeavesALinkThatAnotherHasTakenOver) {
    ASSERT_TRUE(terminal->Link(link, error)) << error;
    fs::remove(link);
    fs::create_symlink("/elsewhere", link);
    terminal.reset();
    EXPECT_EQ(fs::read_symlink(link), "/elsewhere");
}

TEST_F(PseudoTerminalTest, RefusesToReplaceAFile) {
    std::ofstream(link) << "precious";
    EXPECT_FALSE(terminal->Link(link, error));
    EXPECT_EQ(error, link + " exists and is not a link");
    EXPECT_TRUE(fs::is_regular_file(link));
    EXPECT_FALSE(terminal->Link((folder.Path() / "no" / "such").string(), error));
}

TEST_F(PseudoTerminalTest, IsGoneWhenUnplugged) {
    ASSERT_TRUE(terminal->Link(link, error)) << error;
    const std::string name = terminal->Name();
    terminal->Unplug();
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(link)));
    EXPECT_EQ(SystemSerial().Open(name.c_str()), kInvalidSerialHandle);
    char byte = 0;
    EXPECT_EQ(terminal->Read(&byte, 1), 0U);
    EXPECT_EQ(terminal->Write(&byte, 1), 0U);
}

TEST(ConsoleStop, TellsOfASignalOnceAndOutsideTheHandler) {
    std::atomic<int> calls{0};
    {
        const ConsoleStop stop([&calls] { ++calls; });
        EXPECT_FALSE(stop.Requested());
        std::raise(SIGTERM);
        const std::int64_t deadline = SystemClock().Counter() + 20 * SystemClock().Frequency();
        while (calls == 0 && SystemClock().Counter() < deadline) {
        }
        EXPECT_TRUE(stop.Requested());
    }
    EXPECT_EQ(calls, 1);
}

TEST(ConsoleStop, LetsAWriteToAClosedPipeFail) {
    // Whoever started this program may have had the signal ignored already.
    const auto before = std::signal(SIGPIPE, SIG_DFL);
    {
        const ConsoleStop stop;
        int pipe[2] = {};
        ASSERT_EQ(::pipe(pipe), 0);
        close(pipe[0]);
        EXPECT_LT(write(pipe[1], "x", 1), 0);
        EXPECT_EQ(errno, EPIPE);
        close(pipe[1]);
    }
    EXPECT_EQ(std::signal(SIGPIPE, before), SIG_DFL);
}

TEST(ConsoleStop, PutsTheHandlingBack) {
    const auto before = std::signal(SIGINT, SIG_IGN);
    { const ConsoleStop stop; }
    EXPECT_EQ(std::signal(SIGINT, before), SIG_IGN);
}

TEST(ConsoleStopDeathTest, LetsALaterRequestEndTheProgram) {
    EXPECT_EXIT(
        {
            const ConsoleStop stop;
            for (;;)
                std::raise(SIGINT);
        },
        testing::KilledBySignal(SIGINT), "");
}

}  // namespace
}  // namespace corvex
