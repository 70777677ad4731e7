#include "session/DAECallback.h"

#include <algorithm>

#include "acquisition/DataAcqEngine.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "session/Colours.h"
#include "session/LastPacket.h"
#include "session/ScanPolicy.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kFromLog = 1;  // source of a status
constexpr std::uint32_t kRepliesPerText = 200;
constexpr std::uint32_t kReplyFlashMs = 500;

std::uint32_t ViewsOf(const ADXCTrigger& trigger) {
    std::uint32_t views = 0;
    if (trigger.Wakes(ADXCTrigger::kHistograms)) views |= BitOf(SampleViewKind::kHistograms);
    if (trigger.Wakes(ADXCTrigger::kItemList)) views |= BitOf(SampleViewKind::kList);
    if (trigger.Wakes(ADXCTrigger::kMonitors)) views |= BitOf(SampleViewKind::kMonitors);
    if (trigger.Wakes(ADXCTrigger::kDash)) views |= BitOf(SampleViewKind::kDash);
    return views;
}

// A view that is never "no packet": nothing came, and that is known.
PacketView Arrived(const std::uint8_t* bytes, std::uint32_t count) {
    static constexpr std::uint8_t kNothing = 0;
    return bytes == nullptr ? PacketView(&kNothing, 0) : PacketView(bytes, count);
}

}  // namespace

std::int32_t DAECallback::OnWrite(const DataAcqStatus*, const std::uint8_t*, std::uint32_t) {
    return kResultOk;
}

std::int32_t DAECallback::OnRead(const DataAcqStatus*, const std::uint8_t* bytes, std::uint32_t count) {
    if (count != 0) DebugOutput::HexDump("Read", &session_.debug, bytes, count);
    return kResultOk;
}

std::int32_t DAECallback::OnListenSilenceBegin(const DataAcqStatus* status) {
    if (const auto* command = As<ADXCListenSilence>(status->command))
        DebugOutput::Print(&session_.debug, "Looking for %i ms of silence...", static_cast<int>(command->silencelen));
    return kResultOk;
}

std::int32_t DAECallback::OnListenSilenceEnd(const DataAcqStatus* status) {
    DebugOutput::Print(&session_.debug, "%s", status->code == kCodeSuccess ? "Silence found" : "NO SILENCE FOUND");
    return kResultOk;
}

std::int32_t DAECallback::OnListenChatterBegin(const DataAcqStatus*) {
    DebugOutput::Print(&session_.debug, "Looking for chatter...");
    return kResultOk;
}

std::int32_t DAECallback::OnListenChatterEnd(const DataAcqStatus* status) {
    DebugOutput::Print(&session_.debug, "%s", status->code == kCodeSuccess ? "Chatter found" : "CHATTER NOT FOUND");
    return kResultOk;
}

std::int32_t DAECallback::OnMacroBegin(const DataAcqStatus*) {
    DebugOutput::Print(&session_.debug, "BEGIN MACRO");
    return kResultOk;
}

std::int32_t DAECallback::OnMacroEnd(const DataAcqStatus*) {
    DebugOutput::Print(&session_.debug, "END MACRO");
    return kResultOk;
}

std::int32_t DAECallback::OnSendCommandBegin(const DataAcqStatus*) {
    return kResultOk;
}

std::int32_t DAECallback::OnSendCommandEnd(const DataAcqStatus* status, const std::uint8_t* reply,
                                           std::uint32_t count) {
    CountReply();
    Sample sample;
    if (!FindSample(*status, kTypeSendCommand, &sample)) return kResultFail;
    const auto* const command = As<ADXCSendCommand>(sample.command);
    const bool expected = command != nullptr && command->ExpectsReply();
    if (command != nullptr && status->source != kFromLog) count = std::min(count, command->replysize);

    if (status->code != kCodeSuccess) {
        DebugOutput::Print(&session_.debug, "%.3f: !!!!!!SEND COMMAND FAILURE (0x%.8X)!!!!!!",
                           static_cast<double>(sample.t), status->code);
        // A command that a stop has cut is nobody's fault.
        if (status->code != kCodeStopped && FlashIfConnected("ALDL Data Error!"))
            session_.errorCount.fetch_add(1, std::memory_order_relaxed);
    } else if (expected) {
        TakeReply(*status, *command, sample.t, Arrived(reply, count));
    } else {
        DebugOutput::Print(&session_.debug, "%.3f: Command sent. Reply not processed.", static_cast<double>(sample.t));
    }
    const bool read = expected && (status->code == kCodeSuccess || status->code == kCodeShortReply);
    EndSample(*status, read ? Arrived(reply, count) : PacketView(nullptr));
    return kResultOk;
}

std::int32_t DAECallback::On160BaudBegin(const DataAcqStatus*) {
    DebugOutput::Print(&session_.debug, "Listening for 160 baud packet");
    return kResultOk;
}

std::int32_t DAECallback::On160BaudEnd(const DataAcqStatus* status, const std::uint8_t* packet, std::uint32_t count) {
    Sample sample;
    if (!FindSample(*status, kTypeAny, &sample)) return kResultFail;
    const PacketView view(packet, count);

    if (status->code == kCodeSuccess) {
        TakePacket(*status, sample, view);
    } else if (status->code == kCodeBadFraming) {
        session_.errorCount.fetch_add(1, std::memory_order_relaxed);
        DebugOutput::Print(&session_.debug, "Data errors detected!");
        FlashIfConnected("Data Byte Error!");
    } else {
        DebugOutput::Print(&session_.debug, "160 BAUD PACKET ERROR");
        if (status->code != kCodeStopped) FlashIfConnected("Packet Error!");
    }
    // Bad packets too: pages that read the last packet show what there is.
    if (view && count != 0) session_.StoreLastPacket(LastPacket::Of(view, status->commandId));
    EndSample(*status, view);
    return kResultOk;
}

