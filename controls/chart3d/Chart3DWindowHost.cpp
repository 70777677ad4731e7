#include "controls/chart3d/Chart3DWindowHost.h"

#include "controls/chart/BoundedText.h"
#include "controls/gauge/GaugeWindow.h"

namespace corvex {

void Chart3DWindowHost::Close() {
    isClosed_ = true;
    callback = nullptr;
}

void Chart3DWindowHost::Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) {
    if (isClosed_) return;
    const auto id = static_cast<UINT_PTR>(::GetDlgCtrlID(window_));
    Chart3DNotification notification{{window_, id, code}, plot, row, column};
    ::SendMessageA(::GetParent(window_), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&notification));
}

void Chart3DWindowHost::Repaint() {
    RepaintGauge(window_);
}

void Chart3DWindowHost::Release() {
    if (::GetCapture() == window_) ::ReleaseCapture();
}

std::optional<std::string> Chart3DWindowHost::LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot,
                                                      int row, int column) {
    if (callback == nullptr) return std::nullopt;
    char text[TickList::kLabelLength + 1] = {};
    int capacity = TickList::kLabelLength;
    if (callback(window_, point.x, point.y, point.z, plot, row, column, kind, text, &capacity) == 0)
        return std::nullopt;
    return std::string(BoundedText(text, TickList::kLabelLength));
}

}  // namespace corvex
