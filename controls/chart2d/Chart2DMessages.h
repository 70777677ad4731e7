// The messages of a 2-D chart's page, as calls on its behaviour.
#pragma once

#include "controls/chart2d/Chart2DMachine.h"
#include "controls/chart2d/Chart2DWindowHost.h"

namespace corvex {

// The result of one of CH2M_SETSTYLE to CH2M_GETSUBTITLE but CH2M_SETTITLE, on the window's thread; 0 for numbers
// between them.
LRESULT AnswerChart2DMessage(Chart2DMachine& machine, Chart2DWindowHost& host, UINT message, WPARAM wParam,
                             LPARAM lParam);

}  // namespace corvex
