#include "controls/chart3d/Chart3DWindowHost.h"

namespace corvex {

void Chart3DWindowHost::Tell(Chart3DCode code, QZChart3DPlot* plot, int row, int column) {
    Notify(code, Chart3DNotification{{}, plot, row, column});
}

std::optional<std::string> Chart3DWindowHost::LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot,
                                                      int row, int column) {
    if (callback == nullptr) return std::nullopt;
    return Label([&](char* text, int* capacity) {
        return callback(Window(), point.x, point.y, point.z, plot, row, column, kind, text, capacity);
    });
}

}  // namespace corvex
