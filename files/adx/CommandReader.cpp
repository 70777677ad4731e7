// Reads the children of the commands and of an ADXMACRO.
#include <algorithm>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "files/adx/ObjectReader.h"

namespace corvex {
namespace {

// Bytes stand as hexadecimal words with blanks between them; the low byte of each counts. "size" says how many bytes
// there are, whatever the text holds: what the text does not reach is zeros, and a size beyond the scratch is cut to
// it. The size is always read as hexadecimal, although a chatter pattern has it in decimal: a pattern of ten bytes
// reads back as sixteen, and files have lived with that.
template <std::size_t Limit, class Command>
void ReadBytes(Command& command, const ADXElement& child) {
    constexpr std::string_view kBlanks = " \t\r\n";
    std::array<std::uint8_t, Limit> scratch{};
    std::string_view rest = child.Text();
    for (std::size_t i = 0; i < Limit; ++i) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
        if (rest.empty()) break;
        const std::size_t length = std::min(rest.find_first_of(kBlanks), rest.size());
        scratch[i] = static_cast<std::uint8_t>(HexText(rest.substr(0, length)));
        rest.remove_prefix(length);
    }
    std::uint32_t size = 0;
    child.ReadHex("size", size);
    command.SetBytes(scratch.data(), std::min(size, static_cast<std::uint32_t>(Limit)));
}

void ReadNode(ADXMacro& macro, const ADXElement& child) {
    ADXMacroNode node;
    child.ReadHex("flags", node.flags);
    const std::string_view id = child.Attribute("commandID");
    id.copy(node.commandid, sizeof node.commandid - 1);
    child.ReadDec("repeatcount", node.repeatcount);
    macro.AddNode(&node);
}

constexpr ChildField<ADXCListenSilence> kSilenceFields[] = {
    {"desc", ReadDesc},
    {"silencelen", DecInto<&ADXCListenSilence::silencelen>},
    {"totaltimeout", DecInto<&ADXCListenSilence::totaltimeout>},
};

constexpr ChildField<ADXCListenChatter> kChatterFields[] = {
    {"desc", ReadDesc},
    {"listentimeout", DecInto<&ADXCListenChatter::listentimeout>},
    {"bytestring", ReadBytes<256, ADXCListenChatter>},
};

constexpr ChildField<ADXC160BaudListen> k160BaudFields[] = {
    {"desc", ReadDesc},
    {"packetsize", DecInto<&ADXC160BaudListen::packetsize>},
};

// The packet offset of a command is decimal, unlike that of values and bitmasks.
constexpr ChildField<ADXCSendCommand> kSendFields[] = {
    {"desc", ReadDesc},
    {"bytestring", ReadBytes<512, ADXCSendCommand>},
    {"replysize", DecInto<&ADXCSendCommand::replysize>},
    {"replytimeout", DecInto<&ADXCSendCommand::replytimeout>},
    {"packetoffset", DecInto<&ADXCSendCommand::packetoffset>},
    {"packetsize", DecInto<&ADXCSendCommand::packetsize>},
};

constexpr ChildField<ADXCTrigger> kTriggerFields[] = {
    {"desc", ReadDesc},
    {"triggertype", HexInto<&ADXCTrigger::triggertype>},
};

constexpr ChildField<ADXMacro> kMacroFields[] = {
    {"desc", ReadDesc},
    {"NODE", ReadNode},
};

}  // namespace

bool ReadListenSilenceChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kSilenceFields, object, child);
}

bool ReadListenChatterChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kChatterFields, object, child);
}

bool Read160BaudListenChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(k160BaudFields, object, child);
}

bool ReadSendCommandChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kSendFields, object, child);
}

bool ReadTriggerChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kTriggerFields, object, child);
}

bool ReadMacroChild(ADXObject& object, const ADXElement& child, ReadPosition&) {
    return ReadField(kMacroFields, object, child);
}

}  // namespace corvex
