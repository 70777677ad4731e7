#include "checking/CheckContext.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXMonitor.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// What a view of `count` entries made of the rows in the file. Unresolved series of a monitor are told as links.
void CheckEntryRows(CheckContext& context, const ADXObject& view, std::uint32_t count) {
    const SourcePart* source = context.SourceOf(view);
    if (source == nullptr) return;
    const std::uint32_t rows = source->Rows();
    if (view.GetType() == kTypeListView) {
        const std::uint32_t early = source->CountBefore("ADXLVENTRY", "entrycount");
        const SourceElement* size = source->Last("entrycount");
        const std::uint32_t entrycount = size == nullptr ? 0 : DecimalWord(size->text);
        if (early != 0)
            context.Error(&view, "row-order",
                          Printf("%s before its entrycount and dropped",
                                 early == 1 ? "1 row stands" : Printf("%u rows stand", early).c_str()));
        const std::uint32_t behind = rows - early;
        if (behind > count)
            context.Error(&view, "dropped-rows",
                          Printf("%u of its %u rows are dropped on reading: entrycount is %u%s", behind - count, rows,
                                 entrycount, entrycount > 255 ? ", and more than 255 makes none" : ""));
        else if (behind < count)
            context.Warn(&view, "empty-row",
                         Printf("entrycount is %u, but there are %u rows: the rest is empty", count, behind));
    } else if (rows > 255) {
        context.Error(&view, "dropped-rows",
                      Printf("%u of its %u entries are dropped on reading: 255 is the most", rows - 255, rows));
    }
}

void CheckGauges(CheckContext& context, const ADXDashboard& dash) {
    for (std::uint32_t i = 0; i < dash.GetEntryCount(); ++i) {
        const ADXDGENTRY& gauge = *dash.GetEntry(i);
        if (gauge.gaugetype > 2)
            context.Error(&dash, "gauge-type",
                          Printf("gaugetype %u of gauge %u is none of 0 to 2", gauge.gaugetype, i + 1));
        const bool empty = gauge.right <= gauge.left || gauge.bottom <= gauge.top;
        if (empty || gauge.right > 100 || gauge.bottom > 100)
            context.Warn(&dash, "gauge-place",
                         Printf("gauge %u lies %s: left %u, top %u, right %u, bottom %u percent", i + 1,
                                empty ? "on no area" : "partly outside the page", gauge.left, gauge.top, gauge.right,
                                gauge.bottom));
    }
}

void CheckHistogramGrid(CheckContext& context, const ADXHistogram& histogram) {
    if (histogram.GetRows() == 0 || histogram.GetCols() == 0)
        context.Warn(
            &histogram, "grid",
            Printf("its grid of %u rows and %u columns has no cell", histogram.GetRows(), histogram.GetCols()));
    constexpr std::uint32_t kManyCells = 65'536;
    const std::uint32_t cells = histogram.GetRows() * histogram.GetCols();  // each 4096 at most
    if (cells > kManyCells)
        context.Warn(&histogram, "grid",
                     Printf("its grid of %u rows and %u columns has %u cells: each takes memory, and nobody sees them "
                            "all",
                            histogram.GetRows(), histogram.GetCols(), cells));
    if (histogram.GetXMin() >= histogram.GetXMax() || histogram.GetYMin() >= histogram.GetYMax())
        context.Warn(&histogram, "range", "an axis ends where it begins, or before: all samples fall into few cells");
}

}  // namespace

void CheckView(CheckContext& context, const ADXObject& object) {
    if (const auto* list = As<ADXListView>(&object)) CheckEntryRows(context, object, list->GetEntryCount());
    if (const auto* monitor = As<ADXMonitor>(&object)) CheckEntryRows(context, object, monitor->GetEntryCount());
    if (const auto* histogram = As<ADXHistogram>(&object)) CheckHistogramGrid(context, *histogram);
    if (const auto* dash = As<ADXDashboard>(&object)) {
        CheckEntryRows(context, object, dash->GetEntryCount());
        CheckGauges(context, *dash);
    }
}

}  // namespace corvex
