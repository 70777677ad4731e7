// Menu, accelerators and what the program calls itself, letter for letter.
#include <array>

#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {
namespace {

class MenuTest : public MainWindowTest {
protected:
    MenuTest() { Start(); }
    // Every item with its number, ">" behind those that open another menu; what is not to be chosen is none.
    static void Walk(HMENU menu, std::vector<std::string>* items) {
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            char text[100] = {};
            ::GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
            const HMENU sub = ::GetSubMenu(menu, i);
            const bool isOff =
                (::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & (MF_DISABLED | MF_GRAYED)) != 0;
            if (sub != nullptr) {
                items->push_back(std::string(text) + " >");
                Walk(sub, items);
            } else if (text[0] != '\0' && !isOff) {
                items->push_back(std::to_string(::GetMenuItemID(menu, i)) + " " + text);
            }
        }
    }
};

TEST_F(MenuTest, HasTheTextsThatUsersKnowAndNothingIsDisabled) {
    std::vector<std::string> items;
    Walk(::GetMenu(window), &items);
    const std::vector<std::string> expected = {"File >",
                                               "32772 Load Definition...\tCtrl + L",
                                               "32780 Save Definition\tCtrl+S",
                                               "32781 Save Definition As...\tCtrl + Shift + S",
                                               "Import >",
                                               "32779 Definition...",
                                               "32785 Edit Definition...\tCtrl + F2",
                                               "32792 New Definition...\tCtrl + N",
                                               "32783 Preferences...",
                                               "105 E&xit",
                                               "Scanner >",
                                               "32774 Scan\t'",
                                               "Logger >",
                                               "32808 Load Log...\t Ctrl + Alt + L",
                                               "32804 Record\tCtrl + Alt + Space",
                                               "32805 Play\tSpace",
                                               "32806 Stop\tCtrl + Space",
                                               "32807 Pause\tSpace",
                                               "32833 Jump Forward 10 Samples\t]",
                                               "32832 Jump Backward 10 Samples\t[",
                                               "Playback Speed >",
                                               "32809 400%\tCtrl + 7",
                                               "32810 200%\tCtrl + 6",
                                               "32811 100%\tCtrl + 5",
                                               "32812 50%\tCtrl + 4",
                                               "32813 25%\tCtrl + 3",
                                               "32815 Custom...\tCtrl + 0",
                                               "Help >",
                                               "104 &About ..."};
    EXPECT_EQ(expected, items);
}

// In their order, as the first of two on one key wins: modifiers, key, command.
TEST_F(MenuTest, KeysAreVirtualButForThreeCharacters) {
    constexpr int kCtrl = FVIRTKEY | FCONTROL;
    const std::vector<std::array<int, 3>> expected = {{kCtrl, 'L', 32772},
                                                      {kCtrl, 'S', 32780},
                                                      {kCtrl | FSHIFT, 'S', 32781},
                                                      {kCtrl, VK_F2, 32785},
                                                      {kCtrl, 'N', 32792},
                                                      {0, '`', 32774},
                                                      {kCtrl | FALT, 'L', 32808},
                                                      {kCtrl | FALT, VK_SPACE, 32804},
                                                      {FVIRTKEY, VK_SPACE, 32807},
                                                      {FVIRTKEY, VK_SPACE, 32805},
                                                      {kCtrl, VK_SPACE, 32806},
                                                      {0, '[', 32833},
                                                      {0, ']', 32832},
                                                      {kCtrl, '7', 32809},
                                                      {kCtrl, '6', 32810},
                                                      {kCtrl, '5', 32811},
                                                      {kCtrl, '4', 32812},
                                                      {kCtrl, '3', 32813},
                                                      {kCtrl, '0', 32815}};
    const HACCEL table = ::LoadAcceleratorsA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDR_MAIN));
    ACCEL entries[64];
    const int count = ::CopyAcceleratorTableA(table, entries, 64);
    std::vector<std::array<int, 3>> keys;
    for (int i = 0; i < count; ++i)
        keys.push_back({entries[i].fVirt & (FVIRTKEY | FCONTROL | FALT | FSHIFT), entries[i].key, entries[i].cmd});
    EXPECT_EQ(expected, keys);
}

TEST_F(MenuTest, ButtonsSayWhatTheyDo) {
    const std::pair<UINT_PTR, const char*> files[] = {
        {32772, "Load ADX"}, {32780, "Save ADX"}, {32785, "Edit ADX"}, {32774, "Connect/Disconnect"}};
    for (const auto& [id, text] : files) {
        NMTTDISPINFOA ask{};
        ask.hdr.code = static_cast<UINT>(TTN_GETDISPINFOA);
        ask.hdr.idFrom = id;
        ::SendMessageA(window, WM_NOTIFY, 0, L(&ask));
        EXPECT_STREQ(text, ask.lpszText);
    }
    const std::pair<UINT_PTR, const wchar_t*> logs[] = {{20001, L"Begin Recording"},
                                                        {20000, L"Play Current Log Session"},
                                                        {20003, L"Pause Playback of Log Session"},
                                                        {20002, L"Stop Playback of Current Log Session"},
                                                        {20004, L"Select a Log Session to Play"}};
    for (const auto& [id, text] : logs) {
        NMTTDISPINFOW ask{};
        ask.hdr.code = static_cast<UINT>(TTN_GETDISPINFOW);
        ask.hdr.idFrom = id;
        ::SendMessageA(AsWindow(session.logBarDialog), WM_NOTIFY, 0, L(&ask));
        EXPECT_STREQ(text, ask.lpszText);
    }
}

std::vector<std::pair<int, int>> ButtonsOf(HWND bar) {
    std::vector<std::pair<int, int>> buttons;
    const auto count = static_cast<int>(::SendMessageA(bar, TB_BUTTONCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        TBBUTTON button{};
        ::SendMessageA(bar, TB_GETBUTTON, static_cast<WPARAM>(i), L(&button));
        buttons.emplace_back(button.iBitmap, button.idCommand);
    }
    return buttons;
}

TEST_F(MenuTest, ToolbarsShowTheirPicturesInOrder) {
    using Pairs = std::vector<std::pair<int, int>>;
    EXPECT_EQ((Pairs{{0, 32772}, {1, 32780}, {18, 32785}}), ButtonsOf(AsWindow(session.fileToolbar)));
    EXPECT_EQ((Pairs{{28, 32774}}), ButtonsOf(AsWindow(session.scanToolbar)));
    EXPECT_EQ((Pairs{{19, 20001}, {20, 20000}, {21, 20003}, {22, 20002}, {23, 20004}}),
              ButtonsOf(AsWindow(session.logBar)));
}

TEST_F(MenuTest, AllToolbarsShareFortyFivePictures) {
    const LRESULT list = ::SendMessageA(AsWindow(session.fileToolbar), TB_GETIMAGELIST, 0, 0);
    EXPECT_EQ(45, ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(list)));
    int width = 0, height = 0;
    ImageList_GetIconSize(reinterpret_cast<HIMAGELIST>(list), &width, &height);
    EXPECT_EQ(16, width);
    EXPECT_EQ(16, height);
    EXPECT_EQ(list, ::SendMessageA(AsWindow(session.logBar), TB_GETIMAGELIST, 0, 0));
    EXPECT_EQ(list, ::SendMessageA(AsWindow(session.scanToolbar), TB_GETIMAGELIST, 0, 0));
}

}  // namespace
}  // namespace corvex::test
