#include "files/adx/ObjectReader.h"

#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"

namespace corvex {
namespace {

std::unique_ptr<ADXObject> MakeMacro(const ADXElement& start) {
    auto macro = std::make_unique<ADXMacro>();
    ReadIdAndTitle(*macro, start);
    start.ReadDec("repeatcount", macro->repeatcount);
    start.ReadHex("flags", macro->flags);
    return macro;
}

}  // namespace

const std::array<ObjectKind, 13> kObjectKinds = {{
    {"ADXVALUE", MakeItem<ADXValue>, ReadValueChild},
    {"ADXBITMASK", MakeItem<ADXBitmask>, ReadBitmaskChild},
    {"ADXLOOKUPTABLE", MakeItem<ADXLookupTable>, ReadLookupTableChild},
    {"ADXLISTVIEW", MakeItem<ADXListView>, ReadListViewChild},
    {"ADXHISTOGRAM", MakeItem<ADXHistogram>, ReadHistogramChild},
    {"ADXDASHBOARD", MakeItem<ADXDashboard>, ReadDashboardChild},
    {"ADXMONITOR", MakeItem<ADXMonitor>, ReadMonitorChild},
    {"ADXCLISTENSILENCE", MakeCommand<ADXCListenSilence>, ReadListenSilenceChild},
    {"ADXCLISTENCHATTER", MakeCommandWithFlags<ADXCListenChatter>, ReadListenChatterChild},
    {"ADXCLISTEN160BAUD", MakeCommandWithFlags<ADXC160BaudListen>, Read160BaudListenChild},
    {"ADXCSENDCOMMAND", MakeCommandWithFlags<ADXCSendCommand>, ReadSendCommandChild},
    {"ADXCTRIGGER", MakeCommandWithFlags<ADXCTrigger>, ReadTriggerChild},
    {"ADXMACRO", MakeMacro, ReadMacroChild},
}};

void ReadIdAndTitle(ADXObject& object, const ADXElement& start) {
    const std::string_view id = start.Attribute("id");
    if (id.data() != nullptr) object.SetId(id.data());
    const std::string_view title = start.Attribute("title");
    if (title.data() != nullptr) object.SetTitle(title.data(), static_cast<std::uint32_t>(title.size()));
}

}  // namespace corvex
