#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/digitalreadout/DigitalReadoutWindow.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

// A readout on show.
class DigitalReadoutTest : public ::testing::Test {
protected:
    DigitalReadoutTest() { record = Model().Info(); }

    DigitalReadoutModel& Model() const { return Object().Model(); }
    DigitalReadoutWindow& Object() const { return *ControlOf<DigitalReadoutWindow>(window); }

    // What goes in and comes out by a pointer.
    static inline DigitalReadoutInfo record;

    const bool registered = DigitalReadout::Register(::GetModuleHandleA(nullptr));
    ShownControl gauge{"QZDIGITALGAUGEREADOUT", 120, 90};
    const HWND window = gauge.Window();

    // Every function, in an order in which each has a result of its own: that, the one of a window that is no readout,
    // and whether it repaints.
    struct Call {
        const char* name;
        std::function<double(HWND)> make;
        double result, absent;
        int paints;
    };
    static inline const std::vector<Call> kCalls = {
        {"SetInfo", [](HWND w) { return DigitalReadoutSetInfo(w, &record); }, 1, 0, 0},
        {"GetInfo", [](HWND w) { return DigitalReadoutGetInfo(w, &record); }, 1, 0, 0},
        {"SetColor", [](HWND w) { return DigitalReadoutSetColor(w, 3, 9); }, 1, 0, 1},
        {"GetColor", [](HWND w) { return DigitalReadoutGetColor(w, 3); }, 9, -1, 0},
        {"SetValue", [](HWND w) { return DigitalReadoutSetValue(w, 2.5f); }, 0, 0, 1},
        {"SetValue unchanged", [](HWND w) { return DigitalReadoutSetValue(w, 2.5f); }, 2.5, 0, 0},
        {"SetValueInt", [](HWND w) { return DigitalReadoutSetValueInt(w, 3); }, 2, 0, 1},
        {"SetValueInt unchanged", [](HWND w) { return DigitalReadoutSetValueInt(w, 3); }, 3, 0, 0},
        {"SetHighLimit", [](HWND w) { return DigitalReadoutSetHighLimit(w, 100.0f); }, 256, 0, 1},
        {"SetHighLimitInt", [](HWND w) { return DigitalReadoutSetHighLimitInt(w, 120); }, 100, 0, 1},
        {"GetHighLimit", [](HWND w) { return DigitalReadoutGetHighLimit(w); }, 120, 0, 0},
        {"SetLowLimit", [](HWND w) { return DigitalReadoutSetLowLimit(w, 5.0f); }, -1, 0, 1},
        {"SetLowLimitInt", [](HWND w) { return DigitalReadoutSetLowLimitInt(w, 6); }, 5, 0, 1},
        {"GetLowLimit", [](HWND w) { return DigitalReadoutGetLowLimit(w); }, 6, 0, 0},
        {"EnableHighLimit", [](HWND w) { return DigitalReadoutEnableHighLimit(w, 4); }, 1, 0, 0},
        {"EnableLowLimit", [](HWND w) { return DigitalReadoutEnableLowLimit(w, 8); }, 1, 0, 0},
        {"SetFormat", [](HWND w) { return DigitalReadoutSetFormat(w, 0, 1); }, 1, 0, 1},
        {"SetTitle", [](HWND w) { return DigitalReadoutSetTitle(w, "Speed"); }, 5, 0, 1},
        {"SetUnits", [](HWND w) { return DigitalReadoutSetUnits(w, "km/h"); }, 4, 0, 1},
        {"SetUserWord", [](HWND w) { return DigitalReadoutSetUserWord(w, 7); }, 0, 0, 0},
        {"GetUserWord", [](HWND w) { return DigitalReadoutGetUserWord(w); }, 7, 0, 0},
    };
    void ExpectCallsCame() const {
        EXPECT_STREQ(Model().Title(), "Speed");
        EXPECT_STREQ(Model().Units(), "km/h");
        EXPECT_STREQ(Model().Text(), "3");
        EXPECT_EQ(Model().Info().highLimitEnabled, 4u);
        EXPECT_EQ(Model().Info().lowLimitEnabled, 8u);
    }
};

TEST_F(DigitalReadoutTest, HandleWithoutAReadoutGivesNothing) {
    const HWND other = gauge.Parent().Window(), none = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFE));
    gauge.Parent().heard.clear();
    record.userWord = 5;
    for (const HWND odd : {HWND{}, other, none, window}) {
        if (odd == window) ::DestroyWindow(window);
        for (const Call& call : kCalls)
            EXPECT_EQ(call.make(odd), call.absent) << call.name;
        EXPECT_EQ(record.userWord, 5u);
        if (odd == other) {
            EXPECT_TRUE(gauge.Parent().heard.empty()) << "not even asked";
        }
    }
}

TEST_F(DigitalReadoutTest, OnlyWhatIsToldToRepaintDoesSoAndOnce) {
    for (const Call& call : kCalls) {
        EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(call.make(window), call.result) << call.name; }), call.paints)
            << call.name;
        EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE)) << call.name;
    }
    ExpectCallsCame();
}

