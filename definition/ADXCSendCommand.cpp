#include "definition/ADXCSendCommand.h"

#include <algorithm>

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {

int ADXCSendCommand::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXCSENDCOMMAND");
    WriteBaseAttributes(writer);
    WriteAttributeHex8UnlessZero(*writer, "flags", flags);
    WriteDesc(writer);
    writer->StartElement("bytestring");
    writer->WriteAttributeFormat("size", "0x%X", static_cast<unsigned>(size()));
    char text[2048];  // holds 409 bytes
    bytes_.FormatTo(text, sizeof text);
    writer->WriteText(text);
    writer->EndElement();
    WriteElementDec(*writer, "replysize", replysize);
    WriteElementDec(*writer, "replytimeout", replytimeout);
    WriteElementDec(*writer, "packetoffset", packetoffset);
    WriteElementDec(*writer, "packetsize", packetsize);
    writer->EndElement();
    return 1;
}

PacketView ADXCSendCommand::Packet(PacketView reply) const {
    const PacketView readable = ReadablePart(reply);
    return {readable.Bytes(), std::min(packetsize, readable.Size())};
}

PacketView ADXCSendCommand::ReadablePart(PacketView reply) const {
    const std::uint32_t offset = std::min(packetoffset, reply.Size());
    return {reply.Bytes() + offset, reply.Size() - offset};
}

}  // namespace corvex
