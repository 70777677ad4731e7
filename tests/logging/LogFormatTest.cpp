#include <gtest/gtest.h>

#include <iterator>

#include "logging/LogFormat.h"
#include "tests/support/LogBytes.h"

namespace corvex::test {
namespace {

TEST(LogFormatTest, HeaderStandsInFortyBytes) {
    LogHeader header;
    header.version = 3;
    header.dataOffset = 0x01020304;
    header.endMark = 0xA1A2A3A4;
    header.startTime = {2026, 7, 3, 1, 12, 34, 56, 789};
    for (std::uint8_t i = 0; i < 8; ++i)
        header.reserved[i] = static_cast<std::uint8_t>(0xE0 + i);
    header.sampleCount = 0x51525354;
    std::uint8_t bytes[kLogHeaderBytes];
    EncodeHeader(header, bytes);
    const Bytes expected = {3,    0,    0,    0,    4,    3,    2,    1,    0xA4, 0xA3, 0xA2, 0xA1, 0xEA, 7,
                            7,    0,    3,    0,    1,    0,    12,   0,    34,   0,    56,   0,    0x15, 3,
                            0xE0, 0xE1, 0xE2, 0xE3, 0xE4, 0xE5, 0xE6, 0xE7, 0x54, 0x53, 0x52, 0x51};
    EXPECT_EQ(expected, Bytes(std::begin(bytes), std::end(bytes)));
}

TEST(LogFormatTest, HeaderIsReadBackWhole) {
    Bytes bytes(kLogHeaderBytes);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(7 * i + 1);
    Bytes again(kLogHeaderBytes);
    EncodeHeader(DecodeHeader(bytes.data()), again.data());
    EXPECT_EQ(bytes, again);
}

TEST(LogFormatTest, ItemStandsInThirtyThreeBytes) {
    LogItemFields item;
    item.commandId = 0xA6607299;
    item.title[0] = 'T';
    item.title[14] = 'Z';
    item.reserved = 0x99;
    item.type = 0x20000;
    item.packedSize = 63;
    item.fullSize = 0x01000200;
    item.maskLength = 15;
    Bytes bytes(kLogItemBytes);
    EncodeItem(item, bytes.data());
    const Bytes expected = {0x99, 0x72, 0x60, 0xA6, 'T', 0, 0, 0,  0, 0, 0, 0, 0, 0, 0, 0, 0,
                            0,    'Z',  0x99, 0,    0,   2, 0, 63, 0, 0, 0, 0, 2, 0, 1, 15};
    EXPECT_EQ(expected, bytes);
    Bytes again(kLogItemBytes);
    EncodeItem(DecodeItem(bytes.data()), again.data());
    EXPECT_EQ(bytes, again);
}

// The length has two bytes in memory; the item ends after the first.
TEST(LogFormatTest, OnlyLowByteOfMaskLengthIsStored) {
    LogItemFields item;
    item.maskLength = 0x0203;
    Bytes bytes(kLogItemBytes + 1, 0xEE);
    EncodeItem(item, bytes.data());
    EXPECT_EQ(3, bytes[32]);
    EXPECT_EQ(0xEE, bytes[33]);
    EXPECT_EQ(3, DecodeItem(bytes.data()).maskLength);
}

TEST(LogFormatTest, RecordStandsInTwelveBytes) {
    LogRecord record;
    record.nextOffset = 0x01020304;
    record.timeMs = 0x05060708;
    record.itemIndex = 9;
    record.reserved[0] = 0xA;
    record.reserved[2] = 0xC;
    Bytes bytes(kLogRecordBytes);
    EncodeRecord(record, bytes.data());
    EXPECT_EQ((Bytes{4, 3, 2, 1, 8, 7, 6, 5, 9, 0xA, 0, 0xC}), bytes);
    Bytes again(kLogRecordBytes);
    EncodeRecord(DecodeRecord(bytes.data()), again.data());
    EXPECT_EQ(bytes, again);
}

}  // namespace
}  // namespace corvex::test
