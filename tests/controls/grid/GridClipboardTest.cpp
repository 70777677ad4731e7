#include <gtest/gtest.h>

#include <filesystem>

#include "controls/grid/Grid.h"
#include "controls/window/Clipboard.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

// Runs the other program, which lies beside this one. Its exit code.
DWORD Peer(const char* what, const char* text) {
    char path[MAX_PATH];
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string command = (std::filesystem::path(path).parent_path() / "clipboard_peer.exe").string() + " " + what;
    ::SetEnvironmentVariableA("CORVEX_CLIP", text);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
        return 99;
    const auto isOver = [&] { return ::WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; };
    DWORD code = 98;
    if (Pumps(isOver)) ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

class GridClipboardTest : public ::testing::Test {
protected:
    static bool RegisterOnce() { return Grid::Register(::GetModuleHandleA(nullptr)); }
    std::string Texts() const {
        std::string texts;
        for (const auto& [row, column] : {std::pair(2, 3), std::pair(2, 4), std::pair(3, 3), std::pair(3, 4)}) {
            char text[64] = "";
            getCell(window, row, column, text);
            texts.append(text).append("|");
        }
        return texts;
    }

    const bool registered = RegisterOnce();
    const ShownControl shown{kGridClass, 500, 200};
    const HWND window = shown.Window();
};

TEST_F(GridClipboardTest, TakesWhatAnotherProgramPuts) {
    for (const char* const text : {"1.5\t2\r\n\tx & y\r\n", "1.5\t2\n\tx & y"}) {
        shown.Send(GRM_SETSELECTION, cellAddress(9, 9), cellAddress(2, 3));
        ASSERT_EQ(Peer("put", text), 0u);
        shown.Send(WM_CHAR, 0x16);
        EXPECT_EQ(Texts(), "1.5|2||x & y|");
        for (int row = 2; row <= 3; ++row) {
            putCell(window, row, 3, "");
            putCell(window, row, 4, "");
        }
    }
}

TEST_F(GridClipboardTest, GivesAnotherProgramWhatIsSelected) {
    putCell(window, 2, 3, "1.5");
    putCell(window, 3, 4, "x");
    shown.Send(GRM_SETSELECTION, cellAddress(3, 4), cellAddress(2, 3));
    shown.Send(GRM_COPY);
    EXPECT_EQ(Peer("has", "1.5\t\r\n\tx\r\n"), 0u);
    EXPECT_EQ(Peer("has", "1.5\t\r\n\ty\r\n"), 1u);
}

TEST_F(GridClipboardTest, DoesNothingWhileSomebodyElseHasItOpenOrThereIsNoText) {
    ASSERT_TRUE(PutOnClipboard(window, "kept"));
    TestWindow other;
    ASSERT_TRUE(::OpenClipboard(other.Window()));
    EXPECT_FALSE(PutOnClipboard(window, "lost"));
    EXPECT_EQ(TextOfClipboard(window), std::nullopt);
    ::CloseClipboard();
    EXPECT_EQ(TextOfClipboard(window), "kept");
    ASSERT_TRUE(::OpenClipboard(other.Window()));
    ::EmptyClipboard();
    ::CloseClipboard();
    EXPECT_EQ(TextOfClipboard(window), std::nullopt);
    shown.Send(GRM_PASTE);
    EXPECT_EQ(Texts(), "||||");
}

}  // namespace
}  // namespace corvex
