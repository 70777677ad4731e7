#include <gtest/gtest.h>

#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr char kClass[] = "CorvexPaintProbe";

class PaintProbe : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    COLORREF colour = 0;
    COLORREF onScreenBeforeTheCopy = 0, textColour = 0;
    RECT area{};
    int paints = 0;
    bool keeps = false;
    HDC context = nullptr;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ERASEBKGND) return 1;
        if (message != WM_PAINT) return Default(message, wParam, lParam);
        if (!keeps) return Paint(OffscreenPaint(Window()));
        return Paint(OffscreenPaint(Window(), kept_));
    }
    LRESULT Paint(const OffscreenPaint& paint) {
        area = paint.Area();
        context = paint.Dc();
        textColour = ::SetTextColor(context, colour);
        const OwnedBrush brush(::CreateSolidBrush(colour));
        ::FillRect(paint.Dc(), &area, brush.Get());
        onScreenBeforeTheCopy = PixelOf(Window(), 1, 1);
        ++paints;
        return 0;
    }

    OffscreenBitmap kept_;
};

class OffscreenPaintTest : public ::testing::Test {
protected:
    OffscreenPaintTest() {
        ControlClass windowClass{};
        windowClass.name = kClass;
        const HINSTANCE instance = ::GetModuleHandleA(nullptr);
        RegisterControl<PaintProbe>(instance, windowClass);
        window_ = ::CreateWindowExA(0, kClass, "", WS_POPUP | WS_VISIBLE, 20, 20, 40, 30, nullptr, nullptr, instance,
                                    nullptr);
        probe_ = ControlOf<PaintProbe>(window_);
    }
    ~OffscreenPaintTest() override { ::DestroyWindow(window_); }

    void Repaint(COLORREF colour) {
        probe_->colour = colour;
        ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }

    HWND window_ = nullptr;
    PaintProbe* probe_ = nullptr;
};

TEST_F(OffscreenPaintTest, CopiesTheWholeClientInOneStepAtTheEnd) {
    Repaint(0x0000FF);
    Repaint(0x00FF00);
    EXPECT_EQ(probe_->onScreenBeforeTheCopy, 0x0000FFu);
    EXPECT_EQ(ColoursOf(window_), Colours{0x00FF00u});
    EXPECT_EQ(probe_->area.right, 40);
    EXPECT_EQ(probe_->area.bottom, 30);
    EXPECT_FALSE(::GetUpdateRect(window_, nullptr, FALSE)) << "nothing is left to paint";
}

TEST_F(OffscreenPaintTest, KeptBitmapLastsUntilTheSizeChanges) {
    probe_->keeps = true;
    Repaint(0x0000FF);
    const HGDIOBJ first = ::GetCurrentObject(probe_->context, OBJ_BITMAP);
    Repaint(0x00FF00);
    EXPECT_EQ(::GetCurrentObject(probe_->context, OBJ_BITMAP), first);
    EXPECT_EQ(probe_->textColour, 0u) << "what the last paint set is put back";
    EXPECT_EQ(ColoursOf(window_), Colours{0x00FF00u});
    for (const int width : {60, 30}) {
        ::SetWindowPos(window_, nullptr, 0, 0, width, 30, SWP_NOMOVE | SWP_NOZORDER);
        Repaint(0xFF0000);
        BITMAP bitmap{};
        ::GetObjectA(::GetCurrentObject(probe_->context, OBJ_BITMAP), sizeof bitmap, &bitmap);
        EXPECT_EQ(bitmap.bmWidth, width);
        EXPECT_EQ(ColoursOf(window_), Colours{0xFF0000u});
    }
}

// A bitmap of its size would take four gigabytes.
TEST_F(OffscreenPaintTest, PaintsWhatIsSeenOfAWindowFarLargerThanItsParent) {
    const HWND child = ::CreateWindowExA(0, kClass, "", WS_CHILD | WS_VISIBLE, 10, 10, 32767, 32767, window_, nullptr,
                                         ::GetModuleHandleA(nullptr), nullptr);
    PaintProbe& probe = *ControlOf<PaintProbe>(child);
    probe.colour = 0x00FF00;
    ::RedrawWindow(child, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(probe.area.right, 32767);
    EXPECT_EQ(PixelOf(child, 0, 0), 0x00FF00u);
    EXPECT_EQ(PixelOf(child, 29, 19), 0x00FF00u);
}

TEST_F(OffscreenPaintTest, PaintsWhatIsDueAndLeavesTheRest) {
    Repaint(0x0000FF);
    probe_->colour = 0x00FF00;
    const RECT due{10, 10, 20, 20};
    ::RedrawWindow(window_, &due, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(PixelOf(window_, 10, 10), 0x00FF00u);
    EXPECT_EQ(PixelOf(window_, 19, 19), 0x00FF00u);
    EXPECT_EQ(PixelOf(window_, 9, 10), 0x0000FFu);
    EXPECT_EQ(PixelOf(window_, 20, 19), 0x0000FFu);
}

TEST_F(OffscreenPaintTest, PaintsAWindowThatHasNoArea) {
    ::SetWindowPos(window_, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    const int paints = probe_->paints;
    ::SendMessageA(window_, WM_PAINT, 0, 0);
    EXPECT_EQ(probe_->paints, paints + 1);
    EXPECT_TRUE(::IsRectEmpty(&probe_->area));
}

}  // namespace
}  // namespace corvex
