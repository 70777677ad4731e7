#include "logging/LogFormat.h"

#include <algorithm>
#include <iterator>

namespace corvex {

namespace {

// Walks over the bytes of a block in file order.
class Putter {
public:
    explicit Putter(std::uint8_t* bytes) : at_(bytes) {}
    void Word8(std::uint32_t value) { *at_++ = static_cast<std::uint8_t>(value & 0xFFU); }
    void Word16(std::uint32_t value) {
        Word8(value);
        Word8(value >> 8U);
    }
    void Word32(std::uint32_t value) {
        Word16(value);
        Word16(value >> 16U);
    }
    template <class Byte>
    void Bytes(const Byte* bytes, std::size_t count) {
        at_ = std::transform(bytes, bytes + count, at_, [](Byte byte) { return static_cast<std::uint8_t>(byte); });
    }

private:
    std::uint8_t* at_;
};

class Getter {
public:
    explicit Getter(const std::uint8_t* bytes) : at_(bytes) {}
    std::uint8_t Word8() { return *at_++; }
    std::uint16_t Word16() {
        const std::uint32_t low = Word8();
        return static_cast<std::uint16_t>(low | static_cast<std::uint32_t>(Word8()) << 8U);
    }
    std::uint32_t Word32() {
        const std::uint32_t low = Word16();
        return low | static_cast<std::uint32_t>(Word16()) << 16U;
    }
    template <class Byte>
    void Bytes(Byte* bytes, std::size_t count) {
        std::transform(at_, at_ + count, bytes, [](std::uint8_t byte) { return static_cast<Byte>(byte); });
        at_ += count;
    }

private:
    const std::uint8_t* at_;
};

}  // namespace

void EncodeHeader(const LogHeader& header, std::uint8_t* bytes) {
    Putter put(bytes);
    put.Word32(header.version);
    put.Word32(header.dataOffset);
    put.Word32(header.endMark);
    const LocalTime& t = header.startTime;
    for (const std::uint16_t part : {t.year, t.month, t.dayOfWeek, t.day, t.hour, t.minute, t.second, t.milliseconds}) {
        put.Word16(part);
    }
    put.Bytes(header.reserved, std::size(header.reserved));
    put.Word32(header.sampleCount);
}

LogHeader DecodeHeader(const std::uint8_t* bytes) {
    Getter get(bytes);
    LogHeader header;
    header.version = get.Word32();
    header.dataOffset = get.Word32();
    header.endMark = get.Word32();
    LocalTime& t = header.startTime;
    for (std::uint16_t* part :
         {&t.year, &t.month, &t.dayOfWeek, &t.day, &t.hour, &t.minute, &t.second, &t.milliseconds}) {
        *part = get.Word16();
    }
    get.Bytes(header.reserved, std::size(header.reserved));
    header.sampleCount = get.Word32();
    return header;
}

void EncodeItem(const LogItemFields& item, std::uint8_t* bytes) {
    Putter put(bytes);
    put.Word32(item.commandId);
    put.Bytes(item.title, std::size(item.title));
    put.Word8(item.reserved);
    put.Word32(item.type);
    put.Word32(item.packedSize);
    put.Word32(item.fullSize);
    put.Word8(item.maskLength);
}

LogItemFields DecodeItem(const std::uint8_t* bytes) {
    Getter get(bytes);
    LogItemFields item;
    item.commandId = get.Word32();
    get.Bytes(item.title, std::size(item.title));
    item.reserved = get.Word8();
    item.type = get.Word32();
    item.packedSize = get.Word32();
    item.fullSize = get.Word32();
    item.maskLength = get.Word8();
    return item;
}

void EncodeRecord(const LogRecord& record, std::uint8_t* bytes) {
    Putter put(bytes);
    put.Word32(record.nextOffset);
    put.Word32(record.timeMs);
    put.Word8(record.itemIndex);
    put.Bytes(record.reserved, std::size(record.reserved));
}

LogRecord DecodeRecord(const std::uint8_t* bytes) {
    Getter get(bytes);
    LogRecord record;
    record.nextOffset = get.Word32();
    record.timeMs = get.Word32();
    record.itemIndex = get.Word8();
    get.Bytes(record.reserved, std::size(record.reserved));
    return record;
}

}  // namespace corvex
