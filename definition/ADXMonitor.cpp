#include "definition/ADXMonitor.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

void WriteSeries(XMLWriter& writer, const ADXMONSERIES& series) {
    const unsigned flags = series.flags & 0xFFFF;
    writer.StartElement("ADXMONSERIES");
    if (flags != 0) writer.WriteAttributeFormat("flags", "0x%.4X", flags);
    if (series.linewidth != 1) WriteAttributeDec(writer, "linewidth", series.linewidth);
    if (series.linetype != 0) WriteAttributeDec(writer, "linetype", series.linetype);
    writer.WriteAttributeFormat("linecolor", "0x%.6X", static_cast<unsigned>(series.linecolor));
    writer.WriteAttributeFormat("axiscolor", "0x%.6X", static_cast<unsigned>(series.axiscolor));
    if (series.item != nullptr) WriteAttributeHex8(writer, "itemidhash", series.item->GetIdHash());
    writer.EndElement();
}

}  // namespace

int ADXMonitor::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXMONITOR");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementDec(*writer, "entrycount", GetEntryCount());
    for (std::uint32_t i = 0; i < GetEntryCount(); ++i) {
        WriteSeries(*writer, *GetEntry(i));
    }
    writer->EndElement();
    return 1;
}

}  // namespace corvex
