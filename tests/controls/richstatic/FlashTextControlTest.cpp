// What label and progress bar share, tried with both.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <ostream>
#include <thread>

#include "controls/richstatic/FlashTextControl.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/textprogress/TextProgress.h"
#include "tests/controls/window/PaintTestHelper.h"
#include "tests/support/Eventually.h"

namespace corvex {
namespace {

constexpr COLORREF kRed = 0x0000FF, kWhite = 0xFFFFFF, kBlue = 0xFF0000, kYellow = 0x00FFFF, kMark = 0x010203;

struct Kind {
    const char* name;
    bool (*registerClass)(HINSTANCE);
    void (*setAll)(HWND, const char*, std::uint32_t, std::uint32_t);
    void (*flash)(HWND, const char*, std::uint32_t, std::uint32_t, std::uint32_t);
    UINT textColour, backColour;
};
void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}
const Kind kLabel{kRichStaticClass, RichStatic::Register, RichStatic::setAll, RichStatic::flash, 1375, 1374};
const Kind kBar{kTextProgressClass, TextProgress::Register, TextProgress::setAll, TextProgress::flash, 1324, 8193};

// What reached a window before its own procedure, and on which thread.
struct Spy {
    WNDPROC former = nullptr;
    std::vector<UINT> messages;
    std::vector<DWORD> threads;
};
Spy* spy = nullptr;

LRESULT CALLBACK SpyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    spy->messages.push_back(message);
    spy->threads.push_back(::GetCurrentThreadId());
    return ::CallWindowProcA(spy->former, window, message, wParam, lParam);
}

void Watch(HWND window, Spy& watcher) {
    spy = &watcher;
    watcher.former =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SpyProcedure)));
}

void PumpMessages() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageA(&message);
}

class FlashTextControlTest : public ::testing::TestWithParam<Kind> {
protected:
    FlashTextControlTest() {
        const HINSTANCE instance = ::GetModuleHandleA(nullptr);
        kind.registerClass(instance);
        parent_ = ::CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 50, nullptr, nullptr, instance,
                                    nullptr);
        window = ::CreateWindowExA(0, kind.name, "Ready", WS_CHILD | WS_VISIBLE, 0, 0, 120, 30, parent_, nullptr,
                                   instance, nullptr);
        ::UpdateWindow(window);
    }
    ~FlashTextControlTest() override {
        ::DestroyWindow(parent_);
        spy = nullptr;
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessageA(window, message, wParam, lParam);
    }
    std::string Text() {
        char text[300] = "nothing";
        Send(WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }
    bool Shows(COLORREF colour) { return ColoursOf(window).count(colour) != 0; }
    // On white ground, apart from the border.
    int RowsOfText() {
        const TestBitmap copy(window);
        int rows = 0;
        for (int y = 1; y < 29; ++y)
            rows += copy.ColoursIn(1, y, 119, y + 1) != std::set<COLORREF>{kWhite} ? 1 : 0;
        return rows;
    }
    bool MarkStands() { return PixelOf(window, 2, 2) == kMark; }
    // Runs it on another thread, while this one works its messages off.
    template <class Work>
    void Elsewhere(Work work) {
        std::atomic<bool> done{false};
        std::thread worker([&] {
            work();
            done = true;
        });
        EXPECT_TRUE(test::Eventually([&] {
            PumpMessages();
            return done.load();
        }));
        worker.join();
    }

    const Kind& kind = GetParam();
    HWND parent_ = nullptr, window = nullptr;
};

