#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "definition/ADXDefinition.h"
#include "platform/FileReplacement.h"
#include "tests/support/PeerProcess.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

constexpr char kSaved[] = "saved.adx";

class FullDiskTest : public testing::Test {
protected:
    FullDiskTest() { EXPECT_EQ(definition_.Load(CORVEX_SOURCE_DIR "/examples/harrier-8192.adx"), 1); }

    const test::TestFolder folder_;
    std::string path_ = folder_.Name(kSaved);
    ADXDefinition definition_;
};

TEST_F(FullDiskTest, TellsOfItAndKeepsTheFileThatWasThereOrNone) {
    for (const std::size_t files : {0U, 1U}) {
        if (files != 0) folder_.Put(kSaved, "the only copy");
        {
            const test::FileSizeLimit room(20000);
            EXPECT_EQ(definition_.Save(path_.c_str()), 0);
        }
        EXPECT_EQ(folder_.FileCount(), files);
    }
    EXPECT_EQ(folder_.Content(kSaved), "the only copy");
}

// A name in use by a folder, as a disk without a free entry would have it.
TEST_F(FullDiskTest, KeepsTheFileWhereThereCanBeNoneBesideIt) {
    folder_.Put(kSaved, "the only copy");
    fs::create_directory(FreshNameFor(path_));
    EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    EXPECT_EQ(folder_.Content(kSaved), "the only copy");
}

TEST_F(FullDiskTest, ASweepFollowsAKilledSave) {
    folder_.Put("saved.adx.2147483647.new", "half");
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(folder_.FileCount(), 1U);
}

TEST_F(FullDiskTest, ASaveKeepsRightsAndLinks) {
    folder_.Put(kSaved, "old");
    ASSERT_EQ(chmod(path_.c_str(), 0640), 0);
    const std::string link = folder_.Name("link.adx");
    fs::create_symlink("saved.adx", link);
    EXPECT_EQ(definition_.Save(link.c_str()), 1);
    EXPECT_TRUE(fs::is_symlink(link));
    struct stat info {};
    ASSERT_EQ(stat(path_.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777U, 0640U);
    EXPECT_GT(folder_.Content(kSaved).size(), 20000U);
}

}  // namespace
}  // namespace corvex
