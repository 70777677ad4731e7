#include "controls/RegisterControlClasses.h"

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/proptree/PropTreeContainer.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/textprogress/TextProgress.h"

namespace corvex {

bool RegisterControlClasses(HINSTANCE instance) {
    return TextProgress::Register(instance) && RichStatic::Register(instance) && TabSheet::Register(instance) &&
           PropTreeContainer::Register(instance) && AnalogGauge::Register(instance);
}

}  // namespace corvex
