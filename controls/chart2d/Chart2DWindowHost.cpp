#include "controls/chart2d/Chart2DWindowHost.h"

namespace corvex {

void Chart2DWindowHost::Tell(Chart2DCode code, QZChart2DSeries* series, int index) {
    Notify(code, Chart2DNotification{{}, series, index});
}

void Chart2DWindowHost::PlacePointer(YUpPoint place) {
    RECT client{};
    ::GetClientRect(Window(), &client);
    POINT point{place.x, client.bottom - place.y};
    if (::PtInRect(&client, point) == FALSE) return;
    ::ClientToScreen(Window(), &point);
    ::SetCursorPos(point.x, point.y);
}

std::optional<std::string> Chart2DWindowHost::LabelOf(ChartLabelKind kind, const Point2D& point,
                                                      QZChart2DSeries* series, int index) {
    if (callback == nullptr) return std::nullopt;
    return Label([&](char* text, int* capacity) {
        return callback(Window(), point.x, point.y, series, index, kind, text, capacity);
    });
}

}  // namespace corvex
