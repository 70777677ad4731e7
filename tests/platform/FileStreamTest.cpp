#include <gtest/gtest.h>

#include <memory>

#include "platform/FileStream.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

struct Closer {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, Closer>;

TEST(FileStream, WritesAndReadsBytesAsTheyAre) {
    const TestFolder folder;
    folder.Put("a", "what was there before");
    ASSERT_GT(std::fputs("one\r\ntwo\n\x1A", Stream(OpenToWrite(folder.Name("a").c_str())).get()), -1);
    char bytes[20] = "";
    EXPECT_EQ(std::fread(bytes, 1, sizeof bytes, Stream(OpenToRead(folder.Name("a").c_str())).get()), 10U);
    EXPECT_STREQ(bytes, "one\r\ntwo\n\x1A");
}

TEST(FileStream, OpensNothingThatIsNotThere) {
    const TestFolder folder;
    EXPECT_EQ(OpenToRead(folder.Name("none").c_str()), nullptr);
    EXPECT_FALSE(folder.Has("none"));
    EXPECT_EQ(OpenToWrite(folder.Name("no/such").c_str()), nullptr);
    EXPECT_EQ(OpenToRead(nullptr), nullptr);
    EXPECT_EQ(OpenToWrite(nullptr), nullptr);
}

TEST(FileStream, ReadsBesideAnotherReader) {
    const TestFolder folder;
    folder.Put("a", "x");
    const Stream first(OpenToRead(folder.Name("a").c_str()));
    EXPECT_NE(Stream(OpenToRead(folder.Name("a").c_str())), nullptr);
}

}  // namespace
}  // namespace corvex::test
