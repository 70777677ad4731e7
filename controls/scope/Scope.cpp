#include "controls/scope/Scope.h"

#include <optional>

#include "controls/chart/BoundedText.h"
#include "controls/gauge/GaugeWindow.h"
#include "controls/scope/ScopePaint.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

class ScopeWindow final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnScopeMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnFrameMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnDataMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnSize();
    void MakeFrame();
    void AddSample(const double* sample);
    void SetYRange(const double* maximum, const double* minimum);
    void SetStep(std::uint32_t step);
    void SetMessage(const char* text, bool paints);
    void Paint();
    void PaintLayers(HDC dc, const RECT& due);

    ScopeModel scope_;
    const ScopeFonts fonts_;
    OwnedBrush ground_{::CreateSolidBrush(scope_.backColour)};
    OwnedPen pen_{::CreatePen(PS_SOLID, 0, scope_.traceColour)};
    OffscreenBitmap frameLayer_, traceLayer_, offscreen_;
    HDC frame_ = nullptr;              // null for want of memory
    std::optional<ScopeTrace> trace_;  // on the trace layer, when there are both
    HDC traceDc_ = nullptr;
};

LRESULT ScopeWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
        case WM_SIZE:
            OnSize();
            return 0;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_CONTEXTMENU:
            return ForwardContextMenu(Window(), kScopeMenuCode, lParam);
        default:
            return OnScopeMessage(message, wParam, lParam);
    }
}

LRESULT ScopeWindow::OnScopeMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case SCM_ADDSAMPLE:
            AddSample(reinterpret_cast<const double*>(lParam));
            return 0;
        case SCM_SETYRANGE:
            SetYRange(reinterpret_cast<const double*>(wParam), reinterpret_cast<const double*>(lParam));
            return 0;
        case SCM_SETDECIMALS:
            scope_.SetDecimals(static_cast<std::int32_t>(lParam));
            return 0;
        case SCM_SETSTEP:
            SetStep(static_cast<std::uint32_t>(lParam));
            return 0;
        case SCM_GETSTEP:
            return static_cast<LRESULT>(scope_.Step());
        case SCM_GETVISIBLESAMPLES:
            return static_cast<LRESULT>(scope_.VisibleSamples());
        case SCM_SETUSERVALUE:
            scope_.userValue = static_cast<std::uint32_t>(lParam);
            return 0;
        case SCM_GETUSERVALUE:
            return static_cast<LRESULT>(scope_.userValue);
        case SCM_SETMESSAGE:
            SetMessage(reinterpret_cast<const char*>(lParam), wParam != 0);
            return 0;
        default:
            return OnDataMessage(message, wParam, lParam);
    }
}

LRESULT ScopeWindow::OnDataMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case SCM_SETDATA:
            scope_.data = reinterpret_cast<const std::uint8_t*>(wParam);
            scope_.dataSize = static_cast<std::size_t>(lParam);
            return 0;
        case SCM_GETDATA:
            return reinterpret_cast<LRESULT>(scope_.data);
        case SCM_SETSTART:
            scope_.start = static_cast<std::int32_t>(lParam);
            return 0;
        case SCM_SETSAMPLEWIDTH:
            scope_.sampleWidth = static_cast<std::uint8_t>(lParam);
            return 0;
        case SCM_SETLIVE:
            scope_.isLive = lParam != 0;
            return 0;
        default:
            return OnFrameMessage(message, wParam, lParam);
    }
}

