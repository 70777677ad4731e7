#include "definition/ADXC160BaudListen.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {

int ADXC160BaudListen::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXCLISTEN160BAUD");
    WriteBaseAttributes(writer);
    WriteAttributeHex8UnlessZero(*writer, "flags", flags);
    WriteDesc(writer);
    WriteElementDec(*writer, "packetsize", packetsize);
    writer->EndElement();
    return 1;
}

}  // namespace corvex
