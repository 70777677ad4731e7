#include "definition/ADXListView.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

void WriteRow(XMLWriter& writer, const ADXLVENTRY& row) {
    constexpr std::size_t kTitleLimit = 256;  // characters before escaping; a longer title is cut in the file
    writer.StartElement("ADXLVENTRY");
    WriteAttributeDec(writer, "entrytype", row.entrytype);
    WriteAttributeHex8UnlessZero(writer, "flags", row.flags);
    WriteAttributeHex8UnlessZero(writer, "itemidhash", row.itemidhash);
    if (row.title.Length() != 0) writer.WriteAttribute("title", EscapedText(row.title.CStr(), kTitleLimit).c_str());
    // The one colour without a prefix.
    if (row.color != 0) writer.WriteAttributeFormat("color", "%.8X", static_cast<unsigned>(row.color));
    writer.EndElement();
}

}  // namespace

void ADXLVENTRY::SetItem(ADXObject* object) {
    item = object;
    if (entrytype == kItemRow && object != nullptr) itemidhash = object->GetIdHash();
}

int ADXListView::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXLISTVIEW");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementDec(*writer, "entrycount", GetEntryCount());
    for (std::uint32_t i = 0; i < GetEntryCount(); ++i) {
        WriteRow(*writer, *GetEntry(i));
    }
    writer->EndElement();
    return 1;
}

}  // namespace corvex
