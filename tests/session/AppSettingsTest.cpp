#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "session/AppSettings.h"
#include "tests/support/Listed.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

constexpr char kFile[] = "Settings.dat";
constexpr char kWritten[] =
    "lastadxpath=C:\\cars\\one.adx\n"
    "comport=COM3\n"
    "loadlastdef=0\n"
    "lastxdlpath=C:\\cars\\drive=1.xdl\n"
    "winposx=-5\n"
    "winposy=20\n"
    "winsizex=800\n"
    "winsizey=600\n";

class AppSettingsTest : public ::testing::Test {
protected:
    AppSettingsTest() { SetDefaults(&settings); }

    int Read(const std::string& bytes) {
        folder.Put(kFile, bytes);
        return ReadSettings(&settings);
    }
    // The file as text mode shows it.
    std::string Text() const {
        std::ifstream file(folder.Name(kFile));
        return {std::istreambuf_iterator<char>(file), {}};
    }
    // Every text ends within its limit.
    void ExpectSane() const {
        EXPECT_NE(nullptr, std::memchr(settings.comport, 0, AppSettings::kFilePortLength + 1));
        EXPECT_NE(nullptr, std::memchr(settings.lastadxpath, 0, sizeof settings.lastadxpath));
        EXPECT_NE(nullptr, std::memchr(settings.lastxdlpath, 0, sizeof settings.lastxdlpath));
    }

    TestFolder folder;
    FixedProgramPlace place{folder};
    const ScopedProgramPlace scope{place};
    AppSettings settings;
};

TEST_F(AppSettingsTest, DefaultsGoByTheScreen) {
    settings.SetLastLog("old");
    place.screen = {1365, 767};
    SetDefaults(&settings);
    EXPECT_EQ("COM1   1", Listed(settings.comport, settings.lastadxpath, settings.lastxdlpath, settings.loadlastdef));
    const auto window = [this] {
        return Listed(settings.winposx, settings.winposy, settings.winsizex, settings.winsizey);
    };
    EXPECT_EQ(Listed(682 - 511, 383 - 375, 1023, 750), window());  // the height is of the width
    place.screen = {2000, 401};                                    // the top edge is above a low one
    SetDefaults(&settings);
    EXPECT_EQ(Listed(1000 - 750, 200 - 550, 1500, 1100), window());
}

TEST_F(AppSettingsTest, WritesWhatItReadInItsOwnOrder) {
    EXPECT_EQ(1, Read("winsizey=600\nwinsizex=800\nlastxdlpath=C:\\cars\\drive=1.xdl\ncomport=COM3\nunknown=1\n"
                      "winposy=20\nwinposx=-5\nloadlastdef=0\nlastadxpath=C:\\cars\\one.adx\n"));
    EXPECT_EQ("0 C:\\cars\\one.adx -5", Listed(settings.loadlastdef, settings.lastadxpath, settings.winposx));
    EXPECT_EQ(1, WriteSettings(&settings));
    EXPECT_EQ(kWritten, Text());
    EXPECT_EQ(1U, folder.FileCount());
}

TEST_F(AppSettingsTest, PortIsCutToFourCharacters) {
    EXPECT_EQ(1, Read("comport=COM12\n"));
    EXPECT_STREQ("COM1", settings.comport);
    std::strcpy(settings.comport, "/dev/ttyUSB0");
    EXPECT_EQ(1, WriteSettings(&settings));
    EXPECT_NE(std::string::npos, Text().find("comport=/dev\n"));
}

