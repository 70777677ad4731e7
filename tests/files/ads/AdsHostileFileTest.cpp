// Files that are cut, damaged or made to do harm end in a definition of a size that they justify.
#include <gtest/gtest.h>

#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"
#include "tests/files/ads/AdsTestHelper.h"

namespace corvex {
namespace {

void ExpectUsable(std::string_view bytes) {
    AdsImport file(bytes);
    const std::uint8_t packet[] = {1, 2, 3, 4, 5, 6, 7, 8};
    file.definition.UpdateValues({packet, sizeof packet}, 0);
    for (const auto& object : file.definition.Objects()) {
        if (object->GetType() == kTypeValue)
            static_cast<ADXValue&>(*object).Compute(file.definition, {packet, sizeof packet});
    }
    ASSERT_LE(file.definition.GetCount(), bytes.size() + AdsHeader::kCommandLimit + 1);
}

TEST(AdsHostileFile, AFileCutAtAnyLengthIsRead) {
    const std::string text = WholeAdsFile();
    const AdsImport whole(text);
    ASSERT_EQ(whole.definition.GetCount(), 8u);
    for (std::size_t length = 0; length < text.size(); ++length) {
        ExpectUsable(std::string_view(text).substr(0, length));
        const AdsImport cut(std::string_view(text).substr(0, length));
        ASSERT_LE(cut.reader.Values().size(), 2u) << length;
    }
}

TEST(AdsHostileFile, EveryFlippedByteIsRead) {
    const std::string text = WholeAdsFile();
    for (std::size_t at = 0; at < text.size(); ++at) {
        for (const char bits : {'\x01', '\x10', '\x80', '\x04'}) {
            std::string damaged = text;
            damaged[at] = static_cast<char>(damaged[at] ^ bits);
            ExpectUsable(damaged);
        }
    }
}

TEST(AdsHostileFile, ATableIsNoLargerThanTheFileJustifies) {
    for (const char* size : {"2147483648", "4294967295", "-1", "65536"}) {
        const AdsImport file(AdsHeaderBlock() + AdsItem(5, "1", AdsTable("0,1\n2147483647,2\n-5,3\n", size)));
        EXPECT_LE(file.reader.Tables()[0]->slots.count, 256 + 16 * 400u) << size;
        EXPECT_EQ(file.reader.Tables()[0]->slots.numbers.size(), 1u) << size;
        EXPECT_EQ(file.reader.Losses().tablelines, 2u) << size;
    }
}

TEST(AdsHostileFile, ALargeTableOfALargeFileIsWhole) {
    const AdsImport file(AdsHeaderBlock() + std::string(8000, '-') +
                         AdsItem(5, "1", AdsTable("0,1\n65534,2\n", "65535")));
    EXPECT_EQ(file.reader.Tables()[0]->slots.count, 65535u);
    EXPECT_EQ(file.reader.Tables()[0]->slots.At(65534), 2.0F);
    EXPECT_EQ(file.reader.Losses().cuttables, 0u);
    EXPECT_EQ(static_cast<ADXLookupTable&>(*file.definition.Objects()[0]).GetEntryCount(), 65535u - 255u);
}

TEST(AdsHostileFile, ManyHugeTablesShareOneReserve) {
    std::string text = AdsHeaderBlock();
    for (int i = 0; i < 500; ++i)
        text += AdsItem(5, std::to_string(i), AdsTable("0,1\n255,2\n65000,3\n", "65535"));
    const AdsImport file(text);
    std::uint64_t slots = 0, entries = 0;
    for (const auto& table : file.reader.Tables())
        slots += table->slots.count;
    for (const auto& object : file.definition.Objects())
        entries += static_cast<ADXLookupTable&>(*object).GetEntryCount();
    EXPECT_EQ(slots, 500u * 256u + AdsReader::kSlotReserve);
    EXPECT_LE(entries, 500u * 3u + AdsReader::kSlotReserve);
    EXPECT_EQ(file.reader.Losses().cuttables, 500u);
}

TEST(AdsHostileFile, ManyItemsOfOneNumberGetNumbersOfTheirOwn) {
    std::string text = AdsHeaderBlock();
    for (int i = 0; i < 20000; ++i)
        text += "{=1;=;=0;=1;=5;=1;=1;=8;=6;=1;=0;=V;=U;=255;=0;=0;=0;=255;=0;=5;}";
    const AdsImport file(text);
    EXPECT_EQ(file.reader.Losses().renumbered, 19999u);
    ASSERT_EQ(file.definition.GetCount(), 20001u);
    EXPECT_EQ(static_cast<ADXListView&>(*file.definition.Objects().back()).GetEntryCount(), 255u);
}

}  // namespace
}  // namespace corvex
