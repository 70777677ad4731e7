#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "export/CsvWriter.h"

namespace corvex {
namespace {

class StringSink : public ITextSink {
public:
    bool Write(const char* bytes, std::size_t count) override {
        ++writes;
        if (text.size() + count > room) return false;
        text.append(bytes, count);
        return true;
    }
    std::string text;
    std::size_t room = std::numeric_limits<std::size_t>::max();
    int writes = 0;
};

class CsvWriterTest : public ::testing::Test {
protected:
    std::string Text() {
        EXPECT_TRUE(csv_.Flush());
        return sink_.text;
    }
    StringSink sink_;
    CsvWriter csv_{sink_};
};

TEST_F(CsvWriterTest, QuotesOnlyWhatNeedsIt) {
    for (const char* text : {"plain", "", " blank ", "a,b", "say \"ah\"", "two\nlines", "cr\r", "\"", "\xC2\xB0 C"})
        csv_.Text(text);
    csv_.EndRow();
    EXPECT_EQ(Text(), "plain,, blank ,\"a,b\",\"say \"\"ah\"\"\",\"two\nlines\",\"cr\r\",\"\"\"\",\xC2\xB0 C\n");
}

TEST_F(CsvWriterTest, EndsRowsWithALineFeedAlone) {
    csv_.Flag(true);
    csv_.Flag(false);
    csv_.EndRow();
    csv_.EndRow();
    csv_.Flag(true);
    csv_.EndRow();
    EXPECT_EQ(Text(), "1,0\n\n1\n");
}

TEST_F(CsvWriterTest, WritesNumbersAsShortAsTheyReadBack) {
    for (const double number : {0.1, 1.0 / 3.0, -40.0, 25.5, -0.0, 1e300, 5e-324})
        csv_.Number(number);
    EXPECT_EQ(Text(), "0.1,0.3333333333333333,-40,25.5,-0,1e+300,5e-324");
}

TEST_F(CsvWriterTest, NamesWhatIsNoNumber) {
    for (const double number : {std::nan(""), std::copysign(std::nan(""), -1.0), HUGE_VAL, -HUGE_VAL})
        csv_.Number(number);
    EXPECT_EQ(Text(), "nan,nan,inf,-inf");
}

TEST_F(CsvWriterTest, EveryNumberReadsBackToItsBits) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 2000; ++i) {
        const std::uint64_t bits = random();
        double number = 0.0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number)) continue;
        sink_.text.clear();
        csv_.Number(number);
        csv_.EndRow();
        const std::string text = Text();
        double back = 0.0;
        const auto read = std::from_chars(text.data(), text.data() + text.size() - 1, back);
        EXPECT_EQ(read.ptr, text.data() + text.size() - 1) << text;
        EXPECT_EQ(std::memcmp(&back, &number, sizeof back), 0) << text;
    }
}

TEST_F(CsvWriterTest, GivesSecondsThreeDecimals) {
    for (const std::uint32_t milliseconds : {0U, 7U, 83U, 999U, 1000U, 12345U, 4294967295U})
        csv_.Milliseconds(milliseconds);
    EXPECT_EQ(Text(), "0.000,0.007,0.083,0.999,1.000,12.345,4294967.295");
}

TEST_F(CsvWriterTest, HandsOnInLargePiecesAndTakesALongerField) {
    std::string expected;
    const auto add = [&](const std::string& field) {
        csv_.Text(field);
        csv_.EndRow();
        expected += field + '\n';
    };
    for (int i = 0; i < 1000; ++i)
        add(std::string(1000, 'x'));
    EXPECT_EQ(Text(), expected);
    EXPECT_LE(sink_.writes, 5);
    add(std::string(CsvWriter::kPiece * 2 + 5, 'y'));
    EXPECT_EQ(Text(), expected);
}

TEST_F(CsvWriterTest, RemembersAFailedWrite) {
    sink_.room = 10;
    csv_.Text(std::string(20, 'z'));
    EXPECT_TRUE(csv_.Good());
    EXPECT_FALSE(csv_.Flush());
    EXPECT_FALSE(csv_.Good());
    const int writes = sink_.writes;
    csv_.Text("more");
    EXPECT_FALSE(csv_.Flush());
    EXPECT_EQ(sink_.writes, writes);
}

}  // namespace
}  // namespace corvex
