// Definitions of a test's own.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace corvex::test {

// Built up by calls, in the order of the file. There are two commands, POLL and OTHER, each with a reply of kReplySize
// bytes that is taken whole, a pause PAUSE of 20 quiet milliseconds, and whatever is added.
class SmallDefinition {
public:
    static constexpr std::size_t kReplySize = 24;
    // A reply with these bytes first and zeros behind.
    static std::vector<std::uint8_t> Reply(std::vector<std::uint8_t> bytes);

    // What is done once to connect and over and over while connected, by ids of commands.
    explicit SmallDefinition(const std::vector<std::string>& connect = {"PAUSE"},
                             const std::vector<std::string>& monitor = {"POLL"});

    SmallDefinition& Trigger(const std::string& id, std::uint32_t bits);
    // A byte, from 0 to 255 with a low alarm below 10 and a high one above 200, shown with a decimal and "unit". No
    // command: of every one.
    SmallDefinition& Value(const std::string& id, const std::string& title, const std::string& command, int offset,
                           const std::string& equation = "X");
    // The lowest bit of a byte, "on" or "off", in alarm while it is set, in 0x00C000.
    SmallDefinition& Bit(const std::string& id, const std::string& title, const std::string& command, int offset);
    // Gauge type and item's id of each entry, side by side. An empty id: no item.
    SmallDefinition& Dashboard(const std::string& title, const std::vector<std::pair<int, std::string>>& entries);
    // The items' ids; one that begins with '#' is a bold heading of that title in 0xC04000.
    SmallDefinition& List(const std::string& title, const std::vector<std::string>& rows);

    std::string Text() const { return text_; }

private:
    SmallDefinition& Add(const std::string& text);
    SmallDefinition& Macro(const std::string& id, const std::vector<std::string>& commands);

    std::string text_;
};

}  // namespace corvex::test
