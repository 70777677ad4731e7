#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "definition/ADXDefinition.h"
#include "platform/FileReplacement.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

// No file of this process may grow beyond `bytes`, as on a disk with so much room left.
class RoomLeft {
public:
    explicit RoomLeft(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        handler_ = signal(SIGXFSZ, SIG_IGN);
        const rlimit less{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &less);
    }
    ~RoomLeft() {
        setrlimit(RLIMIT_FSIZE, &before_);
        signal(SIGXFSZ, handler_);
    }
    RoomLeft(const RoomLeft&) = delete;
    RoomLeft& operator=(const RoomLeft&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

constexpr char kSaved[] = "saved.adx";

class FullDiskTest : public testing::Test {
protected:
    FullDiskTest() { EXPECT_EQ(definition_.Load(CORVEX_SOURCE_DIR "/examples/harrier-8192.adx"), 1); }

    const test::TestFolder folder_;
    std::string path_ = folder_.Name(kSaved);
    ADXDefinition definition_;
};

TEST_F(FullDiskTest, TellsOfItAndKeepsTheFileThatWasThere) {
    std::ofstream(path_) << "the only copy";
    {
        const RoomLeft room(20000);
        EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    }
    EXPECT_EQ(folder_.Content(kSaved), "the only copy");
    EXPECT_EQ(folder_.FileCount(), 1U);
}

TEST_F(FullDiskTest, LeavesNoHalfFileWhereThereWasNone) {
    {
        const RoomLeft room(20000);
        EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    }
    EXPECT_EQ(folder_.FileCount(), 0U);
}

// A name in use by a folder, as a disk without a free entry would have it.
TEST_F(FullDiskTest, KeepsTheFileWhereThereCanBeNoneBesideIt) {
    std::ofstream(path_) << "the only copy";
    fs::create_directory(FreshNameFor(path_));
    EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    EXPECT_EQ(folder_.Content(kSaved), "the only copy");
}

TEST_F(FullDiskTest, SavesUnderTheLongestName) {
    path_ = folder_.Name(std::string(255, 'n'));
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(folder_.FileCount(), 1U);
}

TEST_F(FullDiskTest, ASweepFollowsAKilledSave) {
    std::ofstream(path_ + ".2147483647.new") << "half";
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(folder_.FileCount(), 1U);
}

TEST_F(FullDiskTest, ASaveKeepsRightsAndLinks) {
    std::ofstream(path_) << "old";
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
