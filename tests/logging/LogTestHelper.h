// Logs that the tests of this folder share, and a reading of them.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "definition/ADXObject.h"
#include "logging/DataLogEngine.h"
#include "tests/support/LogBytes.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/VirtualClock.h"

namespace corvex::test {

constexpr std::uint32_t kId = 0x1234;
constexpr std::uint32_t kSmallDataOffset = 44 + 33 + 15;  // of a log with one recorded item
constexpr const char* kPath = "drive.xdl";

inline LogItem MakeItem(std::uint32_t commandId, std::uint32_t size, std::uint32_t type = kTypeSendCommand) {
    LogItem item;
    item.commandId = commandId;
    item.type = type;
    item.packedSize = item.fullSize = size;
    item.mask = LogMask::AllSet();
    return item;
}

// Record i of the logs below.
inline Bytes DataOf(std::uint32_t i) {
    return {static_cast<std::uint8_t>(i & 0xFFU), static_cast<std::uint8_t>(i >> 8U & 0xFFU), 0x77};
}

// The head of a log with the item kId of three bytes, for records to be added; not marked as ended.
inline LogBytes SmallLogHead(std::uint32_t sampleCount = 0) {
    LogBytes log;
    log.Header(kSmallDataOffset, sampleCount).ItemCount(1).Item(kId, kTypeSendCommand, 3, 3, Bytes(15, 0xFF));
    return log;
}

// A finished one, of records `stepMs` apart.
inline LogBytes SmallLog(std::uint32_t records, std::uint32_t stepMs = 80) {
    LogBytes log = SmallLogHead(records);
    for (std::uint32_t i = 0; i < records; ++i)
        log.Record(0, i * stepMs, DataOf(i));
    return log.MarkEnd();
}

struct ReadBack {
    std::uint32_t timeMs = 0, itemIndex = 0;
    Bytes data;
    bool operator==(const ReadBack&) const = default;
};

// All records from the present position on, by ReadRecord; `last` is the result that ended it.
inline std::vector<ReadBack> ReadRest(DataLogEngine& log, std::uint32_t* last = nullptr) {
    std::vector<ReadBack> records;
    std::uint32_t result = kLogSuccess;
    Bytes buffer(4096);
    while (result == kLogSuccess) {
        LogRecord record;
        const LogItem* item = nullptr;
        result = log.ReadRecord(&record, buffer.data(), static_cast<std::uint32_t>(buffer.size()), &item);
        if (result != kLogSuccess) break;
        records.push_back({record.timeMs, record.itemIndex, Bytes(buffer.begin(), buffer.begin() + item->packedSize)});
    }
    if (last != nullptr) *last = result;
    return records;
}

// A clock that stands still, for a fixture to have as a base in front of LogFixture: what the log's threads look at
// must be there until its destructor has waited for them.
struct StandingClock {
    VirtualClock clock_;
    ScopedClock scoped_{clock_};
};

// A log in memory, which is recorded or read.
class LogFixture : public ::testing::Test {
protected:
    // The result of opening a log of these bytes.
    std::uint32_t Open(const LogBytes& bytes, std::uint32_t mode = kLogForReading) {
        files_.Put(kPath, bytes.bytes);
        return log_.Open(kPath, mode);
    }
    void BeginRecording(const std::vector<LogItem>& items = {MakeItem(kId, 3)}) {
        ASSERT_EQ(0U, log_.Open(kPath, kLogForWriting));
        for (const LogItem& item : items)
            ASSERT_EQ(0U, log_.AddItem(item));
        ASSERT_EQ(0U, log_.StartRecording());
    }
    std::uint32_t Add(const Bytes& reply, std::uint32_t id = kId) {
        return log_.AddSample(id, reply.data(), static_cast<std::uint32_t>(reply.size()));
    }
    std::uint32_t AddRecord(std::uint32_t i) { return Add(DataOf(i)); }
    // All records in the file as it is now; it must end as a log does.
    std::vector<ReadBack> Recorded(const char* path = kPath) {
        DataLogEngine reader(files_);
        EXPECT_EQ(0U, reader.Open(path, kLogForLooking));
        std::uint32_t last = 0;
        std::vector<ReadBack> records = ReadRest(reader, &last);
        EXPECT_EQ(7U, last);
        return records;
    }
    std::vector<Bytes> RecordedData() {
        std::vector<Bytes> data;
        for (const ReadBack& record : Recorded())
            data.push_back(record.data);
        return data;
    }

    MemoryFiles files_;
    DataLogEngine log_{files_};
};

}  // namespace corvex::test
