#include "tests/program/driver/LogFiles.h"

#include "tests/support/LogBytes.h"

namespace corvex::test {

namespace {

constexpr std::uint32_t kPoll = 0xA6607299, kSendCommand = 0x20000, kReplySize = 63;

std::uint32_t Word32At(const std::string& bytes, std::size_t offset) {
    std::uint32_t word = 0;
    for (std::size_t i = 4; i-- > 0;)
        word = word << 8U | static_cast<std::uint8_t>(bytes.at(offset + i));
    return word;
}

}  // namespace

std::string MakeLog(const std::vector<std::uint32_t>& times) {
    LogBytes log;
    log.Header(LogBytes::DataOffsetFor({15}), static_cast<std::uint32_t>(times.size())).ItemCount(1);
    log.Item(kPoll, kSendCommand, kReplySize, kReplySize, Bytes(15, 0xFF));
    for (const std::uint32_t time : times) {
        Bytes reply(kReplySize, 0x40);
        reply[4] = static_cast<std::uint8_t>(time / 100 & 0xFFU);
        log.Record(0, time, reply);
    }
    log.MarkEnd();
    return {log.bytes.begin(), log.bytes.end()};
}

std::string MakeEvenLog(std::uint32_t count, std::uint32_t spacing) {
    std::vector<std::uint32_t> times;
    for (std::uint32_t i = 0; i < count; ++i)
        times.push_back(i * spacing);
    return MakeLog(times);
}

LogHeader HeaderOf(const std::string& log) {
    return {Word32At(log, 0), Word32At(log, 8), Word32At(log, 36)};
}

}  // namespace corvex::test
