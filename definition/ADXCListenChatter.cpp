#include "definition/ADXCListenChatter.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {

int ADXCListenChatter::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXCLISTENCHATTER");
    WriteBaseAttributes(writer);
    WriteAttributeHex8UnlessZero(*writer, "flags", flags);
    WriteDesc(writer);
    WriteElementDec(*writer, "listentimeout", listentimeout);
    // Decimal here, and read as hexadecimal: the format has it so, and a pattern of ten bytes comes back longer.
    writer->StartElement("bytestring");
    WriteAttributeDec(*writer, "size", size());
    char text[256];  // holds 51 bytes
    bytes_.FormatTo(text, sizeof text);
    writer->WriteText(text);
    writer->EndElement();
    writer->EndElement();
    return 1;
}

}  // namespace corvex
