// A log of which a test knows every byte that was written, and what became of each record when bytes are lost, changed,
// put in or taken out. Reads nothing by the code that is tested.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <vector>

#include "tests/support/LogBytes.h"

namespace corvex::test {

struct WrittenRecord {
    std::size_t offset = 0, size = 0;  // in the file, with its twelve bytes
    std::uint32_t timeMs = 0, item = 0;
    Bytes data;
};

// Three items, two of them of equal size.
struct WrittenLog {
    static constexpr std::array<std::uint32_t, 3> kSizes = {63, 20, 63};
    static constexpr std::size_t kTableEnd = 44 + 3 * 48;

    Bytes bytes;
    std::vector<WrittenRecord> records;
};

// Times 40 to 167 ms apart; a crashed log has no end mark and no count.
inline WrittenLog WriteLog(std::uint32_t seed, std::uint32_t count, bool crashed) {
    std::mt19937 random(seed);
    LogBytes log;
    log.Header(WrittenLog::kTableEnd, crashed ? 0 : count).ItemCount(3);
    for (std::uint32_t i = 0; i < 3; ++i)
        log.Item(0x1000 + i, 0x20000, WrittenLog::kSizes[i], WrittenLog::kSizes[i], Bytes(15, 0xFF));
    WrittenLog written;
    std::uint32_t time = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        WrittenRecord record;
        record.offset = log.bytes.size();
        record.timeMs = time;
        record.item = static_cast<std::uint32_t>(random() % 3);
        record.data.resize(WrittenLog::kSizes[record.item]);
        // Replies have many zeros and small numbers.
        for (std::uint8_t& byte : record.data)
            byte = random() % 3 == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(random());
        log.Record(record.item, time, record.data);
        record.size = log.bytes.size() - record.offset;
        written.records.push_back(std::move(record));
        time += 40 + static_cast<std::uint32_t>(random() % 128);
    }
    if (!crashed) log.MarkEnd();
    written.bytes = log.bytes;
    return written;
}

// The log after `removed` bytes at `at` were replaced by others.
struct DamagedLog {
    const WrittenLog& written;
    Bytes bytes;
    std::size_t at = 0, removed = 0, inserted = 0;

    // Where the record stands now, when no byte of it is lost or changed but those that are reserved.
    std::optional<std::size_t> PlaceOf(const WrittenRecord& record) const {
        std::size_t place = record.offset;
        if (record.offset >= at + removed && record.offset >= at)
            place += inserted - removed;
        else if (record.offset + record.size > at)
            return std::nullopt;
        return IsSame(record, place) ? std::optional(place) : std::nullopt;
    }
    bool IsSame(const WrittenRecord& record, std::size_t place) const {
        if (place + record.size > bytes.size()) return false;
        for (std::size_t i = 0; i < record.size; ++i) {
            if ((i < 9 || i > 11) && bytes[place + i] != written.bytes[record.offset + i]) return false;
        }
        return true;
    }
};

inline DamagedLog Replace(const WrittenLog& written, std::size_t at, std::size_t removed, const Bytes& inserted) {
    Bytes bytes = written.bytes;
    const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(at);
    bytes.erase(from, from + static_cast<std::ptrdiff_t>(removed));
    bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), inserted.begin(), inserted.end());
    return {written, std::move(bytes), at, removed, inserted.size()};
}

// Bytes changed where they stand.
inline DamagedLog Change(const WrittenLog& written, Bytes bytes) {
    return {written, std::move(bytes), written.bytes.size(), 0, 0};
}

}  // namespace corvex::test
