// Builds the bytes of a log by hand, good or damaged, apart from the code that is tested with them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvex::test {

using Bytes = std::vector<std::uint8_t>;

// Each call appends; offsets and counts are whatever the test says. A finished log:
//
//     LogBytes log;
//     log.Header(log.DataOffsetFor({15}), 2).ItemCount(1).Item(0x1234, 0x20000, 3, 3, Bytes(15, 0xFF));
//     log.Record(0, 0, {1, 2, 3}).Record(0, 80, {4, 5, 6}).MarkEnd();
class LogBytes {
public:
    LogBytes& Word8(std::uint32_t value) {
        bytes.push_back(static_cast<std::uint8_t>(value & 0xFFU));
        return *this;
    }
    LogBytes& Word16(std::uint32_t value) { return Word8(value).Word8(value >> 8U); }
    LogBytes& Word32(std::uint32_t value) { return Word16(value).Word16(value >> 16U); }
    LogBytes& Raw(const Bytes& more) {
        bytes.insert(bytes.end(), more.begin(), more.end());
        return *this;
    }

    // endMark 0xFFFFFFFF; begun on Wednesday, 2026-07-01 12:34:56.789.
    LogBytes& Header(std::uint32_t dataOffset, std::uint32_t sampleCount, std::uint32_t version = 3) {
        Word32(version).Word32(dataOffset).Word32(0xFFFFFFFF);
        for (const std::uint32_t part : {2026U, 7U, 3U, 1U, 12U, 34U, 56U, 789U})
            Word16(part);
        return Word32(0).Word32(0).Word32(sampleCount);
    }
    // Where the data begins behind items with so many mask bytes each.
    static std::uint32_t DataOffsetFor(const std::vector<std::uint32_t>& maskLengths) {
        std::uint32_t offset = 44;
        for (const std::uint32_t length : maskLengths)
            offset += 33 + length;
        return offset;
    }
    LogBytes& ItemCount(std::uint32_t count) { return Word32(count); }
    LogBytes& Item(std::uint32_t commandId, std::uint32_t type, std::uint32_t packedSize, std::uint32_t fullSize,
                   const Bytes& mask) {
        Word32(commandId).Raw(Bytes(16, 0)).Word32(type).Word32(packedSize).Word32(fullSize);
        return Word8(static_cast<std::uint32_t>(mask.size())).Raw(mask);
    }
    // With the nextOffset that is right here.
    LogBytes& Record(std::uint32_t itemIndex, std::uint32_t timeMs, const Bytes& data) {
        const auto next = static_cast<std::uint32_t>(bytes.size() + 12 + data.size());
        return RecordTo(next, itemIndex, timeMs, data);
    }
    LogBytes& RecordTo(std::uint32_t nextOffset, std::uint32_t itemIndex, std::uint32_t timeMs, const Bytes& data) {
        return Word32(nextOffset).Word32(timeMs).Word8(itemIndex).Raw({0, 0, 0}).Raw(data);
    }
    LogBytes& MarkEnd() { return PutWord32(8, static_cast<std::uint32_t>(bytes.size() + 1)); }
    LogBytes& PutWord32(std::size_t offset, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * i) & 0xFFU);
        return *this;
    }

    Bytes bytes;
};

}  // namespace corvex::test
