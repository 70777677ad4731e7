// What the behaviour of any chart with points asks for, done with its window.
#pragma once

#include <optional>
#include <string>

#include "controls/chart/BoundedText.h"
#include "controls/chart/TickList.h"
#include "controls/gauge/GaugeWindow.h"

namespace corvex {

// `Host` is an IChartHost. On the window's thread.
template <class Host>
class ChartWindowHost : public Host {
public:
    explicit ChartWindowHost(HWND window) : window_(window) {}

    // The window goes: nobody outside is called any more.
    void Close() { isClosed_ = true; }

    void Repaint() override { RepaintGauge(window_); }
    void PaintSoon() override { ::InvalidateRect(window_, nullptr, TRUE); }
    void Capture() override { ::SetCapture(window_); }
    void Release() override {
        if (::GetCapture() == window_) ::ReleaseCapture();
    }
    void HidePointer() override { ::ShowCursor(FALSE); }
    void ShowPointer() override { ::ShowCursor(TRUE); }

protected:
    HWND Window() const { return window_; }
    // Sends the parent a WM_NOTIFY, whose block begins with a header that is filled here.
    template <class Block>
    void Notify(UINT code, Block block) const {
        if (isClosed_) return;
        const auto id = static_cast<UINT_PTR>(::GetDlgCtrlID(window_));
        block.header = {window_, id, code};
        ::SendMessageA(::GetParent(window_), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&block));
    }
    // What the page's callback writes when ask(text, &capacity) calls it; nothing when that gives 0.
    template <class Ask>
    std::optional<std::string> Label(const Ask& ask) const {
        if (isClosed_) return std::nullopt;
        char text[TickList::kLabelLength + 1] = {};
        int capacity = TickList::kLabelLength;
        if (ask(text, &capacity) == 0) return std::nullopt;
        return std::string(BoundedText(text, TickList::kLabelLength));
    }

private:
    const HWND window_;
    bool isClosed_ = false;
};

}  // namespace corvex