// All that makes a new frame.
LRESULT ScopeWindow::OnFrameMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    bool isDue = true;
    switch (message) {
        case SCM_SETXLABEL:
            scope_.xLabel = BoundedText(reinterpret_cast<const char*>(lParam), ScopeModel::kLabelLength);
            break;
        case SCM_SETYLABEL:
            scope_.yLabel = BoundedText(reinterpret_cast<const char*>(lParam), ScopeModel::kLabelLength);
            break;
        case SCM_SETTEXTCOLOR:
            scope_.textColour = static_cast<std::uint32_t>(lParam);
            break;
        case SCM_SETTRACECOLOR:
            scope_.traceColour = static_cast<std::uint32_t>(lParam);
            pen_ = OwnedPen(::CreatePen(PS_SOLID, 0, scope_.traceColour));
            break;
        case SCM_SETBACKCOLOR:
            scope_.backColour = static_cast<std::uint32_t>(lParam);
            ground_ = OwnedBrush(::CreateSolidBrush(scope_.backColour));
            break;
        case SCM_SETMIDLINES:
            scope_.hasMidlines = wParam != 0;
            isDue = lParam != 0;
            break;
        case SCM_SETHEX:
            scope_.isHexadecimal = wParam != 0;
            isDue = lParam != 0;
            break;
        case SCM_REDRAW:
            break;
        default:
            return Default(message, wParam, lParam);
    }
    if (isDue) MakeFrame();
    return 0;
}

void ScopeWindow::OnSize() {
    RECT client{};
    ::GetClientRect(Window(), &client);
    scope_.SetClient(static_cast<int>(client.right), static_cast<int>(client.bottom));
    MakeFrame();
}

void ScopeWindow::MakeFrame() {
    const ScopeFrame frame = scope_.LayOut();
    const SIZE size{frame.client.right, frame.client.bottom};
    trace_.reset();  // before the layer that it is on
    const ClientDc screen(Window());
    frame_ = frameLayer_.Fit(screen.Get(), size, size);
    traceDc_ = traceLayer_.Fit(screen.Get(), size, size);
    if (frame_ != nullptr) PaintScopeFrame(frame_, frame, scope_, fonts_);
    if (traceDc_ != nullptr) {
        trace_.emplace(traceDc_, frame, ground_.Get());
        if (!scope_.isLive) trace_->Draw(scope_.StaticTrace(), pen_.Get());
    }
    ::InvalidateRect(Window(), nullptr, TRUE);
}

void ScopeWindow::AddSample(const double* sample) {
    if (sample == nullptr) return;
    const auto stroke = scope_.AddSample(*sample);
    if (!stroke || !trace_) return;
    trace_->Draw(*stroke, ground_.Get(), pen_.Get());
    ::InvalidateRect(Window(), nullptr, TRUE);
}

void ScopeWindow::SetYRange(const double* maximum, const double* minimum) {
    if (maximum == nullptr || minimum == nullptr) return;
    scope_.SetYRange(*maximum, *minimum);
    MakeFrame();
    for (const ScopeStroke& stroke : scope_.Replay()) {
        if (trace_) trace_->Draw(stroke, ground_.Get(), pen_.Get());
    }
}

void ScopeWindow::SetStep(std::uint32_t step) {
    scope_.SetStep(step);
    if (!scope_.isLive) MakeFrame();
}

void ScopeWindow::SetMessage(const char* text, bool paints) {
    scope_.message = BoundedText(text, ScopeModel::kMessageLength);
    if (paints) ::InvalidateRect(Window(), nullptr, TRUE);
}

void ScopeWindow::Paint() {
    const OffscreenPaint paint(Window(), offscreen_);
    if (frame_ == nullptr) {
        ::FillRect(paint.Dc(), &paint.Due(), ground_.Get());
    } else {
        PaintLayers(paint.Dc(), paint.Due());
    }
    PaintScopeMessage(paint.Dc(), scope_, fonts_);
}

// The trace over the frame: on black the one shows through the other.
void ScopeWindow::PaintLayers(HDC dc, const RECT& due) {
    const int width = due.right - due.left, height = due.bottom - due.top;
    ::BitBlt(dc, due.left, due.top, width, height, frame_, due.left, due.top, SRCCOPY);
    if (trace_) ::BitBlt(dc, due.left, due.top, width, height, traceDc_, due.left, due.top, SRCPAINT);
}

}  // namespace

bool Scope::Register(HINSTANCE instance) {
    ControlClass windowClass{};
    windowClass.name = kScopeClass;
    windowClass.background = SystemBackground(COLOR_WINDOW);
    return RegisterControl<ScopeWindow>(instance, windowClass);
}

}  // namespace corvex
