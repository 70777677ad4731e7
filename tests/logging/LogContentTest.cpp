#include <gtest/gtest.h>

#include <algorithm>

#include "logging/LogContent.h"
#include "tests/support/LogBytes.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

class LogContentTest : public testing::Test {
protected:
    LogContent Of(const Bytes& bytes, const char* name = "drive.xdl") const {
        folder.Put(name, std::string(bytes.begin(), bytes.end()));
        return LookIntoLog(folder.Name(name));
    }
    // A header of zeros, or a good one, and a table of one item with records of 3 bytes.
    static LogBytes Table(bool zeros) {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor({15}), 0).ItemCount(1).Item(0x1234, 0x20000, 3, 3, Bytes(15, 0xFF));
        if (zeros) std::fill_n(log.bytes.begin(), 40, std::uint8_t{0});
        return log;
    }

    TestFolder folder;
};

TEST_F(LogContentTest, NothingIsLostWithALogThatHasNoRecord) {
    EXPECT_EQ(LogContent::kNothing, LookIntoLog(folder.Name("none.xdl")));
    EXPECT_EQ(LogContent::kNothing, Of({}));
    EXPECT_EQ(LogContent::kNothing, Of(Table(false).bytes));
}

// At whatever byte the disk was full or the program killed.
TEST_F(LogContentTest, NothingIsLostWithAStartThatFailed) {
    const Bytes whole = Table(true).bytes;
    for (std::size_t size = 40; size <= whole.size(); ++size)
        EXPECT_EQ(LogContent::kNothing, Of(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))))
            << size;
    EXPECT_FALSE(HoldsLog(folder.Name("drive.xdl")));
}

TEST_F(LogContentTest, ARecordOrAPartOfOneIsSomething) {
    EXPECT_EQ(LogContent::kRecords, Of(Table(false).Record(0, 0, {1, 2, 3}).bytes));
    EXPECT_EQ(LogContent::kRecords, Of(Table(false).Word8(1).bytes));
    EXPECT_EQ(LogContent::kRecords, Of(Table(false).Record(7, 0, {}).bytes));
    EXPECT_TRUE(HoldsLog(folder.Name("drive.xdl")));
    EXPECT_EQ(LogContent::kRecords, Of(Table(false).Record(0, 0, {1, 2, 3}).bytes, "any.name"));
    EXPECT_TRUE(HoldsLog(folder.Name("any.name")));
}

// A copy that was never finished has its records behind a header of zeros.
TEST_F(LogContentTest, WhatCannotBeReadIsForeignAndALogByItsNameAlone) {
    for (const Bytes& bytes :
         {Table(true).Record(0, 0, {1, 2, 3}).bytes, Bytes(39, 0), Bytes(4096, 0), Bytes(1, 'x'), Bytes(200, 'x')}) {
        EXPECT_EQ(LogContent::kForeign, Of(bytes, "drive.XDL"));
        EXPECT_TRUE(HoldsLog(folder.Name("drive.XDL")));
        EXPECT_EQ(LogContent::kForeign, Of(bytes, "values.csv"));
        EXPECT_FALSE(HoldsLog(folder.Name("values.csv")));
    }
}

}  // namespace
}  // namespace corvex::test
