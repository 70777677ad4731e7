#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/FileReplacement.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

namespace fs = std::filesystem;

class FileReplacementTest : public testing::Test {
protected:
    std::string Path(const std::string& name) const { return folder_.Name(name); }
    // A file beside the one of that name, and whether it took its place.
    bool Replace(const std::string& name) {
        fresh_ = FreshNameFor(Path(name));
        folder_.Put(fs::path(fresh_).filename().string(), "new");
        return MoveIntoPlace(fresh_, Path(name));
    }

    const TestFolder folder_;
    std::string fresh_;
};

TEST_F(FileReplacementTest, TakesThePlaceOfAFileThatStandsThereOrOfNone) {
    // Of a name, or where there is a limit for that of the whole path.
    const std::string longest(fs::path::preferred_separator == '/' ? 255 : 259 - Path("").size(), 'x');
    for (const std::string& name : {std::string("none"), std::string("file"), longest}) {
        if (name != "none") folder_.Put(name, "old");
        EXPECT_TRUE(Replace(name));
        EXPECT_EQ(folder_.Content(name), "new");
        EXPECT_FALSE(fs::exists(fresh_));
    }
}

TEST_F(FileReplacementTest, KeepsWhatStandsThereWhenTheNewFileIsMissing) {
    folder_.Put("file", "old");
    EXPECT_FALSE(MoveIntoPlace(FreshNameFor(Path("file")), Path("file")));
    EXPECT_EQ(folder_.Content("file"), "old");
}

TEST_F(FileReplacementTest, RemovesTheNewFileThatCannotTakeItsPlace) {
    fs::create_directories(folder_.Path() / "inhabited" / "folder");
    const std::string fresh = folder_.Put("fresh", "new");
    EXPECT_FALSE(MoveIntoPlace(fresh, Path("inhabited")));
    EXPECT_FALSE(fs::exists(fresh));
}

// The largest number is nobody's; this process has its own.
TEST_F(FileReplacementTest, SweepsWhatIsLeftOfProcessesThatAreGone) {
    const std::string own = FreshNameFor(Path("file"));
    for (const char* name : {"file.2147483646.new", "file.2147483645.new", "file.x.new", "file.new", "file..new",
                             "file.2147483646.new2", "other.2147483646.new", "file2147483646.new"})
        folder_.Put(name, "left");
    folder_.Put(fs::path(own).filename().string(), "being written");
    fs::create_directory(Path("file.2147483644.new"));
    SweepAbandoned(Path("file"), [&](const std::string& left) { return left != Path("file.2147483645.new"); });
    EXPECT_FALSE(fs::exists(Path("file.2147483646.new")));
    EXPECT_TRUE(fs::exists(Path("file.2147483645.new")));
    SweepAbandoned(Path("file"));
    EXPECT_FALSE(fs::exists(Path("file.2147483645.new")));
    EXPECT_TRUE(fs::exists(own));
    EXPECT_EQ(8U, folder_.FileCount());
}

TEST_F(FileReplacementTest, TellsDevicesAndFoldersFromFiles) {
    folder_.Put("file", "old");
    EXPECT_FALSE(IsDeviceOrPipe(Path("file")));
    EXPECT_FALSE(IsDeviceOrPipe(Path("none")));
    EXPECT_FALSE(IsDeviceOrPipe(folder_.Path().string()));
    EXPECT_TRUE(IsDeviceOrPipe(fs::exists("/dev/null") ? "/dev/null" : "NUL"));
    EXPECT_EQ(FreshNameFor(folder_.Path().string()), "");
}

}  // namespace
}  // namespace corvex::test
