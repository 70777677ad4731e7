#include <gtest/gtest.h>

#include "platform/FileReplacement.h"
#include "session/AppSettings.h"
#include "tests/support/PeerProcess.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

TEST(AppSettingsPosixTest, OldFileStaysOnAFullDiskAndWhereThereCanBeNoneBesideIt) {
    const TestFolder folder;
    FixedProgramPlace place{folder};
    const ScopedProgramPlace scope{place};
    const std::string old = "comport=COM4\nlastxdlpath=/logs/drive.xdl\n";
    folder.Put("Settings.dat", old);
    const AppSettings settings;
    {
        const FileSizeLimit fullDisk(20);
        EXPECT_EQ(0, WriteSettings(&settings));
    }
    EXPECT_EQ(old, folder.Content("Settings.dat"));
    EXPECT_EQ(1U, folder.FileCount());
    std::filesystem::create_directory(FreshNameFor(folder.Name("Settings.dat")));
    EXPECT_EQ(0, WriteSettings(&settings));
    EXPECT_EQ(old, folder.Content("Settings.dat"));
}

TEST(AppSettingsPosixTest, LinkToTheFileStaysALink) {
    const TestFolder folder, home;
    FixedProgramPlace place{folder};
    const ScopedProgramPlace scope{place};
    home.Put("mine.dat", "comport=COM4\n");
    std::filesystem::create_symlink(home.Path() / "mine.dat", folder.Path() / "Settings.dat");
    AppSettings settings;
    ASSERT_EQ(1, ReadSettings(&settings));
    settings.loadlastdef = 5;
    EXPECT_EQ(1, WriteSettings(&settings));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "Settings.dat"));
    EXPECT_NE(std::string::npos, home.Content("mine.dat").find("comport=COM4\nloadlastdef=5\n"));
}

}  // namespace
}  // namespace corvex::test
