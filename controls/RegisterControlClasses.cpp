#include "controls/RegisterControlClasses.h"

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/chart2d/Chart2D.h"
#include "controls/chart3d/Chart3D.h"
#include "controls/datachart/DataChart.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/grid/Grid.h"
#include "controls/proptree/PropTreeContainer.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/scope/Scope.h"
#include "controls/statusgauge/StatusGauge.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/textprogress/TextProgress.h"

namespace corvex {

bool RegisterControlClasses(HINSTANCE instance) {
    return TextProgress::Register(instance) && RichStatic::Register(instance) && TabSheet::Register(instance) &&
           PropTreeContainer::Register(instance) && AnalogGauge::Register(instance) &&
           DigitalReadout::Register(instance) && StatusGauge::Register(instance) && DataChart::Register(instance) &&
           Grid::Register(instance) && Chart2D::Register(instance) && Chart3D::Register(instance) &&
           Scope::Register(instance);
}

}  // namespace corvex
