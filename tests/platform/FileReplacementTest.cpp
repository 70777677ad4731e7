#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/FileReplacement.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

class FileReplacementTest : public testing::Test {
protected:
    std::string Path(const char* name) const { return folder_.Name(name); }
    static void Put(const std::string& path, const char* text) { std::ofstream(path) << text; }
    static std::string Content(const std::string& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const test::TestFolder folder_;
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
    fs::create_directories(folder_.Path() / "inhabited" / "folder");
    const std::string fresh = Path("fresh");
    Put(fresh, "new");
    EXPECT_FALSE(MoveIntoPlace(fresh, Path("inhabited")));
    EXPECT_FALSE(fs::exists(fresh));
}

// The largest number is nobody's; this process has its own.
TEST_F(FileReplacementTest, SweepsWhatIsLeftOfProcessesThatAreGone) {
    const std::string own = FreshNameFor(Path("file"));
    for (const char* name : {"file.2147483646.new", "file.2147483645.new", "file.x.new", "file.new", "file..new",
                             "file.2147483646.new2", "other.2147483646.new", "file2147483646.new"})
        Put(Path(name), "left");
    Put(own, "being written");
    fs::create_directory(Path("file.2147483644.new"));
    SweepAbandoned(Path("file"), [&](const std::string& left) { return left != Path("file.2147483645.new"); });
    EXPECT_FALSE(fs::exists(Path("file.2147483646.new")));
    EXPECT_TRUE(fs::exists(Path("file.2147483645.new")));
    SweepAbandoned(Path("file"));
    EXPECT_FALSE(fs::exists(Path("file.2147483645.new")));
    EXPECT_TRUE(fs::exists(own));
    EXPECT_EQ(8U, folder_.FileCount());
}

TEST_F(FileReplacementTest, TellsDevicesFromFiles) {
    Put(Path("file"), "old");
    EXPECT_FALSE(IsDeviceOrPipe(Path("file")));
    EXPECT_FALSE(IsDeviceOrPipe(Path("none")));
    EXPECT_FALSE(IsDeviceOrPipe(folder_.Path().string()));
    EXPECT_TRUE(IsDeviceOrPipe(fs::exists("/dev/null") ? "/dev/null" : "NUL"));
}

TEST_F(FileReplacementTest, KnowsNoFreshNameForAFolder) {
    EXPECT_EQ(FreshNameFor(folder_.Path().string()), "");
}

}  // namespace
}  // namespace corvex
