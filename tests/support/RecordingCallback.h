// A callback that writes down what the engine tells it, and answers as the test wishes.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "acquisition/IDataAcqCallback.h"

namespace corvex::test {

// Each call becomes a word, e.g. "SendBegin", "SendEnd 0 63" (code and count), "MacroEnd 11" (code).
class RecordingCallback : public IDataAcqCallback {
public:
    using Status = const DataAcqStatus*;
    using Packet = const std::uint8_t*;

    std::vector<std::string> words;
    std::map<std::string, std::int32_t> answers;        // by the first word; 0 where there is none
    std::function<void(const std::string& name)> hook;  // runs before the call is written down
    DataAcqStatus last;
    std::vector<std::uint8_t> bytes;  // of the last end that brought any
    bool gotNull = false;             // that end came with a null pointer

    std::int32_t OnWrite(Status s, Packet, std::uint32_t) override { return Begin("Write", s); }
    std::int32_t OnRead(Status s, Packet, std::uint32_t) override { return Begin("Read", s); }
    std::int32_t OnListenSilenceBegin(Status s) override { return Begin("SilenceBegin", s); }
    std::int32_t OnListenSilenceEnd(Status s) override { return End("SilenceEnd", s); }
    std::int32_t OnListenChatterBegin(Status s) override { return Begin("ChatterBegin", s); }
    std::int32_t OnListenChatterEnd(Status s) override { return End("ChatterEnd", s); }
    std::int32_t OnSendCommandBegin(Status s) override { return Begin("SendBegin", s); }
    std::int32_t OnSendCommandEnd(Status s, Packet p, std::uint32_t n) override { return EndWith("SendEnd", s, p, n); }
    std::int32_t OnMacroBegin(Status s) override { return Begin("MacroBegin", s); }
    std::int32_t OnMacroEnd(Status s) override { return End("MacroEnd", s); }
    std::int32_t On160BaudBegin(Status s) override { return Begin("160Begin", s); }
    std::int32_t On160BaudEnd(Status s, Packet p, std::uint32_t n) override { return EndWith("160End", s, p, n); }
    std::int32_t OnTrigger(Status s) override { return Begin("Trigger", s); }

private:
    std::int32_t Begin(const std::string& name, Status status) { return Keep(name, name, status); }
    std::int32_t End(const std::string& name, Status status) {
        return Keep(name, name + " " + std::to_string(status->code), status);
    }
    std::int32_t EndWith(const std::string& name, Status status, Packet packet, std::uint32_t count) {
        gotNull = packet == nullptr;
        bytes.clear();
        if (!gotNull) bytes.assign(packet, packet + count);
        return Keep(name, name + " " + std::to_string(status->code) + " " + std::to_string(count), status);
    }
    std::int32_t Keep(const std::string& name, const std::string& word, Status status) {
        if (hook) hook(name);
        last = *status;
        words.push_back(word);
        const auto found = answers.find(name);
        return found == answers.end() ? 0 : found->second;
    }
};

}  // namespace corvex::test
