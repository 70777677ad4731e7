#include <gtest/gtest.h>

#include <functional>

#include "tests/views/ListTestHelper.h"
#include "views/DoubleBufferedControl.h"

namespace corvex::test {
namespace {

using Pixels = std::vector<COLORREF>;

// The item list's control, watched from its page while it paints.
class DoubleBufferedControlTest : public ListTest {
protected:
    // A list of this many rows in a small window, painted.
    void ShowMany(int count) {
        for (int i = 0; i < count; ++i)
            AddRow(i % 3 == 2 ? static_cast<ADXObject*>(fan) : speed);
        Resize(300, 150);
        Show();
        Arrive({50, 1});
        Repaint();
        spy_.emplace(Page(1));
        spy_->SetHandler([this](UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
            const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
            if (message == WM_NOTIFY && header->code == static_cast<UINT>(NM_CUSTOMDRAW) && onDraw)
                onDraw(*reinterpret_cast<const NMCUSTOMDRAW*>(lParam));
            return std::nullopt;
        });
    }
    // As a sample has it done, and the paint that follows.
    void Repaint() {
        RepaintList();
        ::UpdateWindow(List());
    }
    // What is on the screen now.
    Pixels Picture() const { return TestBitmap(List()).Pixels(); }
    // What the control makes of itself when it is left alone.
    Pixels OwnPicture() const {
        WNDCLASSW windowClass{};
        ::GetClassInfoW(nullptr, L"SysListView32", &windowClass);
        const LONG_PTR procedure =
            ::SetWindowLongPtrW(List(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(windowClass.lpfnWndProc));
        ::RedrawWindow(List(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        const Pixels picture = Picture();
        ::SetWindowLongPtrW(List(), GWLP_WNDPROC, procedure);
        return picture;
    }

    std::function<void(const NMCUSTOMDRAW&)> onDraw;

private:
    std::optional<WindowSpy> spy_;
};

TEST_F(DoubleBufferedControlTest, TheOldRowsStandUntilTheNewOnesAreDrawn) {
    ShowMany(4);
    const Pixels before = Picture();
    int looks = 0, changes = 0;
    onDraw = [&](const NMCUSTOMDRAW& draw) {
        if (draw.dwDrawStage != CDDS_PREPAINT && draw.dwDrawStage != CDDS_ITEMPREPAINT) return;
        ++looks;
        if (Picture() != before) ++changes;
    };
    Arrive({75, 0});
    Repaint();
    EXPECT_EQ(5, looks) << "the list, and each row";
    EXPECT_EQ(0, changes) << "seen before all was drawn";
    onDraw = {};
    EXPECT_NE(before, Picture());
}

TEST_F(DoubleBufferedControlTest, TheControlLooksAsItDoesByItself) {
    speed->flags = ADXValue::kAlarmHigh;
    AddHeading("Engine", 1);
    ShowMany(3);
    for (const std::uint8_t byte : {std::uint8_t{50}, std::uint8_t{150}}) {
        Arrive({byte, 1});
        Repaint();
        const Pixels steady = Picture();
        EXPECT_EQ(OwnPicture(), steady) << int{byte};
    }
}

TEST_F(DoubleBufferedControlTest, NothingIsLeftOfWhatScrollsOrGoes) {
    ShowMany(60);
    const auto send = [this](UINT message, WPARAM wParam, LPARAM lParam = 0) {
        ::SendMessageA(List(), message, wParam, lParam);
        ::UpdateWindow(List());
        const Pixels steady = Picture();
        EXPECT_EQ(OwnPicture(), steady) << message << " " << wParam;
    };
    Resize(500, 300);
    send(WM_NULL, 0);
    send(LVM_ENSUREVISIBLE, 59);
    send(LVM_SCROLL, 40, -30);
    LVITEMA selection{};
    selection.stateMask = selection.state = LVIS_SELECTED | LVIS_FOCUSED;
    send(LVM_SETITEMSTATE, 30, L(&selection));
    send(LVM_DELETEITEM, 30);
    send(LVM_DELETEALLITEMS, 0);
}

TEST_F(DoubleBufferedControlTest, TheControlStaysTheWindowItWas) {
    ShowMany(1);
    EXPECT_TRUE(::IsWindowUnicode(List()));
    EXPECT_EQ(LVS_EX_FULLROWSELECT, ::SendMessageA(List(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    EXPECT_TRUE(ErasesNothing(List()));
}

}  // namespace
}  // namespace corvex::test