TEST_F(AppSettingsTest, LinesAreKeysAndWhatStandsBehindTheFirstSign) {
    const struct {
        const char *name, *text, *adx, *port, *log;
    } rows[] = {
        {"only the key ends at the sign", "lastadxpath=a=b==c=\nlastxdlpath==x\n", "a=b==c=", "COM1", "=x"},
        {"empty values and bare keys", "lastxdlpath=\ncomport\n\n=\n=COM2\nloadlastdef=\n", "", "COM1", "kept"},
        {"keys that are not quite", "COMPORT=COM2\ncomport =COM2\n comport=COM2\ncomports=COM2\n", "", "COM1", "kept"},
        {"a last line without an end", "winposx=1\ncomport=COM7", "", "COM7", "kept"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        SetDefaults(&settings);
        settings.SetLastLog("kept");
        EXPECT_EQ(1, Read(row.text));
        EXPECT_EQ(Listed(row.adx, row.port, row.log, 1),
                  Listed(settings.lastadxpath, settings.comport, settings.lastxdlpath, settings.loadlastdef));
    }
}

TEST_F(AppSettingsTest, BadNumbersAreZeroAndHugeOnesTheLargest) {
    EXPECT_EQ(1, Read("winposx=left\nwinposy= 12px\nwinsizex=99999999999999999999\nwinsizey=-3000000000\n"));
    EXPECT_EQ("0 12 2147483647 -2147483648",
              Listed(settings.winposx, settings.winposy, settings.winsizex, settings.winsizey));
}

TEST_F(AppSettingsTest, LongPathsAreCut) {
    EXPECT_EQ(1, Read("lastadxpath=" + std::string(300, 'a') + "\n"));
    EXPECT_EQ(std::string(259, 'a'), settings.lastadxpath);
    settings.SetLastLog(std::string(300, 'b'));
    EXPECT_EQ(std::string(259, 'b'), settings.lastxdlpath);
}

// 511 characters make a line; what is behind them is one more.
TEST_F(AppSettingsTest, RestOfALongLineIsALine) {
    const std::string key = "lastadxpath=";
    EXPECT_EQ(1, Read(key + std::string(511 - key.size(), 'a') + "winposx=7\nwinposy=8\n"));
    EXPECT_EQ(std::string(259, 'a'), settings.lastadxpath);
    EXPECT_EQ(7, settings.winposx);
    EXPECT_EQ(8, settings.winposy);
    EXPECT_EQ(1, Read(key + std::string(510 - key.size(), 'a') + "winposx=9\n"));
    EXPECT_EQ(7, settings.winposx);
}

TEST_F(AppSettingsTest, ProgramWithoutAFolderHasNoSettings) {
    const ScopedCurrentFolder here(folder);
    folder.Put(kFile, kWritten);
    for (const char* file : {"", "corvex.exe"}) {
        place.file = file;
        EXPECT_EQ(0, ReadSettings(&settings));
        EXPECT_EQ(0, WriteSettings(&settings));
    }
    EXPECT_STREQ("COM1", settings.comport);
    EXPECT_EQ(kWritten, folder.Content(kFile));
}

TEST_F(AppSettingsTest, WhereThereIsNoFileAllStaysAsItIs) {
    settings.winposx = 77;
    EXPECT_EQ(0, ReadSettings(&settings));
    std::filesystem::create_directory(folder.Path() / kFile);
    EXPECT_EQ(0, ReadSettings(&settings));
    EXPECT_EQ(0, WriteSettings(&settings));
    EXPECT_EQ(77, settings.winposx);
    EXPECT_STREQ("COM1", settings.comport);
    place.file = folder.Name("gone") + place.separator + "corvex.exe";
    EXPECT_EQ(0, WriteSettings(&settings));
    EXPECT_EQ(1U, folder.FileCount());
}

TEST_F(AppSettingsTest, ProgramDirectoryEndsWithItsSeparator) {
    char directory[AppSettings::kPathSize];
    place.separator = '\\';
    place.file = "C:\\Program Files\\Corvex\\corvex.exe";
    place.moduleFile = "D:\\editor.dll";
    GetProgramDirectory(nullptr, directory);
    EXPECT_STREQ("C:\\Program Files\\Corvex\\", directory);
    GetProgramDirectory(directory, directory);
    EXPECT_STREQ("D:\\", directory);
    place.file = std::string(300, 'x').replace(200, 1, "\\");
    GetProgramDirectory(nullptr, directory);
    EXPECT_EQ(std::string(200, 'x') + "\\", directory);
    place.file = std::string(300, 'x').replace(270, 1, "\\");
    GetProgramDirectory(nullptr, directory);
    EXPECT_STREQ("", directory);
}

TEST_F(AppSettingsTest, CutAtAnyPlaceOrWithAnyByteWrongItIsReadAsFarAsItGoes) {
    const std::string whole = kWritten;
    const auto read = [this](const std::string& bytes) {
        SetDefaults(&settings);
        ASSERT_EQ(1, Read(bytes));
        ExpectSane();
    };
    for (std::size_t i = 0; i < whole.size(); ++i) {
        read(whole.substr(0, i));
        for (const int bad : {0x00, 0x0A, 0x1A, 0x3D, 0xFF})
            read(std::string(whole).replace(i, 1, 1, static_cast<char>(bad)));
    }
    read(whole);
    EXPECT_EQ(600, settings.winsizey);
}

TEST_F(AppSettingsTest, BinaryRubbishIsPassedOver) {
    std::mt19937 random(1);
    for (int round = 0; round < 20; ++round) {
        std::string bytes;
        for (int i = 0; i < 20'000; ++i)
            bytes += static_cast<char>(random());
        for (int i = 0; i < 20; ++i)
            bytes.insert(random() % bytes.size(), round % 2 == 0 ? "\ncomport=" : "\nlastadxpath=");
        ASSERT_EQ(1, Read(bytes));
        ExpectSane();
    }
    ASSERT_EQ(1, Read(std::string(100'000, '\0')));
    ASSERT_EQ(1, Read("comport=" + std::string(100'000, '9')));
    ExpectSane();
    EXPECT_STREQ("9999", settings.comport);
}

}  // namespace
}  // namespace corvex::test
