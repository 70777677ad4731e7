#include "export/RecordDecoder.h"

#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "logging/LogItem.h"

namespace corvex {

bool DecodeRecord(const ADXDefinition& definition, const LogItem& item, PacketView reply, DecodedRecord* record) {
    const ADXObject* const command = definition.FindByHash(item.commandId);
    if (command == nullptr) return false;
    if (item.type == kType160BaudListen) {
        *record = {item.commandId, reply, false};
        return true;
    }
    if (item.type != kTypeSendCommand || command->GetType() != kTypeSendCommand) return false;
    const auto& send = static_cast<const ADXCSendCommand&>(*command);
    constexpr std::uint32_t kReplyExpected = 1;
    *record = {item.commandId, send.ReadablePart(reply), (send.flags & kReplyExpected) != 0};
    return true;
}

}  // namespace corvex
