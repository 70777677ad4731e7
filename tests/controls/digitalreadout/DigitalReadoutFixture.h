#pragma once

#include <gtest/gtest.h>

#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/digitalreadout/DigitalReadoutWindow.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {

// A readout on show, of 120 by 90 pixels.
class DigitalReadoutFixture : public ::testing::Test {
protected:
    DigitalReadoutFixture() : window(gauge.Window()) {}

    DigitalReadoutModel& Model() const { return Object().Model(); }
    DigitalReadoutWindow& Object() const { return *ControlOf<DigitalReadoutWindow>(window); }

    const bool registered = DigitalReadout::Register(::GetModuleHandleA(nullptr));
    ShownControl gauge{"QZDIGITALGAUGEREADOUT", 120, 90};
    const HWND window;
};

}  // namespace corvex
