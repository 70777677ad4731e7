#include "files/adx/DefinitionSave.h"

#include <cstdio>

#include "definition/WriterForms.h"

namespace corvex {
namespace {

void WriteRoot(XMLWriter& writer) {
    writer.StartElement("ADXFORMAT");
    writer.WriteAttribute("version", "0.50");
    writer.EndElement();
}

void WriteTime(XMLWriter& writer, const LocalTime& time) {
    char text[64];
    std::snprintf(text, sizeof text, "Written %.2i/%.2i/%.4i %.2i:%.2i:%.2i", int{time.month}, int{time.day},
                  int{time.year}, int{time.hour}, int{time.minute}, int{time.second});
    writer.WriteComment(text);
}

void WriteTextIfSet(XMLWriter& writer, const char* name, const OwnedText& text) {
    if (text.IsSet()) writer.WriteElementText(name, text.CStr());
}

void WriteIdIfSet(XMLWriter& writer, const char* name, const ADXObject* command) {
    if (command != nullptr) writer.WriteElementText(name, command->Id());
}

void WriteHeader(XMLWriter& writer, const ADXDefinition& definition) {
    writer.StartElement("ADXHEADER");
    WriteElementHex2(writer, "flags", definition.flags);
    WriteElementDec(writer, "objectcount", definition.GetCount());
    WriteTextIfSet(writer, "userversion", definition.UserVersion());
    WriteTextIfSet(writer, "author", definition.Author());
    WriteTextIfSet(writer, "desc", definition.Desc());
    WriteElementDec(writer, "baud", definition.baud);
    WriteIdIfSet(writer, "connectcmd", definition.connectcmd);
    WriteIdIfSet(writer, "monitorcmd", definition.monitorcmd);
    WriteIdIfSet(writer, "disconnectcmd", definition.disconnectcmd);
    writer.EndElement();
}

}  // namespace

void WriteDefinition(const ADXDefinition& definition, XMLWriter& writer, const LocalTime& time, IProgress* progress) {
    if (progress != nullptr) progress->SetRange(definition.GetCount());
    writer.SetIndent(4);
    WriteRoot(writer);
    WriteTime(writer, time);
    WriteHeader(writer, definition);
    for (const auto& object : definition.Objects()) {
        if (object != nullptr) object->Write(&writer);
        if (progress != nullptr) progress->Step();
    }
    if (progress != nullptr) progress->SetPosition(0);
}

}  // namespace corvex
