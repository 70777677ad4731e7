#include <thread>

#include "session/window/OutputText.h"
#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {
namespace {

class OutputTextTest : public MainWindowTest {
protected:
    OutputTextTest() {
        folder.Put("Settings.dat", "loadlastdef=0\n");
        Start();
    }
    void Print(const char* text) { DebugOutput::Print(&session.debug, "%s", text); }
};

TEST_F(OutputTextTest, IsAnEditControlThatCanBeWrittenIn) {
    const DWORD style = StyleOfWindow(AsWindow(session.outputEdit)),
                wanted = WS_CHILD | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL;
    EXPECT_EQ(wanted, style & (wanted | ES_READONLY));
}

TEST_F(OutputTextTest, HasTheSmallFont) {
    const LOGFONTA fontInfo = FontOf(AsWindow(session.outputEdit));
    EXPECT_EQ(6, fontInfo.lfHeight);
    EXPECT_EQ(100, fontInfo.lfWeight);
    EXPECT_EQ(PROOF_QUALITY, fontInfo.lfQuality);
    EXPECT_EQ(FIXED_PITCH | FF_MODERN, fontInfo.lfPitchAndFamily);
    EXPECT_STREQ("Courier", fontInfo.lfFaceName);
}

TEST_F(OutputTextTest, HasNoLimitOfItsOwn) {
    const std::string line(4000, 'x');
    for (int i = 0; i < 15; ++i)
        Print(line.c_str());
    EXPECT_EQ(15U * 4000 + 14 * 2, desktop.output.TextLength());
}

TEST_F(OutputTextTest, AppendsAtTheEndWhereverTheCaretIs) {
    Print("one");
    ::SendMessageA(AsWindow(session.outputEdit), EM_SETSEL, 0, 2);
    Print("two");
    EXPECT_EQ("one\r\ntwo", Output());
}

TEST_F(OutputTextTest, LinesOfSeveralThreadsStayWhole) {
    std::atomic<int> done{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 3; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 40; ++i)
                Print("a line of twenty-six signs");
            ++done;
        });
    }
    ASSERT_TRUE(Pumps([&] { return done == 3; }));
    for (std::thread& thread : threads)
        thread.join();
    std::string text = Output();
    std::size_t lines = 1;
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at + 2))
        ++lines;
    EXPECT_GE(lines, 118U);  // two threads that find it empty write their first lines side by side
    EXPECT_EQ(120U * 26, text.size() - (lines - 1) * 2);
}

TEST_F(OutputTextTest, AWorkerLeavesItsLinesToABusyMainThread) {
    Print("main");
    std::thread worker([&] {
        Print("first");
        Print("second");
    });
    worker.join();  // while nobody looks at the messages
    EXPECT_EQ(4U + 2 + 5 + 2 + 6, desktop.output.TextLength());
    Print("third");
    EXPECT_EQ("main\r\nfirst\r\nsecond\r\nthird", Output());
}

TEST_F(OutputTextTest, AWorkersLinesComeByTheMessageQueue) {
    std::thread([&] { Print("line"); }).join();
    ASSERT_TRUE(Pumps([&] {
        const LRESULT end = ::SendMessageA(AsWindow(session.outputEdit), EM_GETLINECOUNT, 0, 0) - 1;
        return end == 0 && ::SendMessageA(AsWindow(session.outputEdit), EM_LINELENGTH, 0, 0) == 4;
    }));
}

TEST_F(OutputTextTest, ClearTakesWhatWaitsToo) {
    Print("before");
    std::thread([&] {
        Print("waits");
        desktop.output.Clear();
        EXPECT_EQ(0U, desktop.output.TextLength());
        Print("after");
    }).join();
    EXPECT_EQ("after", Output());
    desktop.output.Clear();
    EXPECT_EQ("", Output());
}

TEST_F(OutputTextTest, KnowsWhatTheUserWrites) {
    ::SendMessageA(AsWindow(session.outputEdit), WM_CHAR, 'x', 0);
    EXPECT_EQ(1U, desktop.output.TextLength());
    Print("line");
    EXPECT_EQ("x\r\nline", Output());
    ::SendMessageA(AsWindow(session.outputEdit), EM_SETSEL, 0, -1);
    ::SendMessageA(AsWindow(session.outputEdit), WM_CLEAR, 0, 0);
    EXPECT_EQ(0U, desktop.output.TextLength());
}

TEST_F(OutputTextTest, IsDeafOnceItsWindowIsGone) {
    ASSERT_TRUE(Close());
    desktop.output.Append("late");
    EXPECT_EQ(0U, desktop.output.TextLength());
    desktop.output.Clear();
    EXPECT_EQ(0U, desktop.output.TextLength());
}

}  // namespace
}  // namespace corvex::test
