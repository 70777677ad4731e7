#include <gtest/gtest.h>

#include <set>

#include "files/ads/AdsReader.h"
#include "tests/files/ads/AdsTestHelper.h"
#include "tests/support/Listed.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

using test::Listed;

const AdsTexts kBit = {"3", "2", "5", "Lamp", "1", "0", "On", "Off"};

TEST(AdsReader, ReadsEveryFieldOfAValue) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(1, "12",
                                                    {"4", "2", "16", "3", "0.5", "-1e1", "Title", "rpm", "200", "1",
                                                     "20", "2", "-7", "-8", "40"}));
    ASSERT_EQ(file.reader.Values().size(), 1u);
    const ALDLValue& value = *file.reader.Values()[0];
    EXPECT_EQ(Listed(value.dwItemType, value.strItemComments, value.bVisible, value.dwUniqueID, value.btByteNumber,
                     value.btMessageNumber, value.dwItemSizeBits, value.dwOperation, value.dFactor, value.dOffset,
                     value.strUnitLabel, value.dwAlarmHigh, value.bAlarmHighENable, value.dwAlarmLow,
                     value.bAlarmLowEnable, value.iRangeHigh, value.iRangeLow, value.iLookupTableIndex),
              "1 comment 1 12 4 2 16 3 0.5 -10 rpm 200 1 20 2 -7 -8 40");
}

TEST(AdsReader, ReadsEveryFieldOfABitADashAndATable) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(2, "1", kBit) + AdsItem(6, "2", {"4", "1,2", "1", "3"}) +
                         AdsItem(5, "3", {"1", "300", "2", "Map", "ignored", "ignored", "0,5\n"}));
    const ALDLBit& bit = *file.reader.Bits().at(0);
    EXPECT_EQ(Listed(bit.GetTitle(), bit.btByteNumber, bit.btMessageNumber, bit.btBitNumber, bit.bAlarmSetEnable,
                     bit.bAlarmNotSetEnable, bit.strBitSetTitle, bit.strBitClearTitle),
              "Lamp 3 2 5 1 0 On Off");
    const ALDLDash& dash = *file.reader.Dashes().at(0);
    EXPECT_EQ(Listed(dash.btNumGauges, dash.strIDsDisplayed, dash.btNumMonitors, dash.strMonsDisplayed), "4 1,2 1 3");
    const ALDLLookupTable& table = *file.reader.Tables().at(0);
    EXPECT_EQ(Listed(table.GetTitle(), table.btDataType, table.wTableSize, table.wIndexSize, table.pbtData,
                     table.slots.count, table.slots.At(0)),
              "Map 1 300 2 0,5\n 300 5");
}

TEST(AdsReader, DefaultsStandUntilTheFileSaysOtherwise) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(1, "1", {}) + AdsItem(2, "2", {"9"}) + AdsItem(5, "3", {}) +
                         AdsItem(6, "4", {}));
    const ALDLValue& value = *file.reader.Values()[0];
    EXPECT_EQ(Listed(value.GetTitle(), value.btMessageNumber, value.dwItemSizeBits, value.dFactor, value.strUnitLabel,
                     value.dwAlarmHigh, value.iRangeHigh, value.iLookupTableIndex),
              "New ALDL Value 1 8 0 Units 255 255 -1");
    const ALDLBit& bit = *file.reader.Bits()[0];
    EXPECT_EQ(Listed(bit.GetTitle(), bit.btByteNumber, bit.strBitSetTitle, bit.strBitClearTitle), "New ALDL Bit 9 1 0");
    const ALDLLookupTable& table = *file.reader.Tables()[0];
    EXPECT_EQ(Listed(table.GetTitle(), table.btDataType, table.slots.count), "New Lookup Table 2 256");
    EXPECT_EQ(file.reader.Dashes()[0]->GetTitle(), "ALDL Dash");
    EXPECT_EQ(ALDLItem().GetTitle(), "");
}

