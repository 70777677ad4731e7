#include "definition/ADXCListenSilence.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {

int ADXCListenSilence::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXCLISTENSILENCE");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementDec(*writer, "silencelen", silencelen);
    WriteElementDec(*writer, "totaltimeout", totaltimeout);
    writer->EndElement();
    return 1;
}

}  // namespace corvex
