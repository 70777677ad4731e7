#include "export/text/ObjectNames.h"

#include <array>

#include "export/text/TextFormat.h"
#include "files/adx/TextForms.h"

namespace corvex {

namespace {

constexpr std::array<NamedKind, 13> kKinds{{
    {kTypeSendCommand, "send command", "sendcommands", "ADXCSENDCOMMAND", true, true, false},
    {kType160BaudListen, "160-baud listen", "listens160baud", "ADXCLISTEN160BAUD", true, true, false},
    {kTypeListenSilence, "listen for silence", "listensilences", "ADXCLISTENSILENCE", true, false, false},
    {kTypeListenChatter, "listen for chatter", "listenchatters", "ADXCLISTENCHATTER", true, false, false},
    {kTypeTrigger, "trigger", "triggers", "ADXCTRIGGER", true, false, false},
    {kTypeMacro, "macro", "macros", "ADXMACRO", true, false, false},
    {kTypeValue, "value", "values", "ADXVALUE", false, false, true},
    {kTypeBitmask, "bitmask", "bitmasks", "ADXBITMASK", false, false, true},
    {kTypeLookupTable, "table", "tables", "ADXLOOKUPTABLE", false, false, true},
    {kTypeListView, "list view", "listviews", "ADXLISTVIEW", false, false, true},
    {kTypeDashboard, "dashboard", "dashboards", "ADXDASHBOARD", false, false, true},
    {kTypeHistogram, "histogram", "histograms", "ADXHISTOGRAM", false, false, true},
    {kTypeMonitor, "monitor", "monitors", "ADXMONITOR", false, false, true},
}};

}  // namespace

std::span<const NamedKind> NamedKinds() {
    return kKinds;
}

const NamedKind* KindOfType(std::uint32_t type) {
    for (const NamedKind& kind : kKinds) {
        if (kind.type == type) return &kind;
    }
    return nullptr;
}

const NamedKind* KindOfElement(std::string_view element) {
    for (const NamedKind& kind : kKinds) {
        if (SameName(kind.element, element)) return &kind;
    }
    return nullptr;
}

std::string NameOf(const ADXObject& object) {
    const NamedKind* kind = KindOfType(object.GetType());
    std::string name = kind != nullptr ? kind->noun : "object";
    if (*object.Title() != '\0') name += " \"" + DisplayText(object.Title()) + '"';
    if (*object.Id() != '\0') name += " (" + DisplayText(object.Id()) + ')';
    if (*object.Title() == '\0' && *object.Id() == '\0') name += " without title and id";
    return name;
}

std::string ShortNameOf(const ADXObject& object) {
    if (*object.Title() != '\0') return DisplayText(object.Title());
    if (*object.Id() != '\0') return DisplayText(object.Id());
    return HashText(object.GetIdHash());
}

}  // namespace corvex