std::int32_t DAECallback::OnTrigger(const DataAcqStatus* status) {
    if (const auto* trigger = As<ADXCTrigger>(status->command))
        session_.PublishSample(session_.timer.Elapsed(), nullptr, trigger->GetIdHash(), ViewsOf(*trigger));
    return kResultOk;
}

std::int32_t DAECallback::OnLogEnd() {
    session_.StopPlayback();
    return kResultOk;
}

std::int32_t DAECallback::OnLogSeekBegin(std::uint32_t, std::uint32_t) {
    return kResultOk;
}

std::int32_t DAECallback::OnLogSeekEnd() {
    session_.Calls().setMonitorTime(session_.log.CurrentTime() / 1000.0);
    return kResultOk;
}

std::int32_t DAECallback::OnLogProgress(std::uint32_t timeMs, std::uint32_t recordIndex) {
    session_.Calls().setMonitorTime(timeMs / 1000.0);
    session_.Calls().setLogSlider(recordIndex);
    return kResultOk;
}

// The text would grow without end on a long drive: it starts anew at every 201st reply.
void DAECallback::CountReply() {
    if (sendReplies_.fetch_add(1, std::memory_order_relaxed) + 1 <= kRepliesPerText) return;
    if (session_.debug.edit != nullptr) session_.debug.edit->Clear();
    sendReplies_.store(0, std::memory_order_relaxed);
}

// A log brings only the id of its command; the one that counts is the definition's own. The session's stopwatch is left
// to the connect thread then.
bool DAECallback::FindSample(const DataAcqStatus& status, std::uint32_t types, Sample* sample) {
    if (status.source != kFromLog) {
        *sample = {status.command, static_cast<float>(session_.timer.Elapsed())};
        return true;
    }
    const ADXObject* const command = session_.definition.FindByHash(status.commandId);
    *sample = {command, static_cast<float>(session_.log.CurrentTime() / 1000.0)};
    if (command != nullptr && command->IsOneOf(types)) return true;
    DebugOutput::Print(&session_.debug, "Log playback: Command not found in def. Wrong definition?");
    return false;
}

void DAECallback::TakeReply(const DataAcqStatus& status, const ADXCSendCommand& command, float t, PacketView reply) {
    const PacketView packet = command.ReadablePart(reply);
    // Who reads the last packet finds a field behind its end in the raw words, which are taken before anybody looks.
    session_.StoreLastPacket(LastPacket::Of(command.Packet(reply), status.commandId));
    DebugOutput::Print(&session_.debug, "%.3f: Command/Reply Success", static_cast<double>(t));
    Record(status, command, reply);
    session_.definition.UpdateValues(packet, command.GetIdHash());
    session_.PublishSample(static_cast<double>(t), packet, status.commandId);
    BecomeConnected();
}

void DAECallback::TakePacket(const DataAcqStatus& status, const Sample& sample, PacketView packet) {
    DebugOutput::Print(&session_.debug, "160 baud packet acquired");
    BecomeConnected();
    session_.PublishSample(static_cast<double>(sample.t), packet, status.commandId);
    if (sample.command != nullptr) Record(status, *sample.command, packet);
}

// Of the line alone: a log that is still delivering while a recording begins is none of it.
void DAECallback::Record(const DataAcqStatus& status, const ADXObject& command, PacketView reply) {
    const std::uint32_t scanning = session_.scanning.load(std::memory_order_relaxed);
    const std::uint32_t state = session_.connectionState.load(std::memory_order_relaxed);
    if (status.source == kFromLog || !TakesSamples(session_.log.State(), scanning, state)) return;
    const std::uint32_t result = session_.log.AddSample(command.GetIdHash(), reply.Bytes(), reply.Size());
    // The next one is tried; the user hears of the first of them.
    const bool lost = result != kLogSuccess && result != kLogWrongState;
    if (lost == losesSamples_.exchange(lost, std::memory_order_relaxed) || !lost) return;
    DebugOutput::Print(&session_.debug, "A reply could not be recorded, error 0x%X", static_cast<unsigned>(result));
    session_.Calls().flash("Reply not recorded!", kBlack, kRed, kReplyFlashMs);
}

void DAECallback::BecomeConnected() {
    const std::uint32_t scanning = session_.scanning.load(std::memory_order_relaxed);
    const std::uint32_t state = session_.connectionState.load(std::memory_order_relaxed);
    if (BecomesConnected(scanning, state)) session_.Connect();
}

// A line that has yet to answer is no error.
bool DAECallback::FlashIfConnected(const char* text) {
    if (session_.connectionState.load(std::memory_order_relaxed) != kConnected) return false;
    session_.Calls().flash(text, kBlack, kRed, kReplyFlashMs);
    return true;
}

void DAECallback::EndSample(const DataAcqStatus& status, PacketView reply) {
    session_.timer.tickCount.fetch_add(1, std::memory_order_relaxed);
    session_.Calls().refreshStatus();
    session_.Calls().replyEnded(status, reply);
}

}  // namespace corvex
