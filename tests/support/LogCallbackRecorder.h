// A callback that writes down what a playback delivers, and answers as the test wishes.
#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "acquisition/DataAcqStatus.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "logging/IDataLogCallback.h"

namespace corvex::test {

// Words: "Send 3" and "160 3" (with the count), "Progress 80 2", "End", "SeekBegin 10 1" (flags in decimal), "SeekEnd".
// Called by the playback thread, read by the test's.
class LogCallbackRecorder : public IDataLogCallback {
public:
    using Status = const DataAcqStatus*;
    using Packet = const std::uint8_t*;

    struct Delivered {
        std::uint32_t source, commandId, code, sampleIndex;
        std::uint32_t type, flags, size;  // of the command that stands in
        std::vector<std::uint8_t> bytes;
    };

    // Before the playback begins. The hook runs outside the lock, before the word is written down.
    std::int32_t seekAnswer = 0, answer = 0;
    std::function<void(const std::string& word)> hook;

    std::vector<std::string> Words() const {
        const std::lock_guard lock(mutex_);
        return words_;
    }
    std::size_t CountOf(const std::string& word) const {
        const std::lock_guard lock(mutex_);
        std::size_t count = 0;
        for (const std::string& one : words_)
            count += one == word ? 1U : 0U;
        return count;
    }
    std::vector<Delivered> Records() const {
        const std::lock_guard lock(mutex_);
        return delivered_;
    }
    std::size_t RecordCount() const {
        const std::lock_guard lock(mutex_);
        return delivered_.size();
    }

    std::int32_t OnLogEnd() override { return Keep("End", 0); }
    std::int32_t OnLogSeekBegin(std::uint32_t target, std::uint32_t flags) override {
        return Keep("SeekBegin " + std::to_string(target) + " " + std::to_string(flags), seekAnswer);
    }
    std::int32_t OnLogSeekEnd() override { return Keep("SeekEnd", 0); }
    std::int32_t OnLogProgress(std::uint32_t timeMs, std::uint32_t index) override {
        return Keep("Progress " + std::to_string(timeMs) + " " + std::to_string(index), answer);
    }
    std::int32_t OnSendCommandEnd(Status status, Packet bytes, std::uint32_t count) override {
        const auto* command = static_cast<const ADXCSendCommand*>(status->command);
        Keep(Delivered{status->source, status->commandId, status->code, status->sampleIndex, command->GetType(),
                       command->flags, command->replysize, std::vector<std::uint8_t>(bytes, bytes + count)});
        return Keep("Send " + std::to_string(count), answer);
    }
    std::int32_t On160BaudEnd(Status status, Packet bytes, std::uint32_t count) override {
        const auto* command = static_cast<const ADXC160BaudListen*>(status->command);
        Keep(Delivered{status->source, status->commandId, status->code, status->sampleIndex, command->GetType(), 0,
                       command->packetsize, std::vector<std::uint8_t>(bytes, bytes + count)});
        return Keep("160 " + std::to_string(count), answer);
    }

    std::int32_t OnWrite(Status, Packet, std::uint32_t) override { return Keep("Live", 0); }
    std::int32_t OnRead(Status, Packet, std::uint32_t) override { return Keep("Live", 0); }
    std::int32_t OnListenSilenceBegin(Status) override { return Keep("Live", 0); }
    std::int32_t OnListenSilenceEnd(Status) override { return Keep("Live", 0); }
    std::int32_t OnListenChatterBegin(Status) override { return Keep("Live", 0); }
    std::int32_t OnListenChatterEnd(Status) override { return Keep("Live", 0); }
    std::int32_t OnSendCommandBegin(Status) override { return Keep("Live", 0); }
    std::int32_t OnMacroBegin(Status) override { return Keep("Live", 0); }
    std::int32_t OnMacroEnd(Status) override { return Keep("Live", 0); }
    std::int32_t On160BaudBegin(Status) override { return Keep("Live", 0); }
    std::int32_t OnTrigger(Status) override { return Keep("Live", 0); }

private:
    std::int32_t Keep(const std::string& word, std::int32_t result) {
        if (hook) hook(word);
        const std::lock_guard lock(mutex_);
        words_.push_back(word);
        return result;
    }
    void Keep(Delivered record) {
        const std::lock_guard lock(mutex_);
        delivered_.push_back(std::move(record));
    }

    mutable std::mutex mutex_;
    std::vector<std::string> words_;
    std::vector<Delivered> delivered_;
};

}  // namespace corvex::test