TEST_P(FlashTextControlTest, ClassIsRedrawnOnEverySizeAndHasNoBrush) {
    WNDCLASSA windowClass{};
    ASSERT_TRUE(::GetClassInfoA(::GetModuleHandleA(nullptr), kind.name, &windowClass));
    EXPECT_EQ(windowClass.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
    EXPECT_EQ(windowClass.hbrBackground, nullptr);
    EXPECT_EQ(windowClass.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    EXPECT_EQ(Send(WM_ERASEBKGND), 1);
}

TEST_P(FlashTextControlTest, TakesItsFirstTextFromItsCreation) {
    EXPECT_EQ(Text(), "Ready");
}

TEST_P(FlashTextControlTest, ShowsTextAndColoursAtOnce) {
    kind.setAll(window, "MMM", kRed, kWhite);
    EXPECT_EQ(Text(), "MMM");
    EXPECT_TRUE(Shows(kRed));
    EXPECT_TRUE(Shows(kWhite));
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

TEST_P(FlashTextControlTest, SetAllSendsTextColourBackColourAndText) {
    Spy watcher;
    Watch(window, watcher);
    kind.setAll(window, "MMM", kRed, kWhite);
    ASSERT_GE(watcher.messages.size(), 3u);
    watcher.messages.resize(3);
    EXPECT_EQ(watcher.messages, (std::vector<UINT>{kind.textColour, kind.backColour, WM_SETTEXT}));
}

TEST_P(FlashTextControlTest, ColourMessagesAnswerTheOldColour) {
    EXPECT_EQ(Send(kind.textColour, 0, kRed), 0);
    EXPECT_EQ(Send(kind.textColour, 0, -1), static_cast<LRESULT>(kRed));
    EXPECT_EQ(Send(kind.textColour, 0, kRed), -1);
    EXPECT_EQ(Send(kind.backColour, 0, kBlue), -1);
    EXPECT_EQ(Send(kind.backColour, 0, kWhite), static_cast<LRESULT>(kBlue));
}

TEST_P(FlashTextControlTest, ColoursAloneShowWithTheNextPaint) {
    for (const UINT message : {kind.textColour, kind.backColour}) {
        Send(message, 0, kBlue);
        EXPECT_TRUE(::GetUpdateRect(window, nullptr, FALSE)) << message;
        ::UpdateWindow(window);
    }
    EXPECT_TRUE(Shows(kBlue));
}

TEST_P(FlashTextControlTest, NullTextEmptiesIt) {
    EXPECT_EQ(Send(WM_SETTEXT, 0, 0), TRUE);
    EXPECT_EQ(Text(), "");
    kind.setAll(window, nullptr, kRed, kWhite);
    EXPECT_EQ(Text(), "");
}

TEST_P(FlashTextControlTest, TextIsCutToTheCapacityTold) {
    char text[8] = "#######";
    EXPECT_EQ(Send(WM_GETTEXT, 3, reinterpret_cast<LPARAM>(text)), 2);
    EXPECT_EQ(std::string(text, 5), std::string("Re\0##", 5));
    EXPECT_EQ(Send(WM_GETTEXTLENGTH), 5);
    EXPECT_EQ(Send(WM_GETTEXT, 10, 0), 0);
}

TEST_P(FlashTextControlTest, CallerOfThisThreadWithoutACapacityGetsTheWholeText) {
    char text[300] = "nothing";
    EXPECT_EQ(Send(WM_GETTEXT, 0, reinterpret_cast<LPARAM>(text)), 5);
    EXPECT_STREQ(text, "Ready");
    const std::string longest(260, 'x');
    Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(longest.c_str()));
    EXPECT_EQ(Send(WM_GETTEXT, 0, reinterpret_cast<LPARAM>(text)), 260);
    EXPECT_EQ(text, longest);
}

TEST_P(FlashTextControlTest, CallerFromElsewhereWithoutACapacityGetsNothing) {
    char text[300] = "nothing";
    Elsewhere([&] { EXPECT_EQ(Send(WM_GETTEXT, 0, reinterpret_cast<LPARAM>(text)), 0); });
    EXPECT_STREQ(text, "nothing");
    Elsewhere([&] { EXPECT_EQ(Send(WM_GETTEXT, 10, reinterpret_cast<LPARAM>(text)), 5); });
    EXPECT_STREQ(text, "Ready");
}

TEST_P(FlashTextControlTest, TextOf261CharactersChangesTheFirstThreeAlone) {
    const std::string longText(261, 'x');
    Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(longText.c_str()));
    EXPECT_EQ(Text(), "xxxdy");
}

TEST_P(FlashTextControlTest, FontIsAdoptedUsedAndDeleted) {
    kind.setAll(window, "MMM", kRed, kWhite);
    const auto own = reinterpret_cast<HFONT>(Send(WM_GETFONT));
    EXPECT_EQ(::GetObjectType(own), static_cast<DWORD>(OBJ_FONT));
    const int usual = RowsOfText();
    const HFONT tiny = ::CreateFontA(4, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(tiny), TRUE);
    EXPECT_EQ(reinterpret_cast<HFONT>(Send(WM_GETFONT)), tiny);
    ::UpdateWindow(window);
    EXPECT_LT(RowsOfText(), usual);

    Send(WM_SETFONT, 0, TRUE);
    EXPECT_EQ(reinterpret_cast<HFONT>(Send(WM_GETFONT)), own);
    EXPECT_EQ(::GetObjectType(tiny), 0u);
}

TEST_P(FlashTextControlTest, FlashShowsAtOnceUntilItsTimerComes) {
    kind.setAll(window, "MMM", kRed, kWhite);
    kind.flash(window, "WWW", kYellow, kBlue, 60000);
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(Shows(kYellow));
    EXPECT_TRUE(Shows(kBlue));
    Send(WM_TIMER, 1024);
    EXPECT_EQ(Text(), "WWW");
    Send(WM_TIMER, 1025);
    EXPECT_EQ(Text(), "MMM");
    EXPECT_TRUE(Shows(kRed));
    EXPECT_TRUE(Shows(kWhite));
    EXPECT_FALSE(Shows(kYellow));
}

TEST_P(FlashTextControlTest, FlashHasATimerThatItsEndKills) {
    EXPECT_FALSE(::KillTimer(window, 1025));
    kind.flash(window, "WWW", kYellow, kBlue, 60000);
    EXPECT_TRUE(::KillTimer(window, 1025));
    ::SetTimer(window, 1025, 60000, nullptr);
    Send(WM_TIMER, 1025);
    EXPECT_FALSE(::KillTimer(window, 1025));
}

TEST_P(FlashTextControlTest, FlashEndsByItself) {
    kind.flash(window, "WWW", kYellow, kBlue, 20);
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(test::Eventually([&] {
        PumpMessages();
        return Text() == "Ready";
    }));
}

TEST_P(FlashTextControlTest, SecondFlashDuringAFlashIsLost) {
    kind.flash(window, "first", kYellow, kBlue, 60000);
    kind.flash(window, "second", kRed, kWhite, 60000);
    EXPECT_EQ(Text(), "first");
    EXPECT_TRUE(Shows(kYellow));
    Send(WM_TIMER, 1025);
    EXPECT_EQ(Text(), "Ready");
}

TEST_P(FlashTextControlTest, SecondFlashLeavesTheFirstItsTime) {
    kind.flash(window, "first", kYellow, kBlue, 20);
    kind.flash(window, "second", kRed, kWhite, 3600000);
    EXPECT_TRUE(test::Eventually([&] {
        PumpMessages();
        return Text() == "Ready";
    }));
}

TEST_P(FlashTextControlTest, ChangesDuringAFlashShowOnlyWhenItEnds) {
    kind.setAll(window, "MMM", kRed, kWhite);
    kind.flash(window, "WWW", kYellow, kBlue, 60000);
    EXPECT_EQ(Send(kind.textColour, 0, 0x00FF00), static_cast<LRESULT>(kRed));
    EXPECT_EQ(Send(kind.backColour, 0, 0x800000), static_cast<LRESULT>(kWhite));
    ::UpdateWindow(window);
    SetPixelOf(window, 2, 2, kMark);
    Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("III"));
    EXPECT_TRUE(MarkStands());
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(Shows(kYellow));
    Send(WM_TIMER, 1025);
    EXPECT_EQ(Text(), "III");
    EXPECT_TRUE(Shows(0x00FF00));
    EXPECT_TRUE(Shows(0x800000));
}

