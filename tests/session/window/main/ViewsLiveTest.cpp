#include <gtest/gtest.h>

#include "definition/ADXCTrigger.h"
#include "definition/ADXValue.h"
#include "tests/controls/window/PaintTestHelper.h"
#include "tests/session/window/main/ViewsHelper.h"

namespace corvex::test {
namespace {

class ViewsLiveTest : public ViewsTest {
protected:
    // The pixels of the list's value column, when all that was due has been painted.
    std::vector<COLORREF> Values() {
        EXPECT_TRUE(Pumps([&] { return ::GetUpdateRect(List(), nullptr, FALSE) == FALSE; }));
        return TestBitmap(List()).Pixels({0, 0, 100, 100});
    }
    void Trigger(std::uint32_t bits) {
        ADXCTrigger trigger;
        trigger.triggertype = bits;
        DataAcqStatus status;
        status.command = &trigger;
        WhilePumping([&] { session.callback.OnTrigger(&status); });
    }
    ADXValue* Find(const char* id) { return static_cast<ADXValue*>(session.definition.FindById(id)); }
    void SetWord(const char* id, std::uint8_t byte) {
        ADXValue& value = *Find(id);
        value.GetRaw(PacketView(&byte, 1), 0, kReadAtOffset);
    }
};

TEST_F(ViewsLiveTest, AScanMovesTheGaugesOnShow) {
    serial.Answer({0xA0}, {123, 45}, 5);
    StartShown();
    Select(kDashTab);
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return Needle(0) == 123; }));
    EXPECT_EQ(45.0F, Digits(1));
    EXPECT_EQ(0.0F, Digits(3)) << "of a command that never ran";
    ASSERT_TRUE(Pumps([&] { return session.connectionState == kConnected; }));
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet(); }));
}

TEST_F(ViewsLiveTest, GaugesOutOfSightAreLeftAlone) {
    serial.Answer({0xA0}, {123, 45}, 5);
    StartShown();
    Select(kListTab);
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return session.connectionState == kConnected; }));
    EXPECT_EQ(0, Needle(0));
    Select(kDashTab);
    ASSERT_TRUE(Pumps([&] { return Needle(0) == 123; }));
}

TEST_F(ViewsLiveTest, AScanShowsItsValuesInTheList) {
    serial.Answer({0xA0}, {123, 45}, 5);
    StartShown();
    Select(kListTab);
    const auto before = Values();
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return session.connectionState == kConnected; }));
    EXPECT_EQ("One", Cell(0, 2));
    EXPECT_EQ("123.00", Cell(1, 1));
    EXPECT_EQ("45.00", Cell(2, 1));
    EXPECT_EQ("0.00", Cell(3, 1)) << "of a command that never ran";
    EXPECT_EQ("on", Cell(4, 1));
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet(); }));
    EXPECT_NE(before, Values());
}

TEST_F(ViewsLiveTest, APlaybackMovesThemTheSameWay) {
    StartShown();
    Select(kDashTab);
    session.settings.SetLastLog(PutLog("some.xdl", {0, 10, 20, 30, 40, 50}));
    Command(IDM_PLAY);
    ASSERT_TRUE(Pumps([&] { return Needle(0) == 5; }));
    EXPECT_EQ(238.0F, Digits(1));
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ("5.00", Cell(1, 1));
}

TEST_F(ViewsLiveTest, ATriggerHasTheDashCatchUpWithoutAPacket) {
    StartShown();
    Select(kDashTab);
    SetWord("A", 77);
    SetWord("B", 88);
    Trigger(0x2 | 0x4 | 0x8);
    EXPECT_EQ(0, Needle(0));
    Trigger(0x10);
    EXPECT_EQ(77, Needle(0));
    EXPECT_EQ(0.0F, Digits(1)) << "of another command than the trigger";
    SetWord("A", 99);
    Select(kListTab);
    Trigger(0x10);
    EXPECT_EQ(77, Needle(0)) << "out of sight";
}

TEST_F(ViewsLiveTest, ATriggerHasTheListPaintedAgain) {
    StartShown();
    Select(kListTab);
    const auto before = Values();
    SetWord("C", 77);
    Trigger(0x2 | 0x8 | 0x10);
    EXPECT_EQ(before, Values());
    Trigger(0x4);
    EXPECT_NE(before, Values());
}

}  // namespace
}  // namespace corvex::test
