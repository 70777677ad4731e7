#include <gtest/gtest.h>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "files/ads/AdsConverter.h"
#include "tests/files/ads/AdsTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes SentBytes(const AdsTexts& record) {
    const AdsImport file(AdsHeaderBlock("1.2", "8192", "1", record));
    const auto& command = file.Get<ADXCSendCommand>("COMMAND0");
    return {command.bytestring(), command.bytestring() + command.size()};
}

TEST(AdsConverter, NullArgumentsGiveZero) {
    ADXDefinition definition;
    definition.baud = 1;
    AdsReader reader;
    EXPECT_EQ(ConvertAds(nullptr, &reader), 0);
    EXPECT_EQ(ConvertAds(&definition, nullptr), 0);
    EXPECT_EQ(definition.baud, 1u);
}

TEST(AdsConverter, ClearsTheDefinitionFirst) {
    AdsImport file(WholeAdsFile());
    file.definition.flags = 1;
    AdsReader empty;
    EXPECT_EQ(ConvertAds(&file.definition, &empty), 1);
    EXPECT_EQ(file.definition.GetCount(), 0u);
    EXPECT_EQ(file.definition.flags, 0u);
    EXPECT_EQ(file.definition.baud, 8192u);
    EXPECT_EQ(file.definition.monitorcmd, nullptr);
    EXPECT_FALSE(file.definition.Author().IsSet());
}

TEST(AdsConverter, TakesTheHeader) {
    const AdsImport file(AdsHeaderBlock("1.2", "9600"));
    EXPECT_STREQ(file.definition.Author().CStr(), "Author");
    EXPECT_STREQ(file.definition.Desc().CStr(), "Comments");
    EXPECT_EQ(file.definition.baud, 9600u);
    EXPECT_EQ(AdsImport(AdsHeaderBlock("1.0", "160")).definition.baud, 8192u) << "version 1.0 knows no other";
}

TEST(AdsConverter, A160BaudFileMakesOneListenCommandAt4800Baud) {
    AdsTexts two = AdsRecord("Stream", "F4", "1", "0");
    for (const std::string& field : AdsRecord("Second", "F4", "1", "0", "1"))
        two.push_back(field);
    const struct {
        const char* count;
        AdsTexts records;
        const char* title;
        std::uint32_t packetsize;
    } cases[] = {{"2", two, "Stream", 20}, {"0", {}, "New ALDL Data Command", 63}};
    for (const auto& one : cases) {
        const AdsImport file(AdsHeaderBlock("1.2", "160", one.count, one.records));
        EXPECT_EQ(file.definition.baud, 4800u);
        ASSERT_EQ(file.definition.GetCount(), 1u);
        const auto& listen = file.Get<ADXC160BaudListen>("160BAUD");
        EXPECT_STREQ(listen.Title(), one.title);
        EXPECT_EQ(listen.packetsize, one.packetsize);
        EXPECT_EQ(file.definition.monitorcmd, &listen);
    }
    const AdsImport file(AdsHeaderBlock("1.2", "160", "1", {"Stream", "", "0", "0", "0"}));
    EXPECT_EQ(file.definition.GetCount(), 0u) << "without a payload there is no command";
    EXPECT_EQ(file.definition.baud, 4800u);
    EXPECT_EQ(file.definition.monitorcmd, nullptr);
}

TEST(AdsConverter, ARecordMakesASendCommand) {
    const AdsImport file(AdsHeaderBlock("1.2", "8192", "1", AdsRecord("Poll", "F4,57,01,00", "5", "1")));
    const auto& command = file.Get<ADXCSendCommand>("COMMAND0");
    EXPECT_EQ(test::Listed(command.Title(), command.replysize, command.packetoffset, command.packetsize, command.flags),
              "Poll 23 3 20 1");
    EXPECT_EQ(file.definition.monitorcmd, nullptr);
}

TEST(AdsConverter, SendsTheBytesAndTheTwosComplementOfTheirSum) {
    const struct {
        const char *bytes, *total, *checksum;
        Bytes sent;
    } cases[] = {
        {"F4,57,01,00", "5", "1", {0xF4, 0x57, 0x01, 0x00, 0xB4}},
        {"80,80", "3", "1", {0x80, 0x80, 0x00}},
        {"F4,57,01", "2", "-1", {0xF4, 0x0C}},
        // Without a checksum the bytes go as they stand.
        {"F4,57,01,00", "4", "0", {0xF4, 0x57, 0x01, 0x00}},
        {"F4", "3", "0", {0xF4, 0x00, 0x00}},
        // A length is cut to the bytes that there are.
        {"F4", "0", "1", {}},
        {"F4", "1", "1", {0x00}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(SentBytes(AdsRecord("N", one.bytes, one.total, one.checksum)), one.sent) << one.bytes;
    EXPECT_EQ(SentBytes(AdsRecord("N", "F4", "4294967295", "0")).size(), 10u);
    EXPECT_EQ(SentBytes(AdsRecord("N", "F4", "2147483648", "1")).size(), 11u);
    EXPECT_EQ(SentBytes(AdsRecord("N", "1,1,1,1,1,1,1,1,1,1", "-1", "1")).back(), 0xF6);
}

TEST(AdsConverter, TheLastMasterWins) {
    AdsTexts records;
    for (const char* master : {"1", "7", "0"}) {
        for (const std::string& field : AdsRecord("N", "F4", "1", "0", master))
            records.push_back(field);
    }
    const AdsImport file(AdsHeaderBlock("1.2", "8192", "3", records));
    EXPECT_EQ(file.definition.monitorcmd, file.definition.FindById("COMMAND1"));
    EXPECT_EQ(file.definition.GetCount(), 3u);
}

}  // namespace
}  // namespace corvex
