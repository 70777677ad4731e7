// A dial on show, and the model that should be behind it.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/analoggauge/AnalogGaugePaint.h"
#include "tests/controls/gauge/ShownGauge.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {

template <class Pointer>
WPARAM W(Pointer* pointer) {
    return reinterpret_cast<WPARAM>(pointer);
}

template <class Pointer>
LPARAM L(Pointer* pointer) {
    return reinterpret_cast<LPARAM>(pointer);
}

// Messages go by their numbers here: whoever sends them may have been built apart.
class AnalogGaugeFixture : public ::testing::Test {
protected:
    static constexpr int kSide = 180;

    AnalogGaugeFixture() {
        AnalogGauge::Register(::GetModuleHandleA(nullptr));
        gauge_ = std::make_unique<ShownGauge>("QZANALOGGAUGE", kSide, kSide, 0x12345);
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return gauge_->Send(message, wParam, lParam);
    }
    LRESULT SetValue(float value, LPARAM redraw = 0) const { return Send(1532, W(&value), redraw); }
    void Repaint() const { ::RedrawWindow(gauge_->Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

    // Whether the window shows, pixel for pixel, what the paint makes of the model that should be behind it.
    bool ShowsModel(int width = kSide, int height = kSide) const {
        const TestBitmap expected(width, height, 0x123456);
        PaintAnalogGauge(expected.Dc(), RECT{0, 0, width, height}, model_);
        const ClientDc shown(gauge_->Window());
        const MemoryDc copy(shown.Get());
        const OwnedBitmap bitmap(::CreateCompatibleBitmap(shown.Get(), width, height));
        const SelectGuard selected(copy.Get(), bitmap.Get());
        ::BitBlt(copy.Get(), 0, 0, width, height, shown.Get(), 0, 0, SRCCOPY);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (::GetPixel(copy.Get(), x, y) != expected.At(x, y)) return false;
            }
        }
        return true;
    }
    bool ShowsModelWhenPainted() const {
        Repaint();
        return ShowsModel();
    }

    std::unique_ptr<ShownGauge> gauge_;
    AnalogGaugeModel model_;
};

}  // namespace corvex
