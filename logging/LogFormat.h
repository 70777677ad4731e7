// The .xdl format: what stands where in the file, and its fixed blocks to and from bytes. All integers little-endian.
//
//     0           header, 40 bytes
//     40          number of items, 4 bytes
//     44          item table: for each item 33 bytes and its mask bytes
//     dataOffset  records to the end of the file: 12 bytes and the item's packedSize bytes each
#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace corvex {

inline constexpr std::uint32_t kLogVersion = 3;  // readers refuse any other
inline constexpr std::uint32_t kLogHeaderBytes = 40;
inline constexpr std::uint32_t kLogItemBytes = 33;
inline constexpr std::uint32_t kLogRecordBytes = 12;
inline constexpr std::uint32_t kLogTitleBytes = 15;
inline constexpr std::uint32_t kNeverEnded = 0xFFFFFFFF;  // endMark of a recording that is on, or died

struct LogHeader {
    std::uint32_t version = 0;
    std::uint32_t dataOffset = 0;   // of the first record
    std::uint32_t endMark = 0;      // size of the file and 1 once the recording has ended; kNeverEnded before
    LocalTime startTime = {};       // of the recording
    std::uint8_t reserved[8] = {};  // zeros in our files; kept as they were when a header is written back
    std::uint32_t sampleCount = 0;  // written at the end of the recording
};

// What stands in front of each record's data.
struct LogRecord {
    std::uint32_t nextOffset = 0;  // where the next record begins
    std::uint32_t timeMs = 0;      // since the first record, which has 0
    std::uint8_t itemIndex = 0;
    std::uint8_t reserved[3] = {};
};

// The fixed part of an item; its mask bytes follow in the file.
struct LogItemFields {
    std::uint32_t commandId = 0;      // id hash of the command
    char title[kLogTitleBytes] = {};  // zeros in every file
    std::uint8_t reserved = 0;        // anything
    std::uint32_t type = 0;           // class bit of the command: kTypeSendCommand or kType160BaudListen
    std::uint32_t packedSize = 0;     // bytes in each record
    std::uint32_t fullSize = 0;       // bytes of the reply after expansion
    std::uint16_t maskLength = 0;     // mask bytes; only the low byte is in the file
};

// The arrays are exactly as long as the block.
void EncodeHeader(const LogHeader& header, std::uint8_t* bytes);
LogHeader DecodeHeader(const std::uint8_t* bytes);
void EncodeItem(const LogItemFields& item, std::uint8_t* bytes);
LogItemFields DecodeItem(const std::uint8_t* bytes);
void EncodeRecord(const LogRecord& record, std::uint8_t* bytes);
LogRecord DecodeRecord(const std::uint8_t* bytes);

}  // namespace corvex