TEST(AdsReader, AnItemThatEndsInItsCommonFieldsTakesNothingFromTheNext) {
    const AdsImport file(AdsHeaderBlock() + "{=1;=comment;}" + AdsItem(2, "7", kBit));
    ASSERT_EQ(file.reader.Values().size(), 1u);
    EXPECT_EQ(file.reader.Values()[0]->btByteNumber, 0u);
    ASSERT_EQ(file.reader.Bits().size(), 1u);
    EXPECT_EQ(file.reader.Bits()[0]->dwUniqueID, 7u);
}

TEST(AdsReader, PassesOverTypesThatBecomeNothing) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(3, "7", {}) + AdsItem(4, "8", {}) + AdsItem(0, "9", {}) +
                         AdsItem(2, "7", kBit));
    EXPECT_EQ(file.reader.Losses().otheritems, 3u);
    ASSERT_EQ(file.reader.Bits().size(), 1u);
    // A number that only a passed-over item has is free.
    EXPECT_EQ(file.reader.Bits()[0]->dwUniqueID, 7u);
    EXPECT_EQ(file.reader.Losses().renumbered, 0u);
}

TEST(AdsReader, SkipsBannersAndNotes) {
    const AdsImport file(
        "// Created by Tarvex. Hand editing is *not* recommended or supported.\n//---- HEADER ----\n} ;\n" +
        AdsHeaderBlock() + "// a } note; of no account\n" + AdsItem(2, "7", kBit) + "trailing }");
    EXPECT_EQ(file.reader.Header().strDefTitle, "Title");
    EXPECT_EQ(file.reader.Bits().size(), 1u);
}

TEST(AdsReader, ASignOfEqualityInANoteShiftsTheFieldsBehindIt) {
    const std::string item = "{ =2; =comment; =0; =1; =7; // half = full;\n =3; =1; =5; =Lamp; }";
    const AdsImport file(AdsHeaderBlock() + item);
    EXPECT_EQ(file.reader.Bits()[0]->btByteNumber, 0u);  // " full" is no number
    EXPECT_EQ(file.reader.Bits()[0]->btMessageNumber, 3u);
    EXPECT_EQ(file.reader.Bits()[0]->btBitNumber, 1u);
    EXPECT_EQ(file.reader.Bits()[0]->strItemTitle, "5");
}

TEST(AdsReader, TwoItemsOfOneNumberBothSurviveTheLaterUnderANewOne) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(2, "7", kBit) + AdsItem(1, "7", {}) +
                         AdsItem(5, "7", AdsTable("")) + AdsItem(6, "7", {}) + AdsItem(1, "8", {}));
    EXPECT_EQ(file.reader.Bits()[0]->dwUniqueID, 7u);
    EXPECT_EQ(file.reader.Bits()[0]->itemflags, 0u);
    EXPECT_EQ(file.reader.Values()[0]->itemflags, 1u);
    EXPECT_EQ(file.reader.Values()[1]->dwUniqueID, 8u);
    const std::set<std::uint32_t> numbers = {file.reader.Bits()[0]->dwUniqueID, file.reader.Values()[0]->dwUniqueID,
                                             file.reader.Values()[1]->dwUniqueID, file.reader.Tables()[0]->dwUniqueID,
                                             file.reader.Dashes()[0]->dwUniqueID};
    EXPECT_EQ(numbers.size(), 5u);
    EXPECT_EQ(file.reader.Losses().renumbered, 3u);
    EXPECT_NE(file.definition.GetObject(kTypeValue | kTypeBitmask | kTypeLookupTable, 3), nullptr);
}

TEST(AdsReader, ASeparatorTakesItsNumber) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(1, "7", {}, 1) + AdsItem(2, "7", kBit));
    EXPECT_EQ(file.reader.Values()[0]->dwUniqueID, 7u);
    EXPECT_NE(file.reader.Bits()[0]->dwUniqueID, 7u);
    EXPECT_EQ(file.definition.FindById("7"), nullptr);
}

