#include "logging/LogItem.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace corvex {

LogMask LogMask::AllSet() {
    constexpr std::size_t kRecordedBytes = 15;
    return LogMask(std::vector<std::uint8_t>(kRecordedBytes, 0xFF));
}

std::vector<std::uint8_t> EncodeItemTable(const std::vector<LogItem>& items) {
    const auto count = static_cast<std::uint32_t>(items.size());
    std::vector<std::uint8_t> table;
    for (const unsigned shift : {0U, 8U, 16U, 24U})
        table.push_back(static_cast<std::uint8_t>(count >> shift & 0xFFU));
    for (const LogItem& item : items) {
        LogItemFields fields = item;
        std::fill(std::begin(fields.title), std::end(fields.title), '\0');
        fields.reserved = 0;
        const std::vector<std::uint8_t>& mask = item.mask.Bytes();
        fields.maskLength = static_cast<std::uint8_t>(mask.size());
        std::uint8_t bytes[kLogItemBytes];
        EncodeItem(fields, bytes);
        table.insert(table.end(), std::begin(bytes), std::end(bytes));
        table.insert(table.end(), mask.begin(), mask.end());
    }
    return table;
}

void PackReply(const LogMask& mask, const std::uint8_t* reply, std::uint32_t count, std::uint8_t* packed,
               std::uint32_t packedSize) {
    const std::uint32_t walked = std::min(count, packedSize);
    for (std::uint32_t i = 0; i < walked; ++i) {
        if (mask.IsSet(i)) packed[i] = reply[i];
    }
}

void ExpandRecord(const LogMask& mask, const std::uint8_t* packed, std::uint32_t packedSize, std::uint8_t* reply,
                  std::uint32_t fullSize) {
    const std::uint32_t masked = std::min(fullSize, mask.LengthInBits());
    std::uint32_t taken = 0;
    for (std::uint32_t i = 0; i < masked; ++i)
        reply[i] = mask.IsSet(i) && taken < packedSize ? packed[taken++] : std::uint8_t{0};
    // Past the mask every byte is stored.
    const std::uint32_t rest = std::min(fullSize - masked, packedSize - taken);
    if (rest != 0) std::memcpy(reply + masked, packed + taken, rest);
    std::fill(reply + masked + rest, reply + fullSize, std::uint8_t{0});
}

}  // namespace corvex
