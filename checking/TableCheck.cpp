#include "checking/CheckContext.h"
#include "definition/ADXLookupTable.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// The reader takes rows of numbers and of texts only; the three types between are written and forgotten.
bool RowsAreRead(std::uint32_t outputtype) {
    return outputtype == ADXLookupTable::kFloat || outputtype == ADXLookupTable::kText;
}

void CheckRowsOfFile(CheckContext& context, const ADXLookupTable& table, const SourcePart& source) {
    const std::uint32_t rows = source.Rows();
    const std::uint32_t loaded = table.GetEntryCount();
    if (rows <= loaded) return;
    if (!RowsAreRead(table.GetOutputType())) {
        context.Error(&table, "dropped-rows",
                      Printf("%u of its %s dropped on reading: outputtype %u keeps none; use 3 or 5", rows - loaded,
                             rows == 1 ? "1 row is" : Printf("%u rows are", rows).c_str(), table.GetOutputType()));
    } else {
        context.Warn(&table, "dropped-rows",
                     Printf("%u of its %u rows are not kept: they repeat an input, or have no output text",
                            rows - loaded, rows));
    }
}

void CheckRowOrder(CheckContext& context, const ADXLookupTable& table, const SourcePart& source) {
    const std::uint32_t early = source.CountBefore("tableentry", "outputtype");
    if (early != 0 && source.Last("outputtype") != nullptr)
        context.Error(&table, "row-order",
                      Printf("%s before its outputtype and read as numbers",
                             early == 1 ? "1 row stands" : Printf("%u rows stand", early).c_str()));
    const SourceElement* size = source.Last("entrycount");
    if (size != nullptr && DecimalWord(size->text) != source.Rows())
        context.Note(&table, "entry-count",
                     Printf("entrycount says %u, the file holds %s", DecimalWord(size->text),
                            Counted(source.Rows(), "row").c_str()));
}

}  // namespace

void CheckTable(CheckContext& context, const ADXObject& object) {
    const auto* found = As<ADXLookupTable>(&object);
    if (found == nullptr) return;
    const ADXLookupTable& table = *found;
    if (const SourcePart* source = context.SourceOf(object)) {
        CheckRowsOfFile(context, table, *source);
        CheckRowOrder(context, table, *source);
    }
    if (!RowsAreRead(table.GetOutputType()) && table.GetEntryCount() != 0)
        context.Lost(Severity::kError, &object,
                     Printf("its %s dropped on reading: outputtype %u keeps none",
                            table.GetEntryCount() == 1 ? "row will be"
                                                       : Printf("%u rows will be", table.GetEntryCount()).c_str(),
                            table.GetOutputType()));
    else if (table.GetEntryCount() == 0)
        context.Warn(&object, "empty-table", "has no rows: a value shown through it shows 0 or nothing");
    if (table.GetLookupMode() > ADXLookupTable::kHigher)
        context.Error(&object, "lookup-mode",
                      Printf("lookupmode %u is none of 0 to 3: it always gives 0", table.GetLookupMode()));
    const std::uint32_t type = table.GetOutputType();
    if (type == 4 || type > ADXLookupTable::kText)
        context.Error(&object, "output-type", Printf("outputtype %u is none of 0 to 3 and 5", type));
}

}  // namespace corvex
