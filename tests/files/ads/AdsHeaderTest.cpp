#include <gtest/gtest.h>

#include "files/ads/AdsHeader.h"
#include "tests/files/ads/AdsTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

TEST(AdsHeader, ReadsEveryField) {
    const AdsImport file(
        AdsHeaderBlock("1.2", "9600", "1", AdsRecord("Name", "F4, 0x57,3,4,5,6,7,8,9,AB,C", "5", "0", "1")));
    const AdsHeader& header = file.reader.Header();
    EXPECT_EQ(test::Listed(header.strDefVersion, header.strAuthor, header.strCodeMask, header.strComments,
                           header.CommandCount()),
              "V 1 Author MASK Comments 1");
    const AdsCommand& command = header.commands[0];
    EXPECT_EQ(
        test::Listed(command.strCommandName, command.iTotalBytesInCommand, command.bChecksumCommand,
                     command.iNumBytesInPayload, command.iNumBytesBeforePayload, command.bMaster, command.iChainTo),
        "Name 5 0 20 3 1 -1");
    EXPECT_EQ(command.rgbtCommand, (std::array<std::uint8_t, 10>{0xF4, 0x57, 3, 4, 5, 6, 7, 8, 9, 0xAB}))
        << "holds ten";
}

TEST(AdsHeader, AnOlderVersionLeavesTheFieldsOfNewerOnesAtDefaults) {
    const std::pair<const char*, const char*> cases[] = {
        {"1.2", "9600 43981 18 1 Title"},
        {"1.1", "9600 0 18 1 Title"},
        {"1.0", "8192 0 18 1 Title"},
        {"old", "8192 0 0 0 New ALDL Datastream Definition"},
    };
    for (const auto& [version, fields] : cases) {
        const AdsHeader header = AdsImport(AdsHeaderBlock(version, "9600", "1")).reader.Header();
        EXPECT_EQ(
            test::Listed(header.iBaud, header.dwFlags, header.dwCSID, header.btNumDumpRequests, header.strDefTitle),
            fields)
            << version;
    }
}

TEST(AdsHeader, TextsKeepOneCharacterLessThanTheirSize) {
    const std::string text(300, 'x');
    const AdsImport file(
        AdsBlock({"1.2", text, text, text, text, text, text, text, text, "8192", "0", "0", "1", text}));
    const AdsHeader& header = file.reader.Header();
    EXPECT_EQ(test::Listed(header.strDefVersion.size(), header.strDefTitle.size(), header.strAuthor.size(),
                           header.strEngine.size(), header.strYear.size(), header.strComments.size(),
                           header.commands[0].strCommandName.size()),
              "14 99 49 49 255 255 99");
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