TEST_F(DigitalReadoutTest, EveryFunctionWorksFromAnotherThreadAndOnTheOwners) {
    gauge.Spy().Forget();
    EXPECT_TRUE(WhilePumping([&] {
        for (const Call& call : kCalls)
            EXPECT_EQ(call.make(window), call.result) << call.name;
    }));
    ExpectCallsCame();
    std::vector<DWORD> threads;
    for (const HeardMessage& heard : gauge.Spy().Heard()) {
        if (heard.message >= WM_APP && heard.message < 0xC000) threads.push_back(heard.thread);
    }
    EXPECT_EQ(threads, std::vector<DWORD>(kCalls.size(), ::GetCurrentThreadId()));
}

TEST_F(DigitalReadoutTest, WindowMayGoWhileAWorkerSetsValues) {
    std::atomic<bool> gone{false};
    float last = -1.0f;
    int turns = 0;
    gauge.Spy().SetHandler([&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_PAINT || ++turns != 20) return std::nullopt;
        ::DestroyWindow(window);
        gone = true;
        return 0;
    });
    EXPECT_TRUE(WhilePumping([&] {
        for (int i = 1; !gone || i % 2 != 0; ++i)
            DigitalReadoutSetValue(window, static_cast<float>(i));
        last = DigitalReadoutSetValue(window, 4.0f);
    }));
    EXPECT_EQ(last, 0.0f);
}

TEST_F(DigitalReadoutTest, UnchangedValuePaintsNothingEvenWithALimitEnabledMeanwhile) {
    EXPECT_EQ(gauge.PaintsIn([&] { DigitalReadoutSetValue(window, 0.0f); }), 0) << "nor does a first value of zero";
    EXPECT_STREQ(Model().Text(), "0.00");
    DigitalReadoutSetValue(window, 300.0f);
    DigitalReadoutEnableHighLimit(window, 1);
    EXPECT_EQ(gauge.PaintsIn([&] { DigitalReadoutSetValue(window, 300.0f); }), 0);
    EXPECT_EQ(Model().ColourInForce(), 0x0000FFu);
    EXPECT_FALSE(gauge.Shows(0x0000FFu));
}

TEST_F(DigitalReadoutTest, SetValueIntComparesWholeNumbers) {
    DigitalReadoutSetValue(window, 7.75f);
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(DigitalReadoutSetValueInt(window, 7), 7); }), 0);
    EXPECT_STREQ(Model().Text(), "7.00");
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(DigitalReadoutSetValueInt(window, -7), 7); }), 1);
    DigitalReadoutSetValue(window, 1e30f);
    EXPECT_EQ(DigitalReadoutSetValueInt(window, 1), INT32_MIN);
}

TEST_F(DigitalReadoutTest, MissingTextsAndRecordsAreSurvived) {
    EXPECT_EQ(DigitalReadoutSetUnits(window, nullptr), 0u);
    EXPECT_EQ(DigitalReadoutSetInfo(window, nullptr), 0u);
    EXPECT_EQ(DigitalReadoutGetInfo(window, nullptr), 0u);
}

TEST_F(DigitalReadoutTest, SizeRepaintsAtOnceAndWhole) {
    gauge.Mark();
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(120, 90)), 0); }), 1);
    EXPECT_FALSE(gauge.HasMark());
}

HFONT AnyFont() {
    return MakeTestFont().Release();
}

bool Exists(HFONT font) {
    return ::GetObjectType(font) == OBJ_FONT;
}

TEST_F(DigitalReadoutTest, SuppliedFontEndsTheAutomaticSizeUntilItIsTakenAway) {
    void (DigitalReadoutWindow::*const setters[])(HFONT) = {
        &DigitalReadoutWindow::SetTitleFont, &DigitalReadoutWindow::SetDigitsFont, &DigitalReadoutWindow::SetUnitsFont};
    for (const auto set : setters) {
        DigitalReadoutSetValue(window, 1.0f);  // four characters
        (Object().*set)(AnyFont());
        DigitalReadoutSetValue(window, 1000000.0f);
        EXPECT_EQ(Model().DigitsHeight(), 44);
        (Object().*set)(nullptr);
        EXPECT_EQ(Model().DigitsHeight(), 44);
        DigitalReadoutSetValue(window, 1000000.0f);
        EXPECT_EQ(Model().DigitsHeight(), 24);
    }
}

TEST_F(DigitalReadoutTest, SuppliedFontIsOwnedUntilTheNextPaint) {
    const std::size_t before = LiveGdiObjects();
    const HFONT first = AnyFont(), second = AnyFont(), title = AnyFont(), painted = AnyFont(), units = AnyFont();
    Object().SetDigitsFont(first);
    Object().SetDigitsFont(first);
    EXPECT_TRUE(Exists(first));
    Object().SetDigitsFont(second);
    EXPECT_FALSE(Exists(first));
    Object().SetTitleFont(title);
    Object().SetUnitsFont(nullptr);
    EXPECT_FALSE(Exists(second) || Exists(title));
    Object().SetDigitsFont(painted);
    EXPECT_TRUE(Exists(painted));
    gauge.Repaint();
    EXPECT_FALSE(Exists(painted));
    DigitalReadoutSetValue(window, 1.0f);
    EXPECT_EQ(Model().DigitsHeight(), 34) << "the size stays fixed all the same";
    Object().SetUnitsFont(units);
    ::DestroyWindow(window);
    EXPECT_FALSE(Exists(units));
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
