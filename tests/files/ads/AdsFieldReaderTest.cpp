#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "files/ads/AdsFieldReader.h"

namespace corvex {
namespace {

// A reader at the start of a block of the present format.
struct Fields {
    explicit Fields(std::string_view text) : bytes(text), input(bytes.data(), bytes.size()), reader(input) {
        reader.StartBlock();
        reader.SetVersion(1.2F);
    }
    std::string Text(std::size_t size = 256) {
        std::string text = "default";
        reader.Text(text, size);
        return text;
    }

    const std::string bytes;
    AdsInput input;
    AdsFieldReader reader;
};

TEST(AdsFieldReader, TakesWhatStandsBetweenTheSignAndTheSemicolon) {
    using namespace std::string_view_literals;
    Fields fields("noise\tname   =a b;\n= c=} { d ;=;=ab\0cd;"sv);
    for (const char* text : {"a b", " c=} { d ", "", "ab"})
        EXPECT_EQ(fields.Text(), text);
}

TEST(AdsFieldReader, TheEndOfTheBlockLeavesDefaults) {
    Fields fields("=a; } =b;");
    EXPECT_EQ(fields.Text(), "a");
    EXPECT_FALSE(fields.reader.Ended());
    EXPECT_EQ(fields.Text(), "default");
    EXPECT_TRUE(fields.reader.Ended());
    EXPECT_EQ(fields.Text(), "default");
}

TEST(AdsFieldReader, AFieldThatTheFileEndsInIsNone) {
    for (const std::string_view text : {"=a", "=a\xFF;", "=a\xFF", "=", "name"}) {
        Fields fields(text);
        EXPECT_EQ(fields.Text(), "default") << text;
        EXPECT_TRUE(fields.reader.Ended());
        EXPECT_EQ(fields.Text(), "default") << text;
    }
}

TEST(AdsFieldReader, ReadsALongFieldToItsEndAndKeepsTheFirst255) {
    Fields fields("=" + std::string(255, 'x') + ";=" + std::string(255, 'y') + "z;=" + std::string(100000, 'w') +
                  ";=next;");
    EXPECT_EQ(fields.Text(), std::string(255, 'x'));
    EXPECT_EQ(fields.reader.FieldsCut(), 0u);
    EXPECT_EQ(fields.Text(), std::string(255, 'y'));
    EXPECT_EQ(fields.Text(1000), std::string(255, 'w'));
    EXPECT_EQ(fields.Text(), "next");
    EXPECT_EQ(fields.reader.FieldsCut(), 2u);
    EXPECT_EQ(fields.reader.FieldsTaken(), 4u);
}

TEST(AdsFieldReader, DropsAFieldThatTheFormatIsTooOldFor) {
    Fields fields("=7;=8;=9;");
    std::uint32_t word = 5;
    fields.reader.SetVersion(1.1F);
    fields.reader.Word(word, 1.2F);
    EXPECT_EQ(word, 5u);
    fields.reader.Word(word, 1.1F);
    EXPECT_EQ(word, 8u);
    fields.reader.SetVersion(0.9F);
    fields.reader.Word(word);
    EXPECT_EQ(word, 8u);
}

TEST(AdsFieldReader, ReadsNumbersOfEachKind) {
    Fields fields("= -12abc;=0x1f2E;=2.5e1;=4294967295;=-1;=99999999999999999999;=word;");
    std::int32_t integer = 0;
    std::uint32_t word = 0;
    double number = 0.0;
    fields.reader.Integer(integer);
    EXPECT_EQ(integer, -12);
    fields.reader.HexWord(word);
    EXPECT_EQ(word, 0x1F2Eu);
    fields.reader.Double(number);
    EXPECT_EQ(number, 25.0);
    for (const std::uint32_t expected : {4294967295u, 4294967295u, 4294967295u, 0u}) {
        fields.reader.Word(word);
        EXPECT_EQ(word, expected);
    }
}

}  // namespace
}  // namespace corvex
