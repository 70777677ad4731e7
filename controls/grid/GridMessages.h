// The messages of a grid's page, as calls on its behaviour.
#pragma once

#include "controls/grid/GridMachine.h"
#include "controls/grid/GridWindowHost.h"

namespace corvex {

// The result of one of GRM_SETSTYLE to GRM_GETCELLRECT, on the window's thread.
LRESULT AnswerGridMessage(GridMachine& machine, GridWindowHost& host, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace corvex
