#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "platform/FileReplacement.h"
#include "session/AppSettings.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

// No file may grow beyond a few bytes meanwhile: what a full disk looks like from here.
int WriteOnAFullDisk(const AppSettings& settings) {
    void (*const handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{20, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const int result = WriteSettings(&settings);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    return result;
}

TEST(AppSettingsPosixTest, OldFileStaysOnAFullDiskAndWhereThereCanBeNoneBesideIt) {
    const TestFolder folder;
    FixedProgramPlace place{folder};
    const ScopedProgramPlace scope{place};
    const std::string old = "comport=COM4\nlastxdlpath=/logs/drive.xdl\n";
    folder.Put("Settings.dat", old);
    const AppSettings settings;
    EXPECT_EQ(0, WriteOnAFullDisk(settings));
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
