#include <gtest/gtest.h>

#include "files/ads/AdsHeader.h"
#include "tests/files/ads/AdsTestHelper.h"

namespace corvex {
namespace {

TEST(AdsHeader, ReadsEveryField) {
    const AdsImport file(
        AdsHeaderBlock("1.2", "9600", "1", AdsRecord("Name", "F4, 0x57,3,4,5,6,7,8,9,AB,C", "5", "0", "1")));
    const AdsHeader& header = file.reader.Header();
    EXPECT_EQ(header.strDefVersion, "V 1");
    EXPECT_EQ(header.strAuthor, "Author");
    EXPECT_EQ(header.strCodeMask, "MASK");
    EXPECT_EQ(header.strComments, "Comments");
    ASSERT_EQ(header.CommandCount(), 1u);
    const AdsCommand& command = header.commands[0];
    EXPECT_EQ(command.strCommandName, "Name");
    EXPECT_EQ(command.rgbtCommand, (std::array<std::uint8_t, 10>{0xF4, 0x57, 3, 4, 5, 6, 7, 8, 9, 0xAB}))
        << "holds ten";
    EXPECT_EQ(command.iTotalBytesInCommand, 5u);
    EXPECT_EQ(command.bChecksumCommand, 0);
    EXPECT_EQ(command.iNumBytesInPayload, 20u);
    EXPECT_EQ(command.iNumBytesBeforePayload, 3u);
    EXPECT_EQ(command.bMaster, 1);
    EXPECT_EQ(command.iChainTo, -1);
}

TEST(AdsHeader, AnOlderVersionLeavesTheFieldsOfNewerOnesAtDefaults) {
    const struct {
        const char* version;
        std::uint32_t baud, flags, csid, requests;
        const char* title;
    } cases[] = {
        {"1.2", 9600, 0xABCD, 0x12, 1, "Title"},
        {"1.1", 9600, 0, 0x12, 1, "Title"},
        {"1.0", 8192, 0, 0x12, 1, "Title"},
        {"old", 8192, 0, 0, 0, "New ALDL Datastream Definition"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.version);
        const AdsHeader header = AdsImport(AdsHeaderBlock(one.version, "9600", "1")).reader.Header();
        EXPECT_EQ(header.iBaud, one.baud);
        EXPECT_EQ(header.dwFlags, one.flags);
        EXPECT_EQ(header.dwCSID, one.csid);
        EXPECT_EQ(header.btNumDumpRequests, one.requests);
        EXPECT_EQ(header.strDefTitle, one.title);
    }
}

TEST(AdsHeader, TextsKeepOneCharacterLessThanTheirSize) {
    const std::string text(300, 'x');
    const AdsImport file(
        AdsBlock({"1.2", text, text, text, text, text, text, text, text, "8192", "0", "0", "1", text}));
    const AdsHeader& header = file.reader.Header();
    EXPECT_EQ(header.strDefVersion.size(), 14u);
    EXPECT_EQ(header.strDefTitle.size(), 99u);
    EXPECT_EQ(header.strAuthor.size(), 49u);
    EXPECT_EQ(header.strEngine.size(), 49u);
    EXPECT_EQ(header.strYear.size(), 255u);
    EXPECT_EQ(header.strComments.size(), 255u);
    EXPECT_EQ(header.commands[0].strCommandName.size(), 99u);
}

TEST(AdsHeader, RecordsBeyondTheTenthAreReadAndDropped) {
    AdsTexts records;
    for (int i = 0; i < 12; ++i) {
        for (const std::string& field : AdsRecord(std::string("R").append(std::to_string(i)), "F4", "1", "0"))
            records.push_back(field);
    }
    const AdsImport file(AdsHeaderBlock("1.2", "8192", "12", records) +
                         AdsItem(2, "7", {"1", "1", "0", "Bit", "0", "0", "1", "0"}));
    EXPECT_EQ(file.reader.Header().CommandCount(), 10u);
    EXPECT_EQ(file.reader.Header().commands[0].strCommandName, "R0");
    EXPECT_EQ(file.reader.Header().commands[9].strCommandName, "R9");
    EXPECT_EQ(file.reader.Losses().extracommands, 2u);
    EXPECT_EQ(file.definition.GetObject(kTypeAny, 9)->GetType(), kTypeSendCommand);
    EXPECT_EQ(file.definition.GetObject(kTypeAny, 10)->GetType(), kTypeBitmask);
}

TEST(AdsHeader, AHugeCountOfRecordsEndsWithTheBlock) {
    for (const char* count : {"2147483648", "4294967295", "99999999999999", "-1"}) {
        const AdsImport file(AdsHeaderBlock("1.2", "8192", count, AdsRecord("One", "F4", "1", "0")));
        EXPECT_EQ(file.reader.Header().CommandCount(), 10u) << count;
        EXPECT_EQ(file.reader.Header().commands[0].strCommandName, "One");
        EXPECT_EQ(file.reader.Header().commands[1].strCommandName, "New ALDL Data Command");
        EXPECT_EQ(file.reader.Losses().extracommands, 0u);
    }
}

}  // namespace
}  // namespace corvex
