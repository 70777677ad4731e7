// What label and progress bar share, tried with both.
#include <gtest/gtest.h>

#include <ostream>

#include "controls/richstatic/FlashTextControl.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/textprogress/TextProgress.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

constexpr COLORREF kRed = 0x0000FF, kWhite = 0xFFFFFF, kBlue = 0xFF0000, kYellow = 0x00FFFF;

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

class FlashTextControlTest : public ::testing::TestWithParam<Kind> {
protected:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) { return control.Send(message, wParam, lParam); }
    std::string Text() { return TextOfWindow(window); }
    bool Shows(COLORREF colour) { return control.Shows(colour); }
    // On white ground, apart from the border.
    int RowsOfText() {
        const TestBitmap copy(window);
        int rows = 0;
        for (int y = 1; y < 29; ++y)
            rows += copy.ColoursIn({1, y, 119, y + 1}) != Colours{kWhite} ? 1 : 0;
        return rows;
    }

    const Kind& kind = GetParam();
    const bool registered = kind.registerClass(::GetModuleHandleA(nullptr));
    ShownControl control{kind.name, 120, 30, 7, "Ready"};
    const HWND window = control.Window();
};

TEST_P(FlashTextControlTest, ShowsTheTextOfItsCreationAndWhatItIsToldAtOnce) {
    EXPECT_EQ(Text(), "Ready");
    control.Spy().Forget();
    kind.setAll(window, "MMM", kRed, kWhite);
    std::vector<UINT> first;
    for (std::size_t i = 0; i < 3; ++i)
        first.push_back(control.Spy().Heard().at(i).message);
    EXPECT_EQ(first, (std::vector<UINT>{kind.textColour, kind.backColour, WM_SETTEXT}));
    EXPECT_EQ(Text(), "MMM");
    EXPECT_TRUE(Shows(kRed) && Shows(kWhite));
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
}

// The old colour is told with its sign.
TEST_P(FlashTextControlTest, ColoursAloneShowWithTheNextPaint) {
    for (const auto& [message, first] : {std::pair{kind.textColour, LRESULT{0}}, {kind.backColour, LRESULT{-1}}}) {
        EXPECT_EQ(Send(message, 0, -1), first);
        EXPECT_EQ(Send(message, 0, kBlue), -1);
        EXPECT_TRUE(::GetUpdateRect(window, nullptr, FALSE)) << message;
        ::UpdateWindow(window);
    }
    EXPECT_TRUE(Shows(kBlue));
}

// Of this thread a caller without a capacity gets the whole text, one from elsewhere nothing.
TEST_P(FlashTextControlTest, TextIsCutToTheCapacityTold) {
    const std::string longest(260, 'x');
    char text[300] = "#######";
    EXPECT_EQ(Send(WM_GETTEXT, 3, L(text)), 2);
    EXPECT_EQ(std::string(text, 5), std::string("Re\0##", 5));
    EXPECT_EQ(Send(WM_GETTEXTLENGTH), 5);
    EXPECT_EQ(Send(WM_GETTEXT, 10, 0), 0);
    Send(WM_SETTEXT, 0, L(longest.c_str()));
    EXPECT_EQ(Send(WM_GETTEXT, 0, L(text)), 260);
    EXPECT_EQ(text, longest);
    EXPECT_TRUE(WhilePumping([&] { EXPECT_EQ(Send(WM_GETTEXT, 0, L(text)), 0); }));
    EXPECT_EQ(text, longest) << "left alone";
    EXPECT_TRUE(WhilePumping([&] { EXPECT_EQ(Send(WM_GETTEXT, 10, L(text)), 9); }));
    EXPECT_EQ(Send(WM_SETTEXT, 0, 0), TRUE);
    EXPECT_EQ(Text(), "");
    kind.setAll(window, nullptr, kRed, kWhite);
    EXPECT_EQ(Text(), "");
}

