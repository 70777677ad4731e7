#include "tests/program/ProgramTest.h"
#include "tests/program/driver/RemoteMemory.h"

namespace corvex::test {
namespace {

class Start : public ProgramTest {};

TEST_F(Start, WorksWithoutSettingsAndWritesThem) {
    ProgramTest::Start();
    ExpectLeft("ALDL: Not Connected");
    EXPECT_EQ(Window().RightText(), "");
    EXPECT_EQ(Window().Title(), "Corvex - ADX:   XDL:  (Speed: 100%)");
    ExpectBar({.play = true, .load = true});
    const int w = ::GetSystemMetrics(SM_CXSCREEN), h = ::GetSystemMetrics(SM_CYSCREEN);
    const int width = static_cast<int>(0.75 * w), height = static_cast<int>(0.55 * w);
    const RECT place = Window().Rectangle();
    EXPECT_EQ(place.left, w / 2 - width / 2);
    EXPECT_EQ(place.top, h / 2 - height / 2);
    EXPECT_EQ(place.right - place.left, width);
    EXPECT_EQ(place.bottom - place.top, height);
    CloseProgram();
    std::string expected = "lastadxpath=\r\ncomport=COM1\r\nloadlastdef=1\r\nlastxdlpath=\r\nwinposx=";
    expected.append(std::to_string(place.left)).append("\r\nwinposy=").append(std::to_string(place.top));
    expected.append("\r\nwinsizex=").append(std::to_string(width)).append("\r\nwinsizey=");
    expected.append(std::to_string(height)).append("\r\n");
    EXPECT_EQ(folder.Files().Content("Settings.dat"), expected);
}

TEST_F(Start, ShowsFiveTabsWithTheOutputInFront) {
    Settle();
    ProgramTest::Start();
    std::string titles;
    for (int i = 0; i < 6; ++i)
        titles.append(TabTitle(Window().Tabs(), i)).append("|");
    EXPECT_EQ(titles, "Output|Dash|Item Lists|Histograms|Monitors||");
    EXPECT_TRUE(::IsWindowVisible(FindBelow(Window().Handle(), "Edit", kOutputId)));
    for (const int id : {kToolBandId, kFileToolbarId, kScanToolbarId, kLogToolbarId, kStatusBarId})
        EXPECT_NE(FindBelow(Window().Handle(), id), nullptr) << id;
}

TEST_F(Start, LoadsTheLastDefinition) {
    Settle();
    ProgramTest::Start();
    EXPECT_EQ(Window().OutputLines(), std::vector<std::string>{"Loaded " + Definition()});
    EXPECT_EQ(Window().Title(), TitleOf(folder.ShortName("harrier-8192.adx")));
}

TEST_F(Start, LeavesTheLastDefinitionAloneWhenToldSo) {
    Settle({{"loadlastdef", "0"}});
    ProgramTest::Start();
    EXPECT_EQ(Window().Output(), "");
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), Definition());
    EXPECT_EQ(folder.Settings().at("loadlastdef"), "0");
}

TEST_F(Start, PutsTheWindowWhereItWasBefore) {
    Settle();
    ProgramTest::Start();
    ::SetWindowPos(Window().Handle(), nullptr, 61, 43, 703, 521, SWP_NOZORDER | SWP_NOACTIVATE);
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("winposx"), "61");
    EXPECT_EQ(folder.Settings().at("winsizey"), "521");
    ProgramTest::Start();
    const RECT place = Window().Rectangle();
    EXPECT_EQ(place.left, 61);
    EXPECT_EQ(place.top, 43);
    EXPECT_EQ(place.right - place.left, 703);
    EXPECT_EQ(place.bottom - place.top, 521);
}

TEST_F(Start, CutsAPathThatIsTooLong) {
    const std::string path = "Z:\\" + std::string(400, 'x') + "\\there.adx";
    Settle({{"lastadxpath", path}});
    ProgramTest::Start();
    ExpectOutput("FAILED to Load " + path.substr(0, 259));
    EXPECT_FALSE(Window().OutputHas(path.substr(0, 260)));
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), path.substr(0, 259));
}

TEST_F(Start, RefusesToRunWithoutTheEditor) {
    Settle();
    std::filesystem::remove(folder.Name("ADXEditor.dll"));
    Launch();
    EXPECT_EQ(CloseBox(program->Id(), "Tarvex"),
              "Unable to ADXEditor.dll. Be sure it is in your path or application directory and restart the "
              "application");
    EXPECT_EQ(program->WaitForExit(30000), std::optional<DWORD>(0));
}

TEST_F(Start, RefusesAnEditorWithoutItsEntry) {
    Settle();
    std::filesystem::copy_file(BuiltFile("no_entry.dll"), folder.Name("ADXEditor.dll"),
                               std::filesystem::copy_options::overwrite_existing);
    Launch();
    EXPECT_EQ(CloseBox(program->Id(), "Error"),
              "Unable to get ADXEditor entry point. Makes sure ADXEditor.dll is valid and in the correct directory.");
    EXPECT_EQ(program->WaitForExit(30000), std::optional<DWORD>(0));
}

}  // namespace
}  // namespace corvex::test
