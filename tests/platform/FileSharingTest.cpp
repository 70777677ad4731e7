// What others may do to a file meanwhile, where the system knows such a thing.
#include <gtest/gtest.h>

#include "platform/FileStream.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

TEST(FileSharing, WhatIsBeingReadIsNotWritten) {
    const TestFolder folder;
    folder.Put("a", "x");
    std::FILE* const reading = OpenToRead(folder.Name("a").c_str());
    ASSERT_NE(reading, nullptr);
    EXPECT_EQ(OpenToWrite(folder.Name("a").c_str()), nullptr);
    std::fclose(reading);
    EXPECT_EQ(folder.Content("a"), "x");
}

TEST(FileSharing, WhatIsBeingWrittenIsNotOpenedAtAll) {
    const TestFolder folder;
    std::FILE* const writing = OpenToWrite(folder.Name("a").c_str());
    ASSERT_NE(writing, nullptr);
    EXPECT_EQ(OpenToRead(folder.Name("a").c_str()), nullptr);
    EXPECT_EQ(OpenToWrite(folder.Name("a").c_str()), nullptr);
    EXPECT_EQ(std::fopen(folder.Name("a").c_str(), "rb"), nullptr);
    std::fclose(writing);
}

}  // namespace
}  // namespace corvex::test
