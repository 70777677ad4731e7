#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "definition/ADXDefinition.h"
#include "platform/FileReplacement.h"

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

class FullDiskTest : public testing::Test {
protected:
    FullDiskTest() {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        folder_ = fs::temp_directory_path() / ("corvex-full-" + name);
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        path_ = (folder_ / "saved.adx").string();
        EXPECT_EQ(definition_.Load(CORVEX_SOURCE_DIR "/examples/harrier-8192.adx"), 1);
    }
    ~FullDiskTest() override { fs::remove_all(folder_); }

    static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    auto FilesInFolder() const { return std::distance(fs::directory_iterator(folder_), fs::directory_iterator()); }

    fs::path folder_;
    std::string path_;
    ADXDefinition definition_;
};

TEST_F(FullDiskTest, TellsOfItAndKeepsTheFileThatWasThere) {
    std::ofstream(path_) << "the only copy";
    {
        const RoomLeft room(20000);
        EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    }
    EXPECT_EQ(Content(path_), "the only copy");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(FullDiskTest, LeavesNoHalfFileWhereThereWasNone) {
    {
        const RoomLeft room(20000);
        EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    }
    EXPECT_EQ(FilesInFolder(), 0);
}

// A name in use by a folder, as a disk without a free entry would have it.
TEST_F(FullDiskTest, KeepsTheFileWhereThereCanBeNoneBesideIt) {
    std::ofstream(path_) << "the only copy";
    fs::create_directory(FreshNameFor(path_));
    EXPECT_EQ(definition_.Save(path_.c_str()), 0);
    EXPECT_EQ(Content(path_), "the only copy");
}

TEST_F(FullDiskTest, SavesUnderTheLongestName) {
    path_ = (folder_ / std::string(255, 'n')).string();
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(FullDiskTest, ASweepFollowsAKilledSave) {
    std::ofstream(path_ + ".2147483647.new") << "half";
    EXPECT_EQ(definition_.Save(path_.c_str()), 1);
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(FullDiskTest, ASaveKeepsRightsAndLinks) {
    std::ofstream(path_) << "old";
    ASSERT_EQ(chmod(path_.c_str(), 0640), 0);
    const std::string link = (folder_ / "link.adx").string();
    fs::create_symlink("saved.adx", link);
    EXPECT_EQ(definition_.Save(link.c_str()), 1);
    EXPECT_TRUE(fs::is_symlink(link));
    struct stat info {};
    ASSERT_EQ(stat(path_.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777U, 0640U);
    EXPECT_GT(Content(path_).size(), 20000U);
}

}  // namespace
}  // namespace corvex
