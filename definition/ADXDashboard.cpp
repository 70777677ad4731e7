#include "definition/ADXDashboard.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

void WriteEntry(XMLWriter& writer, const ADXDGENTRY& entry) {
    writer.StartElement("ADXDGENTRY");
    WriteAttributeDec(writer, "gaugetype", entry.gaugetype);
    WriteAttributeHex8UnlessZero(writer, "flags", entry.flags);
    if (entry.item != nullptr) WriteAttributeHex8(writer, "itemidhash", entry.item->GetIdHash());
    WriteAttributeDec(writer, "left", entry.left);
    WriteAttributeDec(writer, "top", entry.top);
    WriteAttributeDec(writer, "right", entry.right);
    WriteAttributeDec(writer, "bottom", entry.bottom);
    writer.EndElement();
}

}  // namespace

int ADXDashboard::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXDASHBOARD");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementDec(*writer, "entrycount", GetEntryCount());
    for (std::uint32_t i = 0; i < GetEntryCount(); ++i) {
        WriteEntry(*writer, *GetEntry(i));
    }
    writer->EndElement();
    return 1;
}

}  // namespace corvex
