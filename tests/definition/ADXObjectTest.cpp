#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "definition/ADXCListenSilence.h"
#include "definition/ADXObject.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(HashId, KnowsTheWorkedTexts) {
    EXPECT_EQ(HashId("", 0), 0xDC379ACFu);
    EXPECT_EQ(HashId("A", 1), 0x86F344BBu);
    EXPECT_EQ(HashId("RPM", 3), 0xCD0CD1DBu);
    EXPECT_NE(HashId("rpm", 3), 0xCD0CD1DBu);
    EXPECT_EQ(HashId("RPM", 3, 1000), 0xCD0CD1DBu % 1000);
    EXPECT_EQ(HashId(nullptr, 5), 0u);
    // Bytes are unsigned. From the start value, one step: rotate-left(0xDC379ACF ^ 0xD1, 5).
    EXPECT_EQ(HashId("\xFF", 1), 0x86F343DBu);
}

TEST(HashId, UsesEveryByteValueOnce) {
    // The table is a permutation, so no two single bytes may share a hash.
    for (unsigned a = 0; a < 256; ++a) {
        for (unsigned b = 0; b < a; ++b) {
            const auto first = static_cast<char>(a);
            const auto second = static_cast<char>(b);
            ASSERT_NE(HashId(&first, 1), HashId(&second, 1)) << a << " and " << b;
        }
    }
}

TEST(ADXObject, KeepsTheFirst15CharactersOfAnIdAndHashesOnlyThose) {
    const struct {
        const char *id, *kept;
        std::uint32_t hash;
    } cases[] = {{"ABCDEFGHIJKLMNOPQR", "ABCDEFGHIJKLMNO", HashId("ABCDEFGHIJKLMNO", 15)},
                 {"A", "A", 0x86F344BB},  // leaves nothing of a longer one behind
                 {nullptr, "", 0},
                 {"", "", 0xDC379ACF}};
    ADXObject object;
    for (const auto& one : cases) {
        object.SetId(one.id);
        EXPECT_STREQ(object.Id(), one.kept);
        EXPECT_EQ(object.GetIdHash(), one.hash) << one.kept;
    }
}

TEST(ADXObject, GivesAtMost14CharactersOfAnIdWithinTheBuffer) {
    ADXObject object;
    object.SetId("ABCDEFGHIJKLMNO");
    char text[100];
    EXPECT_EQ(object.GetId(text, sizeof text), 14u);
    EXPECT_STREQ(text, "ABCDEFGHIJKLMN");
    EXPECT_EQ(object.GetId(text, 4), 3u);
    EXPECT_STREQ(text, "ABC");
    EXPECT_EQ(object.GetId(text, 0), 0u);
    EXPECT_EQ(object.GetId(nullptr, 4), 0u);
    EXPECT_STREQ(text, "ABC");
}

TEST(ADXObject, StartsBareAndWritesNothingOfItself) {
    const ADXObject object;
    EXPECT_EQ(object.GetType(), 2u);
    EXPECT_EQ(object.GetIdHash(), 0u);
    EXPECT_EQ(object.GetBaseFlags(), 0u);
    EXPECT_EQ(std::string(object.Id()) + object.Title() + object.Desc(), "");
    EXPECT_EQ(object.Write(nullptr), 0);
    EXPECT_EQ(test::WrittenText(object), "");
}

TEST(ADXObject, CopiesTitleAndDescription) {
    ADXObject object;
    object.SetTitle("Engine speed", 6);
    object.SetDesc("From the crank", 14);
    char text[8] = "old";
    EXPECT_EQ(object.GetTitle(text, sizeof text), 6u);
    EXPECT_STREQ(text, "Engine");
    EXPECT_EQ(object.GetDesc(text, sizeof text), 7u);
    EXPECT_STREQ(text, "From th");
    object.SetTitle(nullptr, 5);
    EXPECT_EQ(object.GetTitle(text, sizeof text), 0u);
    EXPECT_STREQ(text, "");
}

}  // namespace
}  // namespace corvex
