// What the panel of the line says of lines that are not as they should be, in the program as it is.
#include <atomic>
#include <thread>

#include "tests/program/ProgramTest.h"

namespace corvex::test {
namespace {

// Asks a window again and again for nothing, as long as it lives; how long the longest answer took.
class AnswerTime {
public:
    explicit AnswerTime(HWND window) {
        const HDESK desktop = ::GetThreadDesktop(::GetCurrentThreadId());
        asker_ = std::thread([this, window, desktop] {
            ::SetThreadDesktop(desktop);
            IClock& clock = SystemClock();
            while (!ends_) {
                const std::int64_t begin = clock.Counter();
                DWORD_PTR answer = 0;
                ::SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, 10000, &answer);
                const std::int64_t took = (clock.Counter() - begin) * 1000 / clock.Frequency();
                if (took > longest_) longest_ = took;
                ++answers_;
                SleepUntil(clock.Counter() + clock.Frequency() / 200);
            }
        });
    }
    // In milliseconds.
    std::int64_t End() {
        ends_ = true;
        if (asker_.joinable()) asker_.join();
        return longest_;
    }
    ~AnswerTime() { End(); }
    AnswerTime(const AnswerTime&) = delete;
    AnswerTime& operator=(const AnswerTime&) = delete;
    int Answers() const { return answers_; }

private:
    std::atomic<bool> ends_{false};
    std::atomic<std::int64_t> longest_{0};
    std::atomic<int> answers_{0};
    std::thread asker_;
};

class Line : public ProgramTest {
protected:
    void ExpectLink(const std::string& begin) {
        EXPECT_TRUE(Eventually([&] { return Window().LinkText().find(begin) == 0; }))
            << "the panel says \"" << Window().LinkText() << "\", not \"" << begin << "...\"";
    }
    void ScanEnds() {
        Window().Send(kScan);
        ExpectLink("not connected");
        ExpectLeft("ALDL: Not Connected");
    }
};

TEST_F(Line, APortThatIsNotThereIsNamedOnEveryTab) {
    Settle({{"comport", "COM9"}});
    Start();
    Window().ShowTab(1);
    Window().Send(kScan);
    ExpectLink("no such port");
    ExpectLeft("ALDL: Not Connected");
}

TEST_F(Line, EachTroubleHasItsWordsAndTheWindowNeverFreezes) {
    constexpr int kStretches = 3;  // a machine that is busy with others may spoil one, but no freeze comes by chance
    constexpr std::int64_t kLongestAnswer = 100;
    Settle();
    Start();
    std::int64_t longest = kLongestAnswer;
    for (int i = 0; i < kStretches && longest >= kLongestAnswer; ++i) {
        AnswerTime asked(Window().Handle());
        for (const auto& [options, text] : {std::pair{std::vector<std::string>{"--pace", "--silent"}, "silent line"},
                                            {{"--pace", "--silent", "--echo"}, "only our own echo"},
                                            {{"--pace", "--noise", "0.6", "--seed", "3"}, "noise, "},
                                            {{"--pace"}, "good, last reply 0."}}) {
            engines.Start(options);
            Window().Send(kScan);
            ExpectLink(text);
            ScanEnds();
        }
        Connect();
        ExpectLink("good");
        engines.Unplug();
        EXPECT_TRUE(Eventually([&] { return Window().LinkText().find("good") == std::string::npos; }));
        ScanEnds();
        longest = asked.End();
        EXPECT_GT(asked.Answers(), 100);
    }
    RecordProperty("longest answer in ms", static_cast<int>(longest));
    EXPECT_LT(longest, kLongestAnswer);
}

TEST_F(Line, RepliesOfAnotherLengthAreCounted) {
    Settle();
    std::string definition = folder.Files().Content("harrier-8192.adx");
    const std::size_t size = definition.find("<replysize>63<");
    ASSERT_NE(size, std::string::npos);
    folder.Files().Put("harrier-8192.adx", definition.replace(size + 11, 2, "70"));
    Start();
    engines.Start({"--pace"});
    Window().Send(kScan);
    ExpectLink("replies of 63 bytes in place of 70");
}

}  // namespace
}  // namespace corvex::test
