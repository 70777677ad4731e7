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
}

TEST(HashId, TellsCaseApart) {
    EXPECT_NE(HashId("rpm", 3), HashId("RPM", 3));
}

TEST(HashId, GivesZeroForNull) {
    EXPECT_EQ(HashId(nullptr, 5), 0u);
}

TEST(HashId, ReducesByTheModulus) {
    EXPECT_EQ(HashId("RPM", 3, 1000), 0xCD0CD1DBu % 1000);
}

TEST(HashId, TakesBytesAsUnsigned) {
    // From the start value, one step: rotate-left(0xDC379ACF ^ 0xD1, 5).
    const char byte = '\xFF';
    EXPECT_EQ(HashId(&byte, 1), 0x86F343DBu);
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

TEST(ADXObject, StartsBare) {
    const ADXObject object;
    EXPECT_EQ(object.GetType(), 2u);
    EXPECT_EQ(object.GetIdHash(), 0u);
    EXPECT_EQ(object.GetBaseFlags(), 0u);
    EXPECT_STREQ(object.Id(), "");
    EXPECT_STREQ(object.Title(), "");
    EXPECT_STREQ(object.Desc(), "");
}

TEST(ADXObject, KeepsTheFirst15CharactersOfAnIdAndHashesOnlyThose) {
    ADXObject object;
    object.SetId("ABCDEFGHIJKLMNOPQR");
    EXPECT_STREQ(object.Id(), "ABCDEFGHIJKLMNO");
    EXPECT_EQ(object.GetIdHash(), HashId("ABCDEFGHIJKLMNO", 15));
}

TEST(ADXObject, HashesAnEmptyIdThatWasSet) {
    ADXObject object;
    object.SetId("");
    EXPECT_EQ(object.GetIdHash(), 0xDC379ACFu);
}

TEST(ADXObject, ClearsTheIdOnNull) {
    ADXObject object;
    object.SetId("RPM");
    object.SetId(nullptr);
    EXPECT_EQ(object.GetIdHash(), 0u);
    EXPECT_STREQ(object.Id(), "");
}

TEST(ADXObject, LeavesNothingOfALongerIdBehind) {
    ADXObject object;
    object.SetId("LONGER");
    object.SetId("A");
    EXPECT_STREQ(object.Id(), "A");
    EXPECT_EQ(object.GetIdHash(), 0x86F344BBu);
}

TEST(ADXObject, GivesAtMost14CharactersOfAnId) {
    ADXObject object;
    object.SetId("ABCDEFGHIJKLMNO");
    char text[100];
    EXPECT_EQ(object.GetId(text, sizeof text), 14u);
    EXPECT_STREQ(text, "ABCDEFGHIJKLMN");
}

TEST(ADXObject, GivesAnIdWithinTheBuffer) {
    ADXObject object;
    object.SetId("ABCDEF");
    char text[4] = "xxx";
    EXPECT_EQ(object.GetId(text, 4), 3u);
    EXPECT_STREQ(text, "ABC");
    EXPECT_EQ(object.GetId(text, 0), 0u);
    EXPECT_EQ(object.GetId(nullptr, 4), 0u);
    EXPECT_STREQ(text, "ABC");
}

TEST(ADXObject, CopiesTitleAndDescriptionWithinTheBuffer) {
    ADXObject object;
    object.SetTitle("Engine speed", 6);
    object.SetDesc("From the crank", 14);
    char text[8];
    EXPECT_EQ(object.GetTitle(text, sizeof text), 6u);
    EXPECT_STREQ(text, "Engine");
    EXPECT_EQ(object.GetDesc(text, sizeof text), 7u);
    EXPECT_STREQ(text, "From th");
}

TEST(ADXObject, EmptiesTheBufferWhenThereIsNoText) {
    ADXObject object;
    object.SetTitle("Title", 5);
    object.SetTitle(nullptr, 5);
    char text[8] = "old";
    EXPECT_EQ(object.GetTitle(text, sizeof text), 0u);
    EXPECT_STREQ(text, "");
}

TEST(ADXObject, DoesNothingToAnUnusableBuffer) {
    ADXObject object;
    object.SetTitle("Title", 5);
    char text[8] = "old";
    EXPECT_EQ(object.GetTitle(text, 0), 0u);
    EXPECT_EQ(object.GetDesc(nullptr, 8), 0u);
    EXPECT_STREQ(text, "old");
}

TEST(ADXObject, WritesNothingOfABareObject) {
    const ADXObject object;
    EXPECT_EQ(object.Write(nullptr), 0);
    EXPECT_EQ(test::WrittenText(object), "");
}

TEST(ADXObject, WritesBaseAttributesEscapedAndInOrder) {
    ADXCListenSilence object;
    object.SetId("A&B");
    object.SetTitle("<\"Quiet\">", 9);
    object.SetDesc("don't", 5);
    object.SetBaseFlags(0x2A);
    EXPECT_EQ(test::WrittenText(object), "<ADXCLISTENSILENCE id=\"A&amp;B\" idhash=\"0x" +
                                             test::Hex8(HashId("A&B", 3)) +
                                             "\" title=\"&lt;&quot;Quiet&quot;&gt;\" baseflags=\"0x0000002A\">\n"
                                             "    <desc>don&apos;t</desc>\n"
                                             "    <silencelen>0</silencelen>\n"
                                             "    <totaltimeout>400</totaltimeout>\n"
                                             "</ADXCLISTENSILENCE>\n");
}

TEST(ADXObject, WritesAnEmptyTitleAndAllFifteenCharactersOfAnId) {
    ADXCListenSilence object;
    object.SetId("ABCDEFGHIJKLMNO");
    EXPECT_NE(test::WrittenText(object).find(" id=\"ABCDEFGHIJKLMNO\" "), std::string::npos);
    EXPECT_NE(test::WrittenText(object).find(" title=\"\">"), std::string::npos);
}

TEST(ADXObject, WritesLongTextsWhole) {
    ADXCListenSilence object;
    const std::string text(3000, '"');
    object.SetTitle(text.c_str(), 3000);
    object.SetDesc(text.c_str(), 3000);
    std::string escaped;
    for (int i = 0; i < 3000; ++i) {
        escaped += "&quot;";
    }
    const std::string written = test::WrittenText(object);
    EXPECT_NE(written.find("title=\"" + escaped + "\""), std::string::npos);
    EXPECT_NE(written.find("<desc>" + escaped + "</desc>"), std::string::npos);
}

}  // namespace
}  // namespace corvex
