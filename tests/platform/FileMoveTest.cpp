#include <gtest/gtest.h>

#include "platform/FileMove.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

class FileMoveTest : public ::testing::Test {
protected:
    std::uint32_t Move(const char* from, const char* to) const {
        return MoveToNewName(folder.Name(from), folder.Name(to));
    }

    TestFolder folder;
};

TEST_F(FileMoveTest, MovesToANewName) {
    folder.Put("a", std::string("log\0bytes", 9));
    EXPECT_EQ(0U, Move("a", "b"));
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(std::string("log\0bytes", 9), folder.Content("b"));
}

TEST_F(FileMoveTest, NeverReplacesAFileOrAFolderAndTellsTheSystemsErrorNumber) {
    EXPECT_EQ(2U, Move("a", "b")) << "no such file, of both systems";
    folder.Put("a", "new");
    folder.Put("b", "old");
    std::filesystem::create_directory(folder.Path() / "c");
    for (const char* name : {"b", "c", "no/such"}) {
        EXPECT_NE(0U, Move("a", name)) << name;
        EXPECT_EQ("new", folder.Content("a"));
    }
    EXPECT_NE(2U, Move("a", "b"));
    EXPECT_NE(0U, MoveToNewName(folder.Name("a"), ""));
    EXPECT_EQ("old", folder.Content("b"));
}

TEST_F(FileMoveTest, FileIsItsOwnNewName) {
    folder.Put("a", "log");
    EXPECT_EQ(0U, Move("a", "a"));
    EXPECT_EQ("log", folder.Content("a"));
}

TEST_F(FileMoveTest, RemovesFilesAlone) {
    folder.Put("a", "");
    EXPECT_EQ(0U, RemoveFile(folder.Name("a")));
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(2U, RemoveFile(folder.Name("a")));
    std::filesystem::create_directory(folder.Path() / "b");
    EXPECT_NE(0U, RemoveFile(folder.Name("b")));
    EXPECT_TRUE(folder.Has("b"));
}

TEST_F(FileMoveTest, KnowsAFileByAnyName) {
    folder.Put("a", "same");
    folder.Put("b", "same");
    const ScopedCurrentFolder here(folder);
    EXPECT_TRUE(IsSameFile("a", folder.Name("a")));
    EXPECT_TRUE(IsSameFile("./a", "a"));
    EXPECT_FALSE(IsSameFile("a", "b"));
    EXPECT_FALSE(IsSameFile("a", "c"));
    EXPECT_FALSE(IsSameFile("c", "c"));
}

}  // namespace
}  // namespace corvex::test
