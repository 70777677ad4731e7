// Where the engines meet the application: decides what a reply means, live or played back.
#pragma once

#include <atomic>
#include <cstdint>

#include "acquisition/DataAcqStatus.h"
#include "definition/PacketView.h"
#include "logging/IDataLogCallback.h"

namespace corvex {

class ADXCSendCommand;
class ADXObject;
class SessionState;

// Writes the log lines, counts samples and errors, moves the connection to connected, passes samples to the recording
// and hands them to the views. What it changes is in the session; its own is a counter of replies alone. A live reply
// is never refused, so a failing line never ends a macro.
//
// Threads: a slot runs on the thread of the engine that calls it: the connect thread, the playback thread (OnLog... and
// the two ends with status source 1), or both at once.
class DAECallback : public IDataLogCallback {
public:
    explicit DAECallback(SessionState& session) : session_(session) {}

    std::int32_t OnWrite(const DataAcqStatus* status, const std::uint8_t* bytes, std::uint32_t count) override;
    std::int32_t OnRead(const DataAcqStatus* status, const std::uint8_t* bytes, std::uint32_t count) override;
    std::int32_t OnListenSilenceBegin(const DataAcqStatus* status) override;
    std::int32_t OnListenSilenceEnd(const DataAcqStatus* status) override;
    std::int32_t OnListenChatterBegin(const DataAcqStatus* status) override;
    std::int32_t OnListenChatterEnd(const DataAcqStatus* status) override;
    std::int32_t OnSendCommandBegin(const DataAcqStatus* status) override;
    // The reply is what the status' command asked for, or a record expanded to that; of a live one no more than
    // `replysize` bytes are read. What reaches past the bytes that came is cut to them.
    std::int32_t OnSendCommandEnd(const DataAcqStatus* status, const std::uint8_t* reply, std::uint32_t count) override;
    std::int32_t OnMacroBegin(const DataAcqStatus* status) override;
    std::int32_t OnMacroEnd(const DataAcqStatus* status) override;
    std::int32_t On160BaudBegin(const DataAcqStatus* status) override;
    // No values are updated here: views compute from the packet. The command id is the one the last send left behind.
    std::int32_t On160BaudEnd(const DataAcqStatus* status, const std::uint8_t* packet, std::uint32_t count) override;
    std::int32_t OnTrigger(const DataAcqStatus* status) override;

    std::int32_t OnLogEnd() override;
    std::int32_t OnLogSeekBegin(std::uint32_t target, std::uint32_t flags) override;
    std::int32_t OnLogSeekEnd() override;
    std::int32_t OnLogProgress(std::uint32_t milliseconds, std::uint32_t recordIndex) override;

private:
    // What a sample is taken with: the definition's own command in playback, the line's else.
    struct Sample {
        const ADXObject* command;
        float t;  // seconds
    };
    // False, with the line in the log, for a played-back command that the definition does not hold under these types.
    bool FindSample(const DataAcqStatus& status, std::uint32_t types, Sample* sample);
    void CountReply();
    void TakeReply(const DataAcqStatus& status, const ADXCSendCommand& command, float t, PacketView reply);
    void TakePacket(const DataAcqStatus& status, const Sample& sample, PacketView packet);
    void Record(const DataAcqStatus& status, const ADXObject& command, PacketView reply);
    void BecomeConnected();
    bool FlashIfConnected(const char* text);
    void EndSample(const DataAcqStatus& status, PacketView reply);

    SessionState& session_;
    std::atomic<std::uint32_t> sendReplies_{0};  // since the text log was last cleared for its length
    std::atomic<bool> losesSamples_{false};      // the last one could not be recorded
};

}  // namespace corvex
