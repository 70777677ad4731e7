#include "files/ads/AdsHeader.h"

#include <algorithm>
#include <string_view>

#include "files/ads/AdsFieldReader.h"
#include "files/adx/TextForms.h"

namespace corvex {
namespace {

void ReadBytes(std::string_view text, AdsCommand& command) {
    for (std::uint8_t& byte : command.rgbtCommand) {
        const std::size_t comma = std::min(text.find(','), text.size());
        byte = static_cast<std::uint8_t>(HexText(text.substr(0, comma)) & 0xFF);
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
}

void ReadCommand(AdsFieldReader& fields, AdsCommand& command) {
    std::string bytes;
    fields.Text(command.strCommandName, 100);
    fields.Text(bytes);
    ReadBytes(bytes, command);
    fields.Word(command.iTotalBytesInCommand);
    fields.Integer(command.bChecksumCommand);
    fields.Word(command.iNumBytesInPayload);
    fields.Word(command.iNumBytesBeforePayload);
    fields.Integer(command.bMaster);
    fields.Integer(command.bMonitor);
    fields.Integer(command.iChainTo);
}

}  // namespace

std::uint32_t ReadHeader(AdsFieldReader& fields, AdsHeader& header) {
    constexpr float kBaudVersion = 1.1F, kFlagsVersion = 1.2F;
    fields.Float(header.fDefFrmtVers, 0.0F);
    fields.SetVersion(header.fDefFrmtVers);
    fields.Text(header.strDefVersion, 15);
    fields.Text(header.strDefTitle, 100);
    fields.Text(header.strAuthor, 50);
    fields.Text(header.strEngine, 50);
    fields.Text(header.strYear);
    fields.Text(header.strVINCode);
    fields.Text(header.strCodeMask);
    fields.Text(header.strComments, 257);
    fields.Word(header.iBaud, kBaudVersion);
    fields.HexWord(header.dwFlags, kFlagsVersion);
    fields.HexWord(header.dwCSID);
    fields.Word(header.btNumDumpRequests);

    std::uint32_t dropped = 0;
    // The block's end, not a count that anybody can write, is what ends this.
    for (std::uint32_t i = 0; i < header.btNumDumpRequests && !fields.Ended(); ++i) {
        AdsCommand extra;
        const std::uint32_t before = fields.FieldsTaken();
        ReadCommand(fields, i < AdsHeader::kCommandLimit ? header.commands[i] : extra);
        if (i >= AdsHeader::kCommandLimit && fields.FieldsTaken() != before) ++dropped;
    }
    return dropped;
}

}  // namespace corvex
