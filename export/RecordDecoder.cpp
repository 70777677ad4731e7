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
    const auto* send = As<ADXCSendCommand>(command);
    if (item.type != kTypeSendCommand || send == nullptr) return false;
    *record = {item.commandId, send->ReadablePart(reply), send->ExpectsReply()};
    return true;
}

}  // namespace corvex
