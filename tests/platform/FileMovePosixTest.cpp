#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/FileMove.h"
#include "platform/FileMove_posix.h"
#include "tests/support/PeerProcess.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

class FileMovePosixTest : public ::testing::TestWithParam<int (*)(const std::string&, const std::string&)> {
protected:
    int Move(const char* from, const char* to) const { return GetParam()(folder.Name(from), folder.Name(to)); }

    TestFolder folder;
};

TEST_P(FileMovePosixTest, MovesWholeFilesWithTheirRights) {
    std::string large;
    for (int i = 0; i < 200'000; ++i)
        large += static_cast<char>(i * 7);
    folder.Put("a", large);
    chmod(folder.Name("a").c_str(), 0640);
    EXPECT_EQ(0, Move("a", "b"));
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(large, folder.Content("b"));
    struct stat info {};
    ASSERT_EQ(0, stat(folder.Name("b").c_str(), &info));
    EXPECT_EQ(0640U, info.st_mode & 07777U);
}

TEST_P(FileMovePosixTest, NeverReplaces) {
    folder.Put("a", "new");
    folder.Put("b", "old");
    EXPECT_EQ(EEXIST, Move("a", "b"));
    EXPECT_EQ(EEXIST, Move("a", "a"));
    EXPECT_EQ("new", folder.Content("a"));
    EXPECT_EQ("old", folder.Content("b"));
}

TEST_P(FileMovePosixTest, DanglingLinkIsANameInUse) {
    folder.Put("a", "new");
    std::filesystem::create_symlink(folder.Path() / "elsewhere", folder.Path() / "b");
    EXPECT_EQ(EEXIST, Move("a", "b"));
    EXPECT_EQ("new", folder.Content("a"));
    EXPECT_FALSE(folder.Has("elsewhere"));
}

TEST_P(FileMovePosixTest, MissingFileStaysMissing) {
    EXPECT_EQ(ENOENT, Move("a", "b"));
    EXPECT_FALSE(folder.Has("b"));
}

INSTANTIATE_TEST_SUITE_P(Ways, FileMovePosixTest, ::testing::Values(&MoveByLink, &MoveByCopy));

TEST(FileMoveByCopyTest, FullDiskCostsNothing) {
    const TestFolder folder;
    const std::string log(100'000, 'x');
    folder.Put("a", log);
    {
        const FileSizeLimit limit(70'000);
        EXPECT_EQ(EFBIG, MoveByCopy(folder.Name("a"), folder.Name("b")));
    }
    EXPECT_EQ(log, folder.Content("a"));
    EXPECT_FALSE(folder.Has("b"));
}

TEST(FileMoveByCopyTest, CopiesRegularFilesOnly) {
    const TestFolder folder;
    ASSERT_EQ(0, mkfifo(folder.Name("a").c_str(), 0600));
    EXPECT_EQ(EINVAL, MoveByCopy(folder.Name("a"), folder.Name("b")));
    EXPECT_EQ(EINVAL, MoveByCopy(folder.Path().string(), folder.Name("b")));
    EXPECT_FALSE(folder.Has("b"));
}

// One file, but two names that both may matter to somebody.
TEST(FileMoveByLinkTest, SecondNameOfTheFileIsInUse) {
    const TestFolder folder;
    folder.Put("a", "log");
    std::filesystem::create_hard_link(folder.Path() / "a", folder.Path() / "b");
    EXPECT_EQ(static_cast<std::uint32_t>(EEXIST), MoveToNewName(folder.Name("a"), folder.Name("b")));
    EXPECT_TRUE(folder.Has("a"));
    EXPECT_TRUE(IsSameFile(folder.Name("a"), folder.Name("b")));
}

}  // namespace
}  // namespace corvex::test
