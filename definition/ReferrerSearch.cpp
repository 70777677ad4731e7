#include "definition/ReferrerSearch.h"

#include "definition/ADXDashboard.h"
#include "definition/ADXListView.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"

namespace corvex {
namespace {

bool MacroRefersTo(const ADXMacro& macro, const ADXObject& target) {
    for (const ADXMacroNode& node : macro.Nodes()) {
        if (node.command == &target) return true;
    }
    return false;
}

bool ListRefersTo(const ADXListView& list, const ADXObject& target) {
    for (std::uint32_t i = 0; i < list.GetEntryCount(); ++i) {
        const ADXLVENTRY& entry = *list.GetEntry(i);
        if (entry.entrytype != ADXLVENTRY::kHeadingRow && entry.item == &target) return true;
    }
    return false;
}

bool ValueRefersTo(const ADXValue& value, const ADXObject& target) {
    for (const ADXVar& var : value.Vars()) {
        if (var.linkidhash != 0 && var.linkidhash == target.GetIdHash()) return true;
    }
    return false;
}

bool DashboardRefersTo(const ADXDashboard& dashboard, const ADXObject& target) {
    for (std::uint32_t i = 0; i < dashboard.GetEntryCount(); ++i) {
        if (dashboard.GetEntry(i)->item == &target) return true;
    }
    return false;
}

}  // namespace

bool RefersTo(const ADXObject& object, const ADXObject& target) {
    if (const auto* macro = As<ADXMacro>(&object)) return MacroRefersTo(*macro, target);
    if (const auto* list = As<ADXListView>(&object)) return ListRefersTo(*list, target);
    if (const auto* value = As<ADXValue>(&object)) return ValueRefersTo(*value, target);
    const auto* dashboard = As<ADXDashboard>(&object);
    return dashboard != nullptr && DashboardRefersTo(*dashboard, target);
}

}  // namespace corvex
