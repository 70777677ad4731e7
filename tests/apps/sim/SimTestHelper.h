// Definitions built in memory, the examples loaded, and a line with virtual time.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apps/sim/SimLine.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXValue.h"

namespace corvex::test {

using Bytes = std::vector<std::uint8_t>;

inline std::string ExamplePath(const char* name) {
    return std::string(CORVEX_SOURCE_DIR) + "/examples/" + name;
}

// As the 8192-baud example polls.
inline const Bytes kPollRequest{0xE4, 0x57, 0x01, 0x00, 0xC4};

template <class T>
T& Add(ADXDefinition& definition, const char* id) {
    auto object = std::make_unique<T>();
    T& reference = *object;
    object->SetId(id);
    object->SetTitle(id, static_cast<std::uint32_t>(std::strlen(id)));
    definition.InsertAfter(std::move(object), ADXDefinition::kAppend);
    return reference;
}

inline ADXCSendCommand& AddSend(ADXDefinition& definition, const char* id, const Bytes& request, std::uint32_t reply,
                                std::uint32_t offset = 0, std::uint32_t size = 0) {
    auto& send = Add<ADXCSendCommand>(definition, id);
    send.SetBytes(request.data(), static_cast<std::uint32_t>(request.size()));
    send.replysize = reply;
    send.packetoffset = offset;
    send.packetsize = size != 0 ? size : reply - offset;
    send.flags = 1;
    return send;
}

inline ADXValue& AddValue(ADXDefinition& definition, const char* id, std::uint32_t offset, std::uint32_t bits,
                          const char* equation = "X") {
    auto& value = Add<ADXValue>(definition, id);
    value.packetoffset = offset;
    value.sizeinbits = bits;
    value.SetEquation(equation, static_cast<std::uint32_t>(std::strlen(equation)));
    return value;
}

inline ADXBitmask& AddBit(ADXDefinition& definition, const char* id, std::uint32_t offset, std::uint32_t operand,
                          std::uint32_t result) {
    auto& bit = Add<ADXBitmask>(definition, id);
    bit.packetoffset = offset;
    bit.operand = operand;
    bit.result = result;
    return bit;
}

// A line whose time passes only in WaitForInput; a count is a nanosecond.
class LineFake final : public ISimLine {
public:
    struct Sent {
        std::int64_t at;
        std::uint8_t byte;
    };

    std::int64_t Now() override { return now; }
    std::int64_t Frequency() override { return 1'000'000'000; }
    std::size_t Read(std::uint8_t* buffer, std::size_t count) override {
        std::size_t moved = 0;
        while (moved < count && !input.empty() && input.front().at <= now) {
            buffer[moved++] = input.front().byte;
            input.pop_front();
        }
        return moved;
    }
    std::size_t Write(const std::uint8_t* bytes, std::size_t count) override {
        const std::size_t taken = std::min(count, room);
        for (std::size_t i = 0; i < taken; ++i)
            sent.push_back({now, bytes[i]});
        return taken;
    }
    void WaitForInput(std::int64_t until) override {
        ++waits;
        if (!input.empty()) until = std::min(until, input.front().at);
        now = std::max(now, until) + lag;
    }
    void Unplug() override { unplugged = true; }
    std::string Name() const override { return "fake"; }

    void Type(double seconds, const Bytes& bytes) {
        for (const std::uint8_t byte : bytes)
            input.push_back({static_cast<std::int64_t>(seconds * 1e9), byte});
    }
    Bytes SentBytes() const {
        Bytes bytes;
        for (const Sent& one : sent)
            bytes.push_back(one.byte);
        return bytes;
    }

    std::int64_t now = 0, lag = 0;  // lag: how late each wait ends
    std::size_t room = 1U << 20;    // bytes that a single write takes
    std::uint64_t waits = 0;
    bool unplugged = false;
    std::deque<Sent> input;
    std::vector<Sent> sent;
};

}  // namespace corvex::test
