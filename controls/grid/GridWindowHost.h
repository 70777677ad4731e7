// What a grid's behaviour asks for, done with its window.
#pragma once

#include "controls/grid/GridFonts.h"

namespace corvex {

// On the window's thread.
class GridWindowHost final : public IGridHost {
public:
    explicit GridWindowHost(HWND window) : window_(window) {}

    // What each shape of the pointer looks like; again whenever the system asks.
    void ShowPointer() const;
    // Owns the font from now on, and repaints. Null is ignored.
    void Adopt(GridFont role, HFONT font);

    void Tell(std::uint32_t code, std::uint32_t value) override;
    void Repaint() override;
    void PaintSoon(const GridBox& part) override;
    void PaintNow(const GridBox& part) override;
    GridTextSize Measure(GridFont font, std::string_view line) override;
    bool HasFocus() override { return ::GetFocus() == window_; }
    void TakeFocus() override { ::SetFocus(window_); }
    void PassFocusToParent() override { ::SetFocus(::GetParent(window_)); }
    void MakeCaret() override;
    void DropCaret() override;
    void ShowCaretAt(int x, int y) override;
    void HideCaret() override;
    int CaretHeight() override { return caretHeight_; }
    void Beep() override { ::MessageBeep(0); }
    void Capture() override { ::SetCapture(window_); }
    void Release() override;
    void StartTimer() override;
    void StopTimer() override;
    void SetPointer(GridPointer pointer) override;
    void ShowBar(bool isVertical, bool isShown) override;
    int BarThickness(bool isVertical) override { return ::GetSystemMetrics(isVertical ? SM_CXVSCROLL : SM_CYHSCROLL); }
    void SetBar(bool isVertical, int maximum, int position) override;
    void SizeAnew() override;
    void PutOnClipboard(const std::string& text) override;
    std::optional<std::string> TextOfClipboard() override;

    GridFonts fonts;
    WORD controlId = 0;

private:
    const HWND window_;
    GridPointer pointer_ = GridPointer::kArrow;
    UINT_PTR timer_ = 0;
    int caretHeight_ = 0;
    bool hasCaret_ = false, isCaretShown_ = false;
};

}  // namespace corvex
