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

// The place of an item in a packet.
struct Field {
    std::uint32_t parent, offset, bits, flags;
    std::uint64_t End() const { return std::uint64_t{offset} + bits / 8; }
};

// Bytes of the command's packet, and how far beyond its end items may still read: to the end of the reply.
struct Room {
    std::uint32_t packet, readable;
};

Room RoomOf(const ADXObject& command) {
    if (command.GetType() == kType160BaudListen) {
        const std::uint32_t size = static_cast<const ADXC160BaudListen&>(command).packetsize;
        return {size, size};
    }
    const auto& send = static_cast<const ADXCSendCommand&>(command);
    return {send.packetsize, send.replysize - std::min(send.packetoffset, send.replysize)};
}

bool CarriesValues(const ADXObject& command) {
    return command.GetType() == kType160BaudListen || (static_cast<const ADXCSendCommand&>(command).flags & 1) != 0;
}

void CheckPlaceInOne(CheckContext& context, const ADXObject& item, const Field& field, const ADXObject& command) {
    if (!CarriesValues(command)) {
        context.Error(&item, "no-reply",
                      Printf("belongs to the %s, whose reply is not processed", NameOf(command).c_str()));
        return;
    }
    const Room room = RoomOf(command);
    const std::string place =
        Printf("packetoffset 0x%.2X and %s", field.offset, Counted(field.bits / 8, "byte").c_str());
    if (field.End() > room.readable) {
        context.Error(&item, "outside-packet",
                      Printf("%s reach beyond the %u bytes that the %s leaves to read", place.c_str(), room.readable,
                             NameOf(command).c_str()));
    } else if (field.End() > room.packet) {
        context.Warn(&item, "beyond-packet",
                     Printf("%s reach beyond the packetsize of %u of the %s; its reply is read all the same",
                            place.c_str(), room.packet, NameOf(command).c_str()));
    }
}

void CheckPlaceInAny(CheckContext& context, const ADXObject& item, const Field& field) {
    unsigned fits = 0;
    unsigned all = 0;
    bool inPacket = false;
    for (std::uint32_t i = 0;; ++i) {
        const ADXObject* command = context.Definition().GetObject(kPacketTypes, i);
        if (command == nullptr) break;
        if (!CarriesValues(*command)) continue;
        ++all;
        if (field.End() <= RoomOf(*command).readable) ++fits;
        if (field.End() <= RoomOf(*command).packet) inPacket = true;
    }
    if (all == 0)
        context.Warn(&item, "no-reply", "no command of this definition brings a packet");
    else if (fits == 0)
        context.Error(&item, "outside-packet",
                      Printf("packetoffset 0x%.2X and %s fit in the reply of no command", field.offset,
                             Counted(field.bits / 8, "byte").c_str()));
    else if (!inPacket)
        context.Warn(&item, "beyond-packet",
                     Printf("packetoffset 0x%.2X and %s reach beyond the packetsize of every command; the replies are "
                            "read all the same",
                            field.offset, Counted(field.bits / 8, "byte").c_str()));
    else if (all > 1)
        context.Note(
            &item, "any-command",
            Printf("belongs to no command, so every reply changes it; its field fits in the replies of %u of %u", fits,
                   all));
}

void CheckPlace(CheckContext& context, const ADXObject& item, const Field& field) {
    if (field.parent == 0) return CheckPlaceInAny(context, item, field);
    const ADXObject* command = context.Find(field.parent);
    if (command != nullptr && (command->GetType() & kPacketTypes) != 0) CheckPlaceInOne(context, item, field, *command);
}

void CheckWidth(CheckContext& context, const ADXObject& item, const Field& field, bool isSigned) {
    const std::uint32_t bits = field.bits;
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
    if (bits / 8 == 3 && (field.flags & kFlagLowByteFirst) == 0)
        context.Warn(&item, "field-size", "a field of 3 bytes is never swapped: its first byte counts least");
}

// Whether an item takes its own field at all: a value made of links only does not.
bool ReadsField(const ADXValue& value) {
    if (value.GetVarCount() == 0) return false;
    ADXVar var;
    for (std::uint32_t i = 0; value.GetVar(i, &var) != 0; ++i) {
        if (var.type != 1) return true;
    }
    return false;
}

void CheckLimits(CheckContext& context, const ADXValue& value) {
    if (value.rangelow >= value.rangehigh)
        context.Warn(&value, "range", Printf("its range from %g to %g is empty", value.rangelow, value.rangehigh));
    const bool both = (value.flags & ADXValue::kAlarmHigh) != 0 && (value.flags & ADXValue::kAlarmLow) != 0;
    if (both && value.alarmlow > value.alarmhigh)
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
    if (object.GetType() == kTypeValue) {
        const auto& value = static_cast<const ADXValue&>(object);
        CheckLimits(context, value);
        if (!ReadsField(value)) return;
        const Field field{value.parentcmdidhash, value.packetoffset, value.sizeinbits, value.flags};
        CheckWidth(context, value, field, (value.flags & ADXValue::kSigned) != 0);
        CheckPlace(context, value, field);
    } else if (object.GetType() == kTypeBitmask) {
        const auto& bit = static_cast<const ADXBitmask&>(object);
        const Field field{bit.parentcmdidhash, bit.packetoffset, bit.sizeinbits, bit.flags};
        CheckWidth(context, bit, field, false);
        CheckPlace(context, bit, field);
        CheckMask(context, bit);
    }
}

}  // namespace corvex