TEST_P(FlashTextControlTest, FontIsAdoptedAndUsed) {
    kind.setAll(window, "MMM", kRed, kWhite);
    const auto own = reinterpret_cast<HFONT>(Send(WM_GETFONT));
    const int usual = RowsOfText();
    const HFONT tiny = ::CreateFontA(4, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    Send(WM_SETFONT, W(tiny), TRUE);
    EXPECT_EQ(reinterpret_cast<HFONT>(Send(WM_GETFONT)), tiny);
    ::UpdateWindow(window);
    EXPECT_LT(RowsOfText(), usual);
    Send(WM_SETFONT, 0, TRUE);
    EXPECT_EQ(reinterpret_cast<HFONT>(Send(WM_GETFONT)), own);
}

TEST_P(FlashTextControlTest, FlashShowsAtOnceUntilItsTimerComes) {
    kind.setAll(window, "MMM", kRed, kWhite);
    EXPECT_EQ(control.PaintsIn([&] { Send(WM_TIMER, 1025); }), 0) << "without a flash";
    kind.flash(window, "WWW", kYellow, kBlue, 60000);
    kind.flash(window, "lost", kRed, kWhite, 60000);
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(Shows(kYellow) && Shows(kBlue));
    Send(WM_TIMER, 1024);
    EXPECT_EQ(Text(), "WWW");
    Send(WM_TIMER, 1025);
    EXPECT_EQ(Text(), "MMM");
    EXPECT_TRUE(Shows(kRed) && Shows(kWhite));
    EXPECT_FALSE(Shows(kYellow));
    EXPECT_FALSE(::KillTimer(window, 1025));
}

TEST_P(FlashTextControlTest, FlashEndsByItselfInItsTimeWhateverComesMeanwhile) {
    kind.flash(window, "first", kYellow, kBlue, 20);
    kind.flash(window, "second", kRed, kWhite, 3600000);
    EXPECT_EQ(Text(), "first");
    EXPECT_TRUE(Pumps([&] { return Text() == "Ready"; }));
}

TEST_P(FlashTextControlTest, ChangesDuringAFlashShowOnlyWhenItEnds) {
    kind.setAll(window, "MMM", kRed, kWhite);
    kind.flash(window, "WWW", kYellow, kBlue, 60000);
    EXPECT_EQ(Send(kind.textColour, 0, 0x00FF00), static_cast<LRESULT>(kRed));
    EXPECT_EQ(Send(kind.backColour, 0, 0x800000), static_cast<LRESULT>(kWhite));
    ::UpdateWindow(window);
    EXPECT_EQ(control.PaintsIn([&] { Send(WM_SETTEXT, 0, L("III")); }), 0);
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(Shows(kYellow));
    Send(WM_TIMER, 1025);
    EXPECT_EQ(Text(), "III");
    EXPECT_TRUE(Shows(0x00FF00) && Shows(0x800000));
}

TEST_P(FlashTextControlTest, FlashFromAnotherThreadIsCarriedToTheOwner) {
    control.Spy().Forget();
    EXPECT_TRUE(WhilePumping([&] { kind.flash(window, "WWW", kYellow, kBlue, 60000); }));
    EXPECT_EQ(Text(), "WWW");
    EXPECT_TRUE(Shows(kYellow));
    EXPECT_TRUE(::KillTimer(window, 1025));
    int own = 0;
    for (const HeardMessage& heard : control.Spy().Heard()) {
        EXPECT_EQ(heard.thread, ::GetCurrentThreadId());
        own += heard.message >= WM_APP && heard.message <= 0xBFFF ? 1 : 0;
    }
    EXPECT_EQ(own, 1);
}

TEST_P(FlashTextControlTest, WindowMayGoDuringAFlashWhichNoOtherShows) {
    control.Parent().heard.clear();
    kind.flash(control.Parent().Window(), "WWW", kYellow, kBlue, 1);
    EXPECT_TRUE(control.Parent().heard.empty());
    kind.flash(window, "WWW", kYellow, kBlue, 1);
    ::DestroyWindow(window);
    kind.flash(window, "WWW", kYellow, kBlue, 1);
    kind.setAll(window, "MMM", kRed, kWhite);
    Pump();
}

INSTANTIATE_TEST_SUITE_P(Both, FlashTextControlTest, ::testing::Values(kLabel, kBar),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace corvex
