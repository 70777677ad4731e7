#include "tests/program/driver/ReplyLog.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "definition/ADXObject.h"
#include "tests/support/LogBytes.h"

namespace corvex::test {

namespace {

constexpr std::uint32_t kSendCommand = 0x20000, kMaskLength = 15;

std::uint32_t HashOf(const std::string& id) {
    return HashId(id.data(), static_cast<std::uint32_t>(id.size()));
}

// One of each command.
std::vector<LoggedReply> Firsts(const std::vector<LoggedReply>& replies) {
    std::vector<LoggedReply> firsts;
    for (const LoggedReply& reply : replies) {
        const auto isSame = [&](const LoggedReply& first) { return first.command == reply.command; };
        if (std::none_of(firsts.begin(), firsts.end(), isSame)) firsts.push_back(reply);
    }
    return firsts;
}

}  // namespace

std::string HashText(const std::string& id) {
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "0x%08X", static_cast<unsigned>(HashOf(id)));
    return text.data();
}

std::string MakeReplyLog(const std::vector<LoggedReply>& replies) {
    const std::vector<LoggedReply> firsts = Firsts(replies);
    LogBytes log;
    const std::vector<std::uint32_t> masks(firsts.size(), kMaskLength);
    log.Header(LogBytes::DataOffsetFor(masks), static_cast<std::uint32_t>(replies.size()));
    log.ItemCount(static_cast<std::uint32_t>(firsts.size()));
    for (const LoggedReply& first : firsts) {
        const auto size = static_cast<std::uint32_t>(first.bytes.size());
        log.Item(HashOf(first.command), kSendCommand, size, size, Bytes(kMaskLength, 0xFF));
    }
    for (const LoggedReply& reply : replies) {
        const auto isSame = [&](const LoggedReply& first) { return first.command == reply.command; };
        const auto item = std::find_if(firsts.begin(), firsts.end(), isSame) - firsts.begin();
        log.Record(static_cast<std::uint32_t>(item), reply.time, reply.bytes);
    }
    log.MarkEnd();
    return {log.bytes.begin(), log.bytes.end()};
}

}  // namespace corvex::test
