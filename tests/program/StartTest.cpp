#include "tests/program/ProgramTest.h"

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

TEST_F(Start, IsRefusedWithoutTheEditorOrItsEntry) {
    const struct {
        const char *caption, *words;
    } boxes[] = {{"Tarvex",
                  "Unable to ADXEditor.dll. Be sure it is in your path or application directory and restart the "
                  "application"},
                 {"Error",
                  "Unable to get ADXEditor entry point. Makes sure ADXEditor.dll is valid and in the correct "
                  "directory."}};
    Settle();
    std::filesystem::remove(folder.Name("ADXEditor.dll"));
    for (const auto& box : boxes) {
        Launch();
        EXPECT_EQ(CloseBox(program->Id(), box.caption), box.words);
        EXPECT_EQ(program->WaitForExit(kLongestEnd), std::optional<DWORD>(0));
        std::filesystem::copy_file(BuiltFile("no_entry.dll"), folder.Name("ADXEditor.dll"),
                                   std::filesystem::copy_options::overwrite_existing);
    }
}

}  // namespace
}  // namespace corvex::test