TEST_P(FlashTextControlTest, TimerWithoutAFlashChangesNothing) {
    SetPixelOf(window, 2, 2, kMark);
    Send(WM_TIMER, 1025);
    EXPECT_EQ(Text(), "Ready");
    EXPECT_TRUE(MarkStands());
}

TEST_P(FlashTextControlTest, FlashOfAnotherKindOfWindowDoesNothing) {
    const HWND other =
        ::CreateWindowExA(0, "STATIC", "other", WS_CHILD, 0, 0, 9, 9, parent_, nullptr, nullptr, nullptr);
    Spy watcher;
    Watch(other, watcher);
    kind.flash(other, "WWW", kYellow, kBlue, 1);
    kind.flash(nullptr, "WWW", kYellow, kBlue, 1);
    EXPECT_TRUE(watcher.messages.empty());
}

TEST_P(FlashTextControlTest, FlashFromAnotherThreadIsCarriedToTheOwner) {
    Spy watcher;
    Watch(window, watcher);
    Elsewhere([&] { kind.flash(window, "WWW", kYellow, kBlue, 60000); });
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(Shows(kYellow));
    EXPECT_TRUE(::KillTimer(window, 1025));
    for (const DWORD thread : watcher.threads)
        EXPECT_EQ(thread, ::GetCurrentThreadId());
    const auto isPrivate = [](UINT message) { return message >= WM_APP && message <= 0xBFFF; };
    EXPECT_EQ(std::count_if(watcher.messages.begin(), watcher.messages.end(), isPrivate), 1);
}

