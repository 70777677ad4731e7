// What a 3-D chart's behaviour asks for, done with its window.
#pragma once

#include "controls/chart3d/Chart3D.h"
#include "controls/chart3d/Chart3DHost.h"

namespace corvex {

// On the window's thread.
class Chart3DWindowHost final : public IChart3DHost {
public:
    explicit Chart3DWindowHost(HWND window) : window_(window) {}

    // The window goes: nobody outside is called any more.
    void Close();

    void Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) override;
    void Repaint() override;
    void PaintSoon() override { ::InvalidateRect(window_, nullptr, TRUE); }
    void Capture() override { ::SetCapture(window_); }
    void Release() override;
    void HidePointer() override { ::ShowCursor(FALSE); }
    void ShowPointer() override { ::ShowCursor(TRUE); }
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot, int row,
                                       int column) override;

    Chart3DLabelCallback callback = nullptr;

private:
    const HWND window_;
    bool isClosed_ = false;
};

}  // namespace corvex