TEST(AdsReader, FindsFreeNumbersAroundTheEndOfTheirRange) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(2, "2147483647", kBit) + AdsItem(2, "2147483647", kBit) +
                         AdsItem(2, "-1", kBit) + AdsItem(2, "4294967295", kBit) + AdsItem(2, "-2147483648", kBit));
    std::set<std::uint32_t> numbers;
    for (const auto& bit : file.reader.Bits())
        numbers.insert(bit->dwUniqueID);
    EXPECT_EQ(numbers.size(), 5u);
}

TEST(AdsReader, LinksValuesOfOperation6ToTheirTable) {
    const AdsImport file(AdsHeaderBlock() + AdsItem(1, "1", AdsValueText{.operation = "6", .table = "40"}.Fields()) +
                         AdsItem(1, "2", AdsValueText{.operation = "0", .table = "40"}.Fields()) +
                         AdsItem(1, "3", AdsValueText{.operation = "6", .table = "4"}.Fields()) +
                         AdsItem(5, "39", AdsTable("")) + AdsItem(5, "40", AdsTable("")) +
                         AdsItem(5, "40", AdsTable("")));
    EXPECT_EQ(file.reader.Values()[0]->table, file.reader.Tables()[1].get());
    EXPECT_EQ(file.reader.Values()[1]->table, nullptr);
    EXPECT_EQ(file.reader.Values()[2]->table, nullptr);
}

TEST(AdsReader, ReadsTheTextOfATableWhole) {
    std::string data;
    for (int i = 0; i < 256; ++i)
        data.append(std::to_string(i)).append(",").append(std::to_string(1000 + i)).append("\n");
    const AdsImport file(AdsHeaderBlock() + AdsItem(5, "7", AdsTable(data)));
    EXPECT_EQ(file.reader.Tables().at(0)->slots.At(255), 1255.0F);
    EXPECT_EQ(file.reader.Losses().cutfields, 0u);
}

TEST(AdsReader, ReadsAgainFromNothing) {
    AdsReader reader;
    const std::string text = WholeAdsFile();
    reader.ReadMemory(text.data(), text.size());
    EXPECT_TRUE(reader.Losses().header);
    EXPECT_EQ(reader.Losses().renumbered, 1u);
    reader.ReadMemory("", 0);
    EXPECT_FALSE(reader.Losses().header);
    EXPECT_EQ(reader.Losses().renumbered, 0u);
    EXPECT_TRUE(reader.Values().empty() && reader.Bits().empty() && reader.Tables().empty() && reader.Dashes().empty());
    EXPECT_EQ(reader.Header().strAuthor, "");
    reader.ReadMemory(text.data(), text.size());
    EXPECT_EQ(reader.Tables()[0]->dwUniqueID, 40u);
    EXPECT_EQ(reader.Tables()[0]->slots.count, 302u);
}

TEST(AdsReader, GivesZeroForAFileThatCantBeOpened) {
    const test::TestFolder folder;
    const std::string itself = folder.Name("");
    for (const char* path : {"no/such/file.ads", "", static_cast<const char*>(nullptr), itself.c_str()}) {
        AdsReader reader;
        const std::string text = WholeAdsFile();
        reader.ReadMemory(text.data(), text.size());
        EXPECT_EQ(ReadAds(path, &reader), 0);
        EXPECT_TRUE(reader.Values().empty());
    }
    EXPECT_EQ(ReadAds("examples/kestrel-legacy.ads", nullptr), 0);
}

TEST(AdsReader, ReadsAFileAsItReadsMemory) {
    const test::TestFolder folder;
    AdsReader reader;
    EXPECT_EQ(ReadAds(folder.Put("a.ads", WholeAdsFile()).c_str(), &reader), 1);
    EXPECT_EQ(reader.Values().size(), 2u);
    EXPECT_EQ(reader.Tables().size(), 2u);
    EXPECT_EQ(reader.Header().CommandCount(), 2u);
}

}  // namespace
}  // namespace corvex
