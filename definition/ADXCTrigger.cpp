#include "definition/ADXCTrigger.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {

int ADXCTrigger::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXCTRIGGER");
    WriteBaseAttributes(writer);
    WriteAttributeHex8UnlessZero(*writer, "flags", flags);
    WriteDesc(writer);
    WriteElementHex8(*writer, "triggertype", triggertype);
    writer->EndElement();
    return 1;
}

}  // namespace corvex
