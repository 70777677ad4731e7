#include "tests/apps/cli/LogTestHelper.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "apps/cli/Cli.h"

namespace corvex {

using test::Bytes;
using test::LogBytes;

ToolResult RunInside(const Words& args) {
    std::ostringstream out, err;
    ToolResult result;
    result.code = RunCli(args, out, err);
    result.out = out.str();
    result.err = err.str();
    return result;
}

LogBytes BeginLog(const std::vector<std::uint32_t>& commandIds) {
    LogBytes log;
    log.Header(LogBytes::DataOffsetFor(std::vector<std::uint32_t>(commandIds.size(), 15)), 0);
    log.ItemCount(static_cast<std::uint32_t>(commandIds.size()));
    for (const std::uint32_t id : commandIds)
        log.Item(id, id == kStreamHash ? 0x100000 : 0x20000, 24, 24, Bytes(15, 0xFF));
    return log;
}

Bytes PollReply(const Bytes& packet) {
    Bytes reply(24);
    std::fill_n(reply.begin(), 3, std::uint8_t{0xEE});
    std::copy_n(packet.begin(), std::min<std::size_t>(packet.size(), 21), reply.begin() + 3);
    return reply;
}

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string StreamDefinition(const std::string& objects) {
    return DefinitionWith(
        "<ADXCLISTEN160BAUD id=\"STREAM\" title=\"Stream\"><packetsize>20</packetsize>"
        "</ADXCLISTEN160BAUD>\n" +
        objects);
}

}  // namespace corvex
