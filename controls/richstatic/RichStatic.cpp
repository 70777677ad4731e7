#include "controls/richstatic/RichStatic.h"

#include "controls/richstatic/FlashTextControl.h"
#include "controls/richstatic/RichStaticPaint.h"

namespace corvex {

namespace {

class RichStaticWindow final : public FlashTextControl {
public:
    using FlashTextControl::FlashTextControl;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case RSM_SETBACKCOLOR:
                return ChangeBackColour(lParam);
            case RSM_SETTEXTCOLOR:
                return ChangeTextColour(lParam);
            default:
                return FlashTextControl::OnMessage(message, wParam, lParam);
        }
    }
    FlashTextModel& Label() override { return model_.label; }
    void Paint(HDC dc, const RECT& area) override { PaintRichStatic(dc, area, model_); }

    RichStaticModel model_;
};

}  // namespace

bool RichStatic::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kRichStaticClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    return RegisterControl<RichStaticWindow>(instance, windowClass);
}

void RichStatic::setAll(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour) {
    FlashTextControl::SendAll(window, RSM_SETTEXTCOLOR, RSM_SETBACKCOLOR, text, textColour, backColour);
}

void RichStatic::flash(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour,
                       std::uint32_t milliseconds) {
    CallOnOwner<RichStaticWindow>(
        window, [&](RichStaticWindow& control) { control.Flash(text, textColour, backColour, milliseconds); });
}

}  // namespace corvex
