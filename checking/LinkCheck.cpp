#include <string>

#include "checking/CheckContext.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

constexpr const char* kNoParent = "no reply ever carries it";

void CheckValueLinks(CheckContext& context, const ADXValue& value) {
    context.RequireLink(value, "parentcmdidhash", value.parentcmdidhash, kPacketTypes, kNoParent);
    context.RequireLink(value, "lookupidhash", value.lookupidhash, kTypeLookupTable,
                        "the value is shown without a table, and the link vanishes at the next save");
    for (const ADXVar& var : value.Vars()) {
        if (!var.IsLink()) continue;
        const std::string name = Printf("linkIDHash of %c", var.varid);
        if (var.linkidhash == 0)
            context.Error(&value, "unresolved-link",
                          Printf("the letter %c is a link to nothing; it reads as the letter before it", var.varid));
        context.RequireLink(value, name.c_str(), var.linkidhash, kTypeValue,
                            "the letter reads as the one before it, or 0");
    }
}

void CheckHistogramLinks(CheckContext& context, const ADXHistogram& histogram) {
    constexpr const char* effect = "the histogram stays empty, and the link vanishes at the next save";
    context.RequireLink(histogram, "parentcmdidhash", histogram.parentcmdidhash, kCommandTypes, kNoParent);
    context.RequireLink(histogram, "xidhash", histogram.xidhash, kTypeValue, effect);
    context.RequireLink(histogram, "yidhash", histogram.yidhash, kTypeValue, effect);
    context.RequireLink(histogram, "zidhash", histogram.zidhash, kTypeValue, effect);
    if (histogram.GetX() == nullptr || histogram.GetY() == nullptr || histogram.GetZ() == nullptr)
        context.Warn(&histogram, "no-axis", "has not all of x, y and z: it records nothing");
}

void CheckListLinks(CheckContext& context, const ADXListView& view) {
    for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i) {
        const ADXLVENTRY& entry = *view.GetEntry(i);
        if (!entry.IsItem()) continue;
        const std::string name = Printf("itemidhash of row %u", i + 1);
        context.RequireLink(view, name.c_str(), entry.itemidhash, kItemTypes, "the row shows nothing");
        if (entry.itemidhash == 0) context.Warn(&view, "empty-row", Printf("row %u names no item", i + 1));
    }
}

void CheckDashLinks(CheckContext& context, const ADXDashboard& dash) {
    for (std::uint32_t i = 0; i < dash.GetEntryCount(); ++i) {
        const std::string name = Printf("itemidhash of gauge %u", i + 1);
        context.RequireLink(dash, name.c_str(), dash.GetEntry(i)->itemidhash, kItemTypes,
                            "the gauge shows nothing, and an unresolved link vanishes at the next save");
    }
}

void CheckMonitorLinks(CheckContext& context, const ADXMonitor& monitor) {
    constexpr const char* effect = "a chart traces values only";
    // The loader has taken unresolved series out already; only the file still knows them.
    if (const SourcePart* source = context.SourceOf(monitor)) {
        unsigned series = 0;
        for (const SourceElement& child : source->children) {
            if (!child.Is("ADXMONSERIES")) continue;
            ++series;
            const std::uint32_t hash = HexText(child.Attribute("itemidhash"));
            if (context.Find(hash) != nullptr) continue;
            context.Error(&monitor, "unresolved-link",
                          Printf("itemidhash %s of series %u names no object of this definition; the series is removed",
                                 HashText(hash).c_str(), series));
        }
    }
    for (std::uint32_t i = 0; i < monitor.GetEntryCount(); ++i) {
        const std::string name = Printf("itemidhash of series %u", i + 1);
        context.RequireLink(monitor, name.c_str(), monitor.GetEntry(i)->itemidhash, kItemTypes, effect);
    }
}

void CheckMacroLinks(CheckContext& context, const ADXMacro& macro) {
    std::uint32_t number = 0;
    for (const ADXMacroNode& node : macro.Nodes()) {
        ++number;
        if (node.command == nullptr) {
            context.Error(
                &macro, "unresolved-link",
                Printf("commandID \"%s\" of node %u: %s; the node is passed over and vanishes at the next save",
                       DisplayText(node.commandid).c_str(), number, WhyIdNotFound(context, node.commandid).c_str()));
        } else if (!node.command->IsOneOf(kCommandTypes)) {
            context.Error(&macro, "wrong-link",
                          Printf("node %u names the %s, which is no command", number, NameOf(*node.command).c_str()));
        }
    }
}

}  // namespace

void CheckLinks(CheckContext& context, const ADXObject& object) {
    if (const auto* value = As<ADXValue>(&object)) return CheckValueLinks(context, *value);
    if (const auto* histogram = As<ADXHistogram>(&object)) return CheckHistogramLinks(context, *histogram);
    if (const auto* view = As<ADXListView>(&object)) return CheckListLinks(context, *view);
    if (const auto* dash = As<ADXDashboard>(&object)) return CheckDashLinks(context, *dash);
    if (const auto* monitor = As<ADXMonitor>(&object)) return CheckMonitorLinks(context, *monitor);
    if (const auto* macro = As<ADXMacro>(&object)) return CheckMacroLinks(context, *macro);
    if (const auto* bit = As<ADXBitmask>(&object))
        context.RequireLink(object, "parentcmdidhash", bit->parentcmdidhash, kPacketTypes, kNoParent);
}

}  // namespace corvex
