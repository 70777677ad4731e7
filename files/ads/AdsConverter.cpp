#include "files/ads/AdsConverter.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "files/ads/AdsItemConverter.h"
#include "files/ads/AdsReader.h"

namespace corvex {
namespace {

constexpr std::uint32_t kSlowBaud = 160;
constexpr std::uint32_t kSlowLineBaud = 4800;  // each bit of a 160-baud stream is sampled by a whole character

// A length beyond the bytes that the record holds is cut to them.
std::vector<std::uint8_t> BytesOf(const AdsCommand& command) {
    const std::uint32_t check = command.bChecksumCommand != 0 ? 1 : 0;
    const auto limit = static_cast<std::uint32_t>(AdsCommand::kByteLimit) + check;
    const std::uint32_t total = std::min(command.iTotalBytesInCommand, limit);
    if (total == 0) return {};
    const auto* first = command.rgbtCommand.data();
    std::vector<std::uint8_t> bytes(first, first + total - check);
    if (check == 0) return bytes;
    std::uint32_t sum = 0;
    for (const std::uint8_t byte : bytes)
        sum += byte;
    bytes.push_back(static_cast<std::uint8_t>((0U - sum) & 0xFF));
    return bytes;
}

void SetCommandTitle(ADXObject& object, const AdsCommand& command) {
    object.SetTitle(command.strCommandName.c_str(), static_cast<std::uint32_t>(command.strCommandName.size()));
}

// Record 0 counts with its defaults even when the file has no record.
void AddListen(ADXDefinition& definition, const AdsCommand& command) {
    if (command.iNumBytesInPayload == 0) return;
    auto listen = std::make_unique<ADXC160BaudListen>();
    SetCommandTitle(*listen, command);
    listen->SetId("160BAUD");
    listen->packetsize = command.iNumBytesInPayload;
    definition.monitorcmd = listen.get();
    definition.InsertAfter(std::move(listen), ADXDefinition::kAppend);
}

void AddSend(ADXDefinition& definition, const AdsCommand& command, std::size_t index) {
    auto send = std::make_unique<ADXCSendCommand>();
    SetCommandTitle(*send, command);
    std::string id = "COMMAND";
    id.append(std::to_string(index));
    send->SetId(id.c_str());
    send->replysize = command.iNumBytesBeforePayload + command.iNumBytesInPayload;
    send->packetoffset = command.iNumBytesBeforePayload;
    send->packetsize = command.iNumBytesInPayload;
    send->flags = ADXCSendCommand::kReplyExpected;
    const auto bytes = BytesOf(command);
    send->SetBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    if (command.bMaster != 0) definition.monitorcmd = send.get();
    definition.InsertAfter(std::move(send), ADXDefinition::kAppend);
}

}  // namespace

int ConvertAds(ADXDefinition* definition, const AdsReader* reader) {
    if (definition == nullptr || reader == nullptr) return 0;
    const AdsHeader& header = reader->Header();
    definition->Clear();
    definition->SetAuthor(header.strAuthor.c_str(), 50);
    definition->SetDesc(header.strComments.c_str(), 256);
    definition->baud = header.iBaud;
    if (header.iBaud == kSlowBaud) {
        definition->baud = kSlowLineBaud;
        AddListen(*definition, header.commands[0]);
    } else {
        for (std::size_t i = 0; i < header.CommandCount(); ++i)
            AddSend(*definition, header.commands[i], i);
    }
    ConvertItems(*definition, *reader);
    return 1;
}

}  // namespace corvex
