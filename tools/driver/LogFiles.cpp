#include "tools/driver/LogFiles.h"

#include <algorithm>

#include "definition/ADXObject.h"
#include "tests/support/LogBytes.h"

namespace corvex::test {

namespace {

constexpr std::uint32_t kSendCommand = 0x20000, kMaskLength = 15, kExampleReplySize = 63;

std::uint32_t HashOf(const std::string& id) {
    return HashId(id.data(), static_cast<std::uint32_t>(id.size()));
}

std::uint32_t Word32At(const std::string& bytes, std::size_t offset) {
    std::uint32_t word = 0;
    for (std::size_t i = 4; i-- > 0;)
        word = word << 8U | static_cast<std::uint8_t>(bytes.at(offset + i));
    return word;
}

}  // namespace

std::string MakeLog(const std::vector<LoggedReply>& replies) {
    std::vector<LoggedReply> firsts;  // one of each command
    const auto indexOf = [&](const LoggedReply& reply) {
        const auto isSame = [&](const LoggedReply& first) { return first.command == reply.command; };
        return static_cast<std::size_t>(std::find_if(firsts.begin(), firsts.end(), isSame) - firsts.begin());
    };
    for (const LoggedReply& reply : replies) {
        if (indexOf(reply) == firsts.size()) firsts.push_back(reply);
    }
    LogBytes log;
    const std::vector<std::uint32_t> masks(firsts.size(), kMaskLength);
    log.Header(LogBytes::DataOffsetFor(masks), static_cast<std::uint32_t>(replies.size()));
    log.ItemCount(static_cast<std::uint32_t>(firsts.size()));
    for (const LoggedReply& first : firsts) {
        const auto size = static_cast<std::uint32_t>(first.bytes.size());
        log.Item(HashOf(first.command), kSendCommand, size, size, Bytes(kMaskLength, 0xFF));
    }
    for (const LoggedReply& reply : replies)
        log.Record(static_cast<std::uint32_t>(indexOf(reply)), reply.time, reply.bytes);
    log.MarkEnd();
    return {log.bytes.begin(), log.bytes.end()};
}

std::string MakeLog(const std::vector<std::uint32_t>& times) {
    std::vector<LoggedReply> replies;
    for (const std::uint32_t time : times)
        replies.push_back({"POLL", Bytes(kExampleReplySize, 0x40), time});
    return MakeLog(replies);
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