TEST_P(FlashTextControlTest, WorkerMayChangeItWhileTheOwnerPumps) {
    const std::string first(200, 'a'), second(100, 'b'), flashed(50, 'c');
    int whole = 0, other = 0;
    std::atomic<bool> done{false};
    std::thread worker([&] {
        for (int i = 0; i < 200; ++i) {
            kind.setAll(window, (i % 2 == 0 ? first : second).c_str(), kRed, kWhite);
            kind.flash(window, flashed.c_str(), kYellow, kBlue, 1);
        }
        done = true;
    });
    EXPECT_TRUE(test::Eventually([&] {
        PumpMessages();
        const std::string text = Text();
        const bool known = text == first || text == second || text == flashed || text == "Ready";
        ++(known ? whole : other);
        return done.load();
    }));
    worker.join();
    EXPECT_EQ(other, 0);
    EXPECT_GT(whole, 0);
    EXPECT_TRUE(test::Eventually([&] {
        PumpMessages();
        return Text() == second;
    }));
}

TEST_P(FlashTextControlTest, WindowMayGoDuringAFlash) {
    kind.flash(window, "WWW", kYellow, kBlue, 1);
    ::DestroyWindow(window);
    EXPECT_FALSE(::IsWindow(window));
    kind.flash(window, "WWW", kYellow, kBlue, 1);
    kind.setAll(window, "MMM", kRed, kWhite);
    PumpMessages();
}

TEST_P(FlashTextControlTest, ThousandPaintsLeakNothing) {
    kind.setAll(window, "MMM", kNoColour, kWhite);
    const std::size_t before = LiveGdiObjects(), all = AllGdiObjects();
    Spy watcher;
    Watch(window, watcher);
    for (int i = 0; i < 1000; ++i)
        ::RedrawWindow(window, nullptr, nullptr, 261);
    EXPECT_GE(std::count(watcher.messages.begin(), watcher.messages.end(), UINT{WM_PAINT}), 1000);
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(AllGdiObjects(), all);
}

TEST_P(FlashTextControlTest, WindowTakesItsObjectsWithIt) {
    ::DestroyWindow(window);
    const std::size_t before = LiveGdiObjects();
    window = ::CreateWindowExA(0, kind.name, "", WS_CHILD, 0, 0, 9, 9, parent_, nullptr, nullptr, nullptr);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(MakeTestFont().Release()), 0);
    EXPECT_EQ(LiveGdiObjects(), before + 2);
    ::DestroyWindow(window);
    EXPECT_EQ(LiveGdiObjects(), before);
}

INSTANTIATE_TEST_SUITE_P(Both, FlashTextControlTest, ::testing::Values(kLabel, kBar),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace corvex
