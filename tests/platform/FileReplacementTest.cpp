#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/FileReplacement.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

class FileReplacementTest : public testing::Test {
protected:
    FileReplacementTest() {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        folder_ = fs::temp_directory_path() / ("corvex-replace-" + name);
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    ~FileReplacementTest() override { fs::remove_all(folder_); }

    std::string Path(const char* name) const { return (folder_ / name).string(); }
    static void Put(const std::string& path, const char* text) { std::ofstream(path) << text; }
    static std::string Content(const std::string& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    fs::path folder_;
};

TEST_F(FileReplacementTest, TakesThePlaceOfAFileThatStandsThere) {
    Put(Path("file"), "old");
    const std::string fresh = FreshNameFor(Path("file"));
    Put(fresh, "new");
    EXPECT_TRUE(MoveIntoPlace(fresh, Path("file")));
    EXPECT_EQ(Content(Path("file")), "new");
    EXPECT_FALSE(fs::exists(fresh));
}

TEST_F(FileReplacementTest, MakesAFileWhereThereWasNone) {
    const std::string fresh = FreshNameFor(Path("file"));
    Put(fresh, "new");
    EXPECT_TRUE(MoveIntoPlace(fresh, Path("file")));
    EXPECT_EQ(Content(Path("file")), "new");
}

TEST_F(FileReplacementTest, TakesThePlaceOfAFileWithTheLongestPath) {
    std::string path = Path("x");
    path.append(259 - path.size(), 'x');
    Put(path, "old");
    const std::string fresh = FreshNameFor(path);
    ASSERT_NE(fresh, "");
    Put(fresh, "new");
    EXPECT_TRUE(MoveIntoPlace(fresh, path));
    EXPECT_EQ(Content(path), "new");
    EXPECT_FALSE(fs::exists(fresh));
}

TEST_F(FileReplacementTest, KeepsWhatStandsThereWhenTheNewFileIsMissing) {
    Put(Path("file"), "old");
    EXPECT_FALSE(MoveIntoPlace(FreshNameFor(Path("file")), Path("file")));
    EXPECT_EQ(Content(Path("file")), "old");
}

TEST_F(FileReplacementTest, RemovesTheNewFileThatCannotTakeItsPlace) {
    fs::create_directories(folder_ / "inhabited" / "folder");
    const std::string fresh = Path("fresh");
    Put(fresh, "new");
    EXPECT_FALSE(MoveIntoPlace(fresh, Path("inhabited")));
    EXPECT_FALSE(fs::exists(fresh));
}

TEST_F(FileReplacementTest, KnowsNoFreshNameForAFolder) {
    EXPECT_EQ(FreshNameFor(folder_.string()), "");
}

}  // namespace
}  // namespace corvex
