#include <iterator>
#include <optional>
#include <sstream>
#include <string>

#include "checking/CheckContext.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXMacro.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"
#include "session/LastPacket.h"

namespace corvex {

namespace {

// One start bit, eight data bits, one stop bit.
double LineMilliseconds(const ADXDefinition& definition, std::uint32_t bytes) {
    return definition.baud == 0 ? 0.0 : bytes * 10'000.0 / definition.baud;
}

// Says so of a command that reads what need never come.
void CheckLimit(CheckContext& context, const ADXObject& command, const char* field) {
    context.Warn(&command, "timeout",
                 Printf("%s is 0, which is no limit: on a silent line it waits until the scan is stopped", field));
}

constexpr std::uint32_t kLongWait = 600'000;  // milliseconds that nobody waits for an engine
constexpr std::uint32_t kLargeReply = 65'536;

void CheckWait(CheckContext& context, const ADXObject& command, const char* field, std::uint32_t milliseconds) {
    if (milliseconds <= kLongWait) return;
    const double hours = milliseconds / 3'600'000.0;
    context.Warn(&command, "long-wait",
                 Printf("%s is %u ms: it may wait for %.1f %s", field, milliseconds, hours < 48 ? hours : hours / 24,
                        hours < 48 ? "hours" : "days"));
}

void CheckSize(CheckContext& context, const ADXObject& command, const char* field, std::uint32_t bytes) {
    if (bytes > kLargeReply)
        context.Warn(&command, "huge-size", Printf("%s is %u bytes, more than any engine sends", field, bytes));
}

void CheckReplyTime(CheckContext& context, const ADXCSendCommand& command) {
    const bool readsEcho = context.Definition().HasEcho() && command.size() != 0;
    if (command.replytimeout == 0) {
        if (command.replysize != 0 || readsEcho) CheckLimit(context, command, "replytimeout");
        return;
    }
    // The command itself is still on its way out when the wait for the reply begins.
    const double needed = LineMilliseconds(context.Definition(), command.size() + command.replysize);
    if (command.replysize == 0 || needed < command.replytimeout) return;
    context.Error(&command, "timeout",
                  Printf("replytimeout is %u ms, but %u bytes out and %u back take %.1f ms at %u baud",
                         command.replytimeout, command.size(), command.replysize, needed, context.Definition().baud));
}

void CheckSend(CheckContext& context, const ADXCSendCommand& command) {
    if (command.size() == 0 && command.replysize == 0)
        context.Warn(&command, "no-bytes", "sends nothing and expects nothing");
    if (!command.ExpectsReply()) {
        if (command.replysize != 0)
            context.Note(&command, "no-reply", "has a replysize, but its flags say that no reply is to be processed");
        return;
    }
    const std::uint64_t end = std::uint64_t{command.packetoffset} + command.packetsize;
    if (end > command.replysize)
        context.Error(&command, "packet-place",
                      Printf("packetoffset %u and packetsize %u reach beyond the reply of %u bytes",
                             command.packetoffset, command.packetsize, command.replysize));
    if (command.packetsize == 0)
        context.Warn(&command, "no-packet", "packetsize is 0: pages that read the last packet see none of it");
    if (command.packetsize > LastPacket::kSize)
        context.Warn(&command, "no-packet",
                     Printf("pages that read the last packet see its first %u bytes", LastPacket::kSize));
    CheckReplyTime(context, command);
}

// What the file says of a command's bytes.
struct WrittenBytes {
    std::uint32_t count = 0;  // as they stand there
    std::string size;         // as it is written
};

std::optional<WrittenBytes> BytesOfFile(const CheckContext& context, const ADXObject& command) {
    const SourcePart* source = context.SourceOf(command);
    if (source == nullptr) return std::nullopt;
    const SourceElement* bytes = source->Last("bytestring");
    if (bytes == nullptr) return WrittenBytes();
    std::istringstream text(bytes->text);
    const auto count = std::distance(std::istream_iterator<std::string>(text), {});
    return WrittenBytes{static_cast<std::uint32_t>(count), std::string(bytes->Attribute("size"))};
}

void CheckSendBytes(CheckContext& context, const ADXCSendCommand& command) {
    const std::optional<WrittenBytes> written = BytesOfFile(context, command);
    if (written && written->count != command.size())
        context.Error(&command, "byte-count",
                      Printf("bytestring holds %s but its size is %s, so %u are sent",
                             Counted(written->count, "byte").c_str(), written->size.c_str(), command.size()));
    // What a reader's text holds of them; a save itself would keep 409.
    if (command.size() > 204)
        context.Lost(Severity::kWarning, &command,
                     Printf("only 204 of its %u bytes are read back after a save", command.size()));
}

void CheckChatter(CheckContext& context, const ADXCListenChatter& command) {
    const std::uint32_t size = command.size();
    const std::optional<WrittenBytes> written = BytesOfFile(context, command);
    if (written && written->count != size) {
        context.Error(
            &command, "byte-count",
            Printf("bytestring holds %s but its size \"%s\", read as hexadecimal, makes it %u: the rest is zeros",
                   Counted(written->count, "byte").c_str(), written->size.c_str(), size));
    } else if (size == 0) {
        context.Error(&command, "no-bytes", "has no pattern to wait for: it always fails");
    }
    if (size != 0 && command.listentimeout == 0) CheckLimit(context, command, "listentimeout");
    if (size >= 10)
        context.Lost(Severity::kWarning, &command,
                     Printf("a save writes the size %u in decimal, which reads back as %u", size,
                            static_cast<unsigned>(std::stoul(std::to_string(size), nullptr, 16))));
    if (size > 51) context.Lost(Severity::kWarning, &command, Printf("a save keeps 51 of its %u bytes", size));
}

void CheckMacro(CheckContext& context, const ADXMacro& macro) {
    if (macro.GetNodeCount() == 0) context.Warn(&macro, "empty-macro", "has no nodes: it runs nothing");
    if (macro.repeatcount == 0) context.Warn(&macro, "no-repeat", "repeatcount is 0: it runs nothing");
    std::uint32_t number = 0;
    for (const ADXMacroNode& node : macro.Nodes()) {
        ++number;
        if (node.repeatcount == 0)
            context.Warn(&macro, "no-repeat", Printf("repeatcount of node %u is 0: it is passed over", number));
    }
}

// What is legal and nobody can have meant.
void CheckAmounts(CheckContext& context, const ADXObject& object) {
    if (const auto* send = As<ADXCSendCommand>(&object)) {
        CheckWait(context, object, "replytimeout", send->replytimeout);
        CheckSize(context, object, "replysize", send->replysize);
    }
    if (const auto* chatter = As<ADXCListenChatter>(&object))
        CheckWait(context, object, "listentimeout", chatter->listentimeout);
    if (const auto* silence = As<ADXCListenSilence>(&object)) {
        CheckWait(context, object, silence->silencelen == 0 ? "the delay totaltimeout" : "totaltimeout",
                  silence->totaltimeout);
        CheckWait(context, object, "silencelen", silence->silencelen);
    }
    if (const auto* listen = As<ADXC160BaudListen>(&object))
        CheckSize(context, object, "packetsize", listen->packetsize);
}

}  // namespace

void CheckCommand(CheckContext& context, const ADXObject& object) {
    if (const auto* send = As<ADXCSendCommand>(&object)) {
        CheckSend(context, *send);
        CheckSendBytes(context, *send);
    }
    if (const auto* chatter = As<ADXCListenChatter>(&object)) CheckChatter(context, *chatter);
    if (const auto* macro = As<ADXMacro>(&object)) CheckMacro(context, *macro);
    CheckAmounts(context, object);
    const auto* listen = As<ADXC160BaudListen>(&object);
    if (listen != nullptr && listen->packetsize == 0)
        context.Error(&object, "no-packet", "packetsize is 0: it listens for nothing");
    const NamedKind* kind = KindOfType(object.GetType());
    if (kind == nullptr || kind->keepsBaseFlags) return;
    const SourcePart* source = context.SourceOf(object);
    if (source != nullptr && HexText(source->start.Attribute("baseflags")) != 0)
        context.Warn(&object, "baseflags", "the file gives it baseflags, which are not read on a command and are lost");
    if (object.GetBaseFlags() != 0)
        context.Lost(Severity::kWarning, &object, "its baseflags are saved, but not read back on a command");
}

}  // namespace corvex
