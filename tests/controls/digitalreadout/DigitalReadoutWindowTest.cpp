#include "tests/controls/digitalreadout/DigitalReadoutFixture.h"

namespace corvex {
namespace {

using DigitalReadoutWindowTest = DigitalReadoutFixture;

HFONT AnyFont() {
    return MakeTestFont().Release();
}

bool Exists(HFONT font) {
    return ::GetObjectType(font) == OBJ_FONT;
}

TEST_F(DigitalReadoutWindowTest, SizeRepaintsAtOnceAndWhole) {
    gauge.Mark();
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(120, 90)), 0); }), 1);
    EXPECT_FALSE(gauge.HasMark());
}

TEST_F(DigitalReadoutWindowTest, SuppliedFontEndsTheAutomaticSizeUntilItIsTakenAway) {
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

TEST_F(DigitalReadoutWindowTest, SuppliedFontIsReplacedByTheNextPaint) {
    const HFONT font = AnyFont();
    Object().SetDigitsFont(font);
    EXPECT_TRUE(Exists(font));
    gauge.Repaint();
    EXPECT_FALSE(Exists(font));
    DigitalReadoutSetValue(window, 1.0f);
    EXPECT_EQ(Model().DigitsHeight(), 34);  // the size stays fixed all the same
}

TEST_F(DigitalReadoutWindowTest, SuppliedFontIsOwned) {
    const std::size_t before = LiveGdiObjects();
    const HFONT first = AnyFont(), second = AnyFont(), title = AnyFont();
    Object().SetDigitsFont(first);
    Object().SetDigitsFont(first);
    EXPECT_TRUE(Exists(first));
    Object().SetDigitsFont(second);
    EXPECT_FALSE(Exists(first));
    Object().SetTitleFont(title);
    Object().SetUnitsFont(nullptr);
    EXPECT_FALSE(Exists(second));
    EXPECT_FALSE(Exists(title));
    const HFONT units = AnyFont();
    Object().SetUnitsFont(units);
    ::DestroyWindow(window);
    EXPECT_FALSE(Exists(units));
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
