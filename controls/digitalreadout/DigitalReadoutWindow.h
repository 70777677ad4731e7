// The window of a digital readout.
#pragma once

#include "controls/digitalreadout/DigitalReadoutModel.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

class DigitalReadoutWindow final : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    DigitalReadoutModel& Model() { return model_; }
    void Redraw();  // at once

    // Owns the font until another one is set or the next paint makes its own in its place. A font ends the automatic
    // size of the digits, null begins it again and drops all three.
    void SetTitleFont(HFONT font) { Supply(titleFont_, font); }
    void SetDigitsFont(HFONT font) { Supply(digitsFont_, font); }
    void SetUnitsFont(HFONT font) { Supply(unitsFont_, font); }

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PaintOffscreen();
    void Supply(OwnedFont& place, HFONT font);
    void DropFonts();

    DigitalReadoutModel model_;
    OwnedFont titleFont_, digitsFont_, unitsFont_;
};

}  // namespace corvex
