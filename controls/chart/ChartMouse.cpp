#include "controls/chart/ChartMouse.h"

#include <utility>

namespace corvex {

void ChartMouse::OnDown(YUpPoint place, ChartModifiers held) {
    EndGesture();
    const std::uint32_t own = gestures_;
    gesture_ = {
        .isDown = true, .isBanding = HasBand(), .hidesPointer = gesture_.hidesPointer, .start = place, .last = place};
    hand_.held = held;
    host_.Capture();
    Pick(place, held.control, own);
}

void ChartMouse::OnDoubleClick(YUpPoint place, ChartModifiers held) {
    ClearSelection();
    OnDown(place, held);
}

// The system tells of moves that are none, and a band as small as that would take back what the click has selected.
void ChartMouse::OnMove(YUpPoint place) {
    if (!gesture_.isDown || place == gesture_.last) return;
    const YUpPoint last = std::exchange(gesture_.last, place);
    const int across = place.x - last.x, up = place.y - last.y;
    if (hand_.held.control || hand_.held.shift) {
        MoveHeld(across, up);
    } else if (gesture_.isDragging) {
        HidePointer();
        Drag(across, up);
    } else if (gesture_.isBanding) {
        hand_.band = YUpBox{gesture_.start, place};
        SelectIn(*hand_.band);
        host_.Repaint();
    }
}

void ChartMouse::HidePointer() {
    if (!std::exchange(gesture_.hidesPointer, true)) host_.HidePointer();
}

// The parent is told when the mouse is everybody's again, as it may show a box.
void ChartMouse::End(bool isReleased) {
    ++gestures_;
    const Gesture ended = std::exchange(gesture_, {});
    hand_.band.reset();
    if (ended.hidesPointer) host_.ShowPointer();
    host_.Release();
    if (ended.isDragging) DragHasEnded(isReleased && ended.hidesPointer);
    if (ended.isBanding) host_.Repaint();
}

}  // namespace corvex
