#include "controls/textprogress/TextProgress.h"

#include <utility>

#include "controls/richstatic/FlashTextControl.h"
#include "controls/textprogress/TextProgressPaint.h"

namespace corvex {

namespace {

class TextProgressWindow final : public FlashTextControl {
public:
    using FlashTextControl::FlashTextControl;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    FlashTextModel& Label() override { return model_.label; }
    void Paint(HDC dc, const RECT& area) override { PaintTextProgress(dc, area, model_); }

    int BarLength() const;
    template <class Change>
    LRESULT MoveBar(Change change);
    LRESULT SetRange(std::int32_t minimum, std::int32_t maximum);
    LRESULT GetRange(WPARAM which, std::int32_t* pair) const;
    LRESULT GetRangePointers(std::int32_t* minimum, std::int32_t* maximum) const;
    LRESULT SetBarColour(std::uint32_t colour);
    LRESULT SetVertical(bool vertical);

    TextProgressModel model_;
};

LRESULT TextProgressWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto word = static_cast<std::int32_t>(wParam);
    const auto longWord = static_cast<std::int32_t>(lParam);
    switch (message) {
        case TPM_SETRANGEWORDS:
            return SetRange(LOWORD(lParam), HIWORD(lParam));
        case TPM_SETPOS:
            return MoveBar([&] { return std::exchange(model_.position, word); });
        case TPM_SETSTEP:
            return std::exchange(model_.step, word);
        case TPM_STEPIT:
            return MoveBar([&] { return model_.StepIt(); });
        case TPM_SETRANGE:
            return SetRange(word, longWord);
        case TPM_GETRANGE:
            return GetRange(wParam, reinterpret_cast<std::int32_t*>(lParam));
        case TPM_GETPOS:
            return model_.position;
        case TPM_SETBARCOLOR:
            return SetBarColour(static_cast<std::uint32_t>(longWord));
        case TPM_SETTEXTCOLOR:
            return ChangeTextColour(lParam);
        case TPM_SETVERTICAL:
            return SetVertical(lParam != 0);
        case TPM_GETVERTICAL:
            return model_.vertical ? 1 : 0;
        case TPM_GETRANGEPTRS:
            return GetRangePointers(reinterpret_cast<std::int32_t*>(wParam), reinterpret_cast<std::int32_t*>(lParam));
        case TPM_SETBACKCOLOR:
            return ChangeBackColour(lParam);
        default:
            return FlashTextControl::OnMessage(message, wParam, lParam);
    }
}

int TextProgressWindow::BarLength() const {
    RECT area{};
    ::GetClientRect(Window(), &area);
    return model_.Length(model_.vertical ? area.bottom : area.right);
}

// At once, because a loader that keeps the thread busy shows how far it is; and only when the bar has moved by a pixel,
// because it tells so thousands of times.
template <class Change>
LRESULT TextProgressWindow::MoveBar(Change change) {
    const int before = BarLength();
    const LRESULT result = change();
    if (BarLength() != before) Redraw();
    return result;
}

LRESULT TextProgressWindow::SetRange(std::int32_t minimum, std::int32_t maximum) {
    return MoveBar([&] {
        model_.minimum = minimum;
        model_.maximum = maximum;
        return 0;
    });
}

LRESULT TextProgressWindow::GetRange(WPARAM which, std::int32_t* pair) const {
    if (pair != nullptr) {
        pair[0] = model_.minimum;
        pair[1] = model_.maximum;
    }
    if (which > 1) return 0;
    return which == 1 ? model_.minimum : model_.maximum;
}

LRESULT TextProgressWindow::GetRangePointers(std::int32_t* minimum, std::int32_t* maximum) const {
    if (minimum != nullptr) *minimum = model_.minimum;
    if (maximum != nullptr) *maximum = model_.maximum;
    return 0;
}

LRESULT TextProgressWindow::SetBarColour(std::uint32_t colour) {
    RedrawWithNext();
    return static_cast<std::int32_t>(std::exchange(model_.barColour, colour));
}

LRESULT TextProgressWindow::SetVertical(bool vertical) {
    model_.vertical = vertical;
    RedrawWithNext();
    return 0;
}

}  // namespace

bool TextProgress::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kTextProgressClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    return RegisterControl<TextProgressWindow>(instance, windowClass);
}

void TextProgress::setAll(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour) {
    FlashTextControl::SendAll(window, TPM_SETTEXTCOLOR, TPM_SETBACKCOLOR, text, textColour, backColour);
}

void TextProgress::flash(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour,
                         std::uint32_t milliseconds) {
    CallOnOwner<TextProgressWindow>(
        window, [&](TextProgressWindow& control) { control.Flash(text, textColour, backColour, milliseconds); });
}

}  // namespace corvex
