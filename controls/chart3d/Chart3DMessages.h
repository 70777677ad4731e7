// The messages of a 3-D chart's page, as calls on its behaviour.
#pragma once

#include "controls/chart3d/Chart3DMachine.h"
#include "controls/chart3d/Chart3DWindowHost.h"

namespace corvex {

// The result of one of CH3M_SETSTYLE to CH3M_GETSCALE but CH3M_SETTITLE, on the window's thread; 0 for numbers between
// them.
LRESULT AnswerChart3DMessage(Chart3DMachine& machine, Chart3DWindowHost& host, UINT message, WPARAM wParam,
                             LPARAM lParam);

}  // namespace corvex
