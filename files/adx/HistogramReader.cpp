// Reads the children of an ADXHISTOGRAM.
#include "definition/ADXHistogram.h"
#include "files/adx/ObjectReader.h"

namespace corvex {
namespace {

constexpr ChildField<ADXHistogram> kHistogramFields[] = {
    {"desc", ReadDesc},
    {"flags", HexInto<&ADXHistogram::flags>},
    {"parentcmdidhash", HexInto<&ADXHistogram::parentcmdidhash>},
    {"rows", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetRows(child.Dec()); }},
    {"cols", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetCols(child.Dec()); }},
    {"xmin", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetXMin(child.Float()); }},
    {"xmax", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetXMax(child.Float()); }},
    {"ymin", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetYMin(child.Float()); }},
    {"ymax", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetYMax(child.Float()); }},
    {"historysize", [](ADXHistogram& histogram, const ADXElement& child) { histogram.SetHistorySize(child.Dec()); }},
    {"xidhash", HexInto<&ADXHistogram::xidhash>},
    {"yidhash", HexInto<&ADXHistogram::yidhash>},
    {"zidhash", HexInto<&ADXHistogram::zidhash>},
};

}  // namespace

bool ReadHistogramChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kHistogramFields, object, child);
}

}  // namespace corvex
