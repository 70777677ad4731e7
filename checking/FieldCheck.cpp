#include <algorithm>
#include <string>

#include "checking/CheckContext.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXValue.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

std::uint64_t EndOf(const ADXItem& item) {
    return std::uint64_t{item.packetoffset} + item.sizeinbits / 8;
}

std::string BytesOf(const ADXItem& item) {
    return Printf("packetoffset 0x%.2X and %s", item.packetoffset, Counted(item.sizeinbits / 8, "byte").c_str());
}

// Bytes of the command's packet, and how far beyond its end items may still read: to the end of the reply.
struct Room {
    std::uint32_t packet, readable;
};

Room RoomOf(const ADXObject& command) {
    if (const auto* listen = As<ADXC160BaudListen>(&command)) return {listen->packetsize, listen->packetsize};
    const auto* send = As<ADXCSendCommand>(&command);
    if (send == nullptr) return {0, 0};
    return {send->packetsize, send->replysize - std::min(send->packetoffset, send->replysize)};
}

bool CarriesValues(const ADXObject& command) {
    const auto* send = As<ADXCSendCommand>(&command);
    return send == nullptr || send->ExpectsReply();
}

void CheckPlaceInOne(CheckContext& context, const ADXItem& item, const ADXObject& command) {
    if (!CarriesValues(command)) {
        context.Error(&item, "no-reply",
                      Printf("belongs to the %s, whose reply is not processed", NameOf(command).c_str()));
        return;
    }
    const Room room = RoomOf(command);
    if (EndOf(item) > room.readable) {
        context.Error(&item, "outside-packet",
                      Printf("%s reach beyond the %u bytes that the %s leaves to read", BytesOf(item).c_str(),
                             room.readable, NameOf(command).c_str()));
    } else if (EndOf(item) > room.packet) {
        context.Warn(&item, "beyond-packet",
                     Printf("%s reach beyond the packetsize of %u of the %s; its reply is read all the same",
                            BytesOf(item).c_str(), room.packet, NameOf(command).c_str()));
    }
}

void CheckPlaceInAny(CheckContext& context, const ADXItem& item) {
    unsigned fits = 0;
    unsigned all = 0;
    bool inPacket = false;
    for (const ADXObject* const command : context.PacketCommands()) {
        if (!CarriesValues(*command)) continue;
        ++all;
        if (EndOf(item) <= RoomOf(*command).readable) ++fits;
        if (EndOf(item) <= RoomOf(*command).packet) inPacket = true;
    }
    if (all == 0)
        context.Warn(&item, "no-reply", "no command of this definition brings a packet");
    else if (fits == 0)
        context.Error(&item, "outside-packet", Printf("%s fit in the reply of no command", BytesOf(item).c_str()));
    else if (!inPacket)
        context.Warn(&item, "beyond-packet",
                     Printf("%s reach beyond the packetsize of every command; the replies are read all the same",
                            BytesOf(item).c_str()));
    else if (all > 1)
        context.Note(
            &item, "any-command",
            Printf("belongs to no command, so every reply changes it; its field fits in the replies of %u of %u", fits,
                   all));
}

void CheckPlace(CheckContext& context, const ADXItem& item) {
    if (item.parentcmdidhash == 0) return CheckPlaceInAny(context, item);
    const ADXObject* command = context.Find(item.parentcmdidhash);
    if (command != nullptr && command->IsOneOf(kPacketTypes)) CheckPlaceInOne(context, item, *command);
}

void CheckWidth(CheckContext& context, const ADXItem& item, bool isSigned) {
    const std::uint32_t bits = item.sizeinbits;
    if (bits > 32) {
        context.Error(&item, "field-size", Printf("sizeinbits %u is more than the 32 that a field may have", bits));
    } else if (bits < 8) {
        context.Error(&item, "field-size", Printf("sizeinbits %u reads no byte at all", bits));
    } else if (bits % 8 != 0) {
        context.Warn(&item, "field-size",
                     Printf("sizeinbits %u is no multiple of 8: %s read", bits,
                            bits < 16 ? "1 byte is" : Printf("%u bytes are", bits / 8).c_str()));
    }
    const bool odd = bits != 8 && bits != 16 && bits != 32;
    if (isSigned && odd && bits >= 8 && bits <= 32)
        context.Error(&item, "field-size", Printf("a signed field of %u bits always reads 0", bits));
    if (bits / 8 == 3 && !item.IsLowByteFirst())
        context.Warn(&item, "field-size", "a field of 3 bytes is never swapped: its first byte counts least");
}

void CheckLimits(CheckContext& context, const ADXValue& value) {
    if (value.rangelow >= value.rangehigh)
        context.Warn(&value, "range", Printf("its range from %g to %g is empty", value.rangelow, value.rangehigh));
    if (value.HasHighAlarm() && value.HasLowAlarm() && value.alarmlow > value.alarmhigh)
        context.Warn(&value, "alarm",
                     Printf("its low alarm %g lies above its high alarm %g", value.alarmlow, value.alarmhigh));
    if (value.outputtype > ADXValue::kFloat)
        context.Error(&value, "output-type",
                      Printf("outputtype %u is none of 0 to 3: it shows no text", value.outputtype));
}

void CheckMask(CheckContext& context, const ADXBitmask& bit) {
    const std::uint32_t width = bit.sizeinbits / 8;
    const std::uint32_t reach = width >= 4 ? 0xFFFFFFFF : (1U << (8 * width)) - 1;
    if (bit.bitop == ADXBitmask::kAnd) {
        if (bit.operand == 0 && bit.result == 0)
            context.Warn(&bit, "mask", "its operand and its result are 0: it is always set");
        else if ((bit.result & ~(bit.operand & reach)) != 0)
            context.Error(&bit, "mask",
                          Printf("result 0x%.8X has bits outside operand 0x%.8X and field: it is never set", bit.result,
                                 bit.operand));
    } else if (bit.bitop == ADXBitmask::kXor) {
        if (((bit.operand ^ bit.result) & ~reach) != 0)
            context.Error(&bit, "mask", "the word it waits for does not fit in its field: it is never set");
    } else {
        context.Error(&bit, "mask", Printf("bitop %u is neither AND nor XOR: it is never set", bit.bitop));
    }
}

}  // namespace

void CheckField(CheckContext& context, const ADXObject& object) {
    if (const auto* value = As<ADXValue>(&object)) {
        CheckLimits(context, *value);
        if (!value->ReadsField()) return;  // made of links only, or of no letter
        CheckWidth(context, *value, value->IsSigned());
        CheckPlace(context, *value);
    } else if (const auto* bit = As<ADXBitmask>(&object)) {
        CheckWidth(context, *bit, false);
        CheckPlace(context, *bit);
        CheckMask(context, *bit);
    }
}

}  // namespace corvex
