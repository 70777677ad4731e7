#pragma once

#include <gtest/gtest.h>

#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/digitalreadout/DigitalReadoutWindow.h"
#include "tests/controls/gauge/ShownGauge.h"

namespace corvex {

// A readout on show, of 120 by 90 pixels and with the control id 0x12345.
class DigitalReadoutFixture : public ::testing::Test {
protected:
    DigitalReadoutFixture() : window(gauge.Window()) {}

    DigitalReadoutModel& Model() const { return ControlOf<DigitalReadoutWindow>(window)->Model(); }
    DigitalReadoutWindow& Object() const { return *ControlOf<DigitalReadoutWindow>(window); }

    const bool registered = DigitalReadout::Register(::GetModuleHandleA(nullptr));
    ShownGauge gauge{"QZDIGITALGAUGEREADOUT", 120, 90, 0x12345};
    const HWND window;
};

}  // namespace corvex
