// The panels of recording and line, their tooltips, and the window behind them.
#include <cstring>

#include "controls/richstatic/RichStatic.h"
#include "controls/window/Clipboard.h"
#include "definition/ADXCSendCommand.h"
#include "session/window/DialogResources.h"
#include "session/window/LinkPanels.h"
#include "session/window/LinkWindow.h"
#include "tests/controls/window/WindowSpy.h"
#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {
namespace {

class LinkPanelsTest : public MainWindowTest {
protected:
    ~LinkPanelsTest() override { session.scanning = 0; }

    void Widen() const {
        ::SetWindowPos(window, nullptr, 0, 0, 650, 500, SWP_NOZORDER | SWP_NOMOVE);
        Pump();
    }
    HWND Panel(int id) const { return ::GetDlgItem(AsWindow(desktop.session.statusBar), id); }
    std::string LinkText() const { return TextOfWindow(Panel(IDC_LINK_PANEL)); }
    std::string LogText() const { return TextOfWindow(Panel(IDC_LOG_PANEL)); }
    bool Comes(const std::string& link) {
        return Pumps([&] { return LinkText().find(link) != std::string::npos; });
    }
    std::uint32_t LinkColour() const {
        const LRESULT old = ::SendMessageA(Panel(IDC_LINK_PANEL), RSM_SETBACKCOLOR, 0, 0);
        ::SendMessageA(Panel(IDC_LINK_PANEL), RSM_SETBACKCOLOR, 0, static_cast<LPARAM>(old));
        return static_cast<std::uint32_t>(old);
    }
    // What the connect thread would tell, but for a port that is never opened.
    void PretendScan() {
        desktop.link.Begin("COM1", true);
        session.scanning = 1;
    }
    void PretendReply() {
        static ADXCSendCommand command;
        command.flags = 1;
        DataAcqStatus status;
        status.command = &command;
        session.Calls().replyEnded(status, PacketView(reinterpret_cast<const std::uint8_t*>("12"), 2));
    }
    std::string TipOf(int id) const {
        HWND tip = nullptr;
        while ((tip = ::FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr)) != nullptr) {
            if (::GetWindow(tip, GW_OWNER) == window && ::SendMessageA(tip, TTM_GETTOOLCOUNT, 0, 0) == 2) break;
        }
        NMTTDISPINFOA narrow{};
        narrow.hdr = {tip, reinterpret_cast<UINT_PTR>(Panel(id)), static_cast<UINT>(TTN_GETDISPINFOA)};
        ::SendMessageA(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&narrow));
        NMTTDISPINFOW wide{};
        wide.hdr = {tip, reinterpret_cast<UINT_PTR>(Panel(id)), static_cast<UINT>(TTN_GETDISPINFOW)};
        ::SendMessageA(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&wide));
        if (narrow.lpszText == nullptr || wide.lpszText == nullptr) return {};
        EXPECT_EQ(std::strlen(narrow.lpszText), std::wcslen(wide.lpszText));
        return narrow.lpszText;
    }
    void Click() const { ::SendMessageA(Panel(IDC_LINK_PANEL), WM_LBUTTONUP, 0, 0); }
    HWND LinkEdit() const { return ::GetDlgItem(desktop.linkWindow, IDC_LINK_TEXT); }
};

TEST_F(LinkPanelsTest, AreNotConnectedAndEmptyAtFirst) {
    Start();
    Widen();  // a text comes back whole with the room for it
    EXPECT_EQ("not connected", LinkText());
    EXPECT_EQ("", LogText());
    EXPECT_EQ(0xFFFFFFFF, LinkColour());
}

TEST_F(LinkPanelsTest, AScanIsFollowedUntilTheLineIsDeadAndAfterItsEnd) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    ASSERT_TRUE(Comes("good, last reply 0.0"));
    EXPECT_EQ(0xFFFFFFFF, LinkColour());
    serial.writeLimit = 0;
    ASSERT_TRUE(Comes("port takes no bytes"));
    EXPECT_EQ(0x0000FFU, LinkColour());
    EXPECT_EQ(kConnected, session.connectionState) << "which is what it was";
    Command(IDM_SCAN);
    ASSERT_TRUE(Comes("not connected"));
    EXPECT_EQ(0xFFFFFFFF, LinkColour());
}

TEST_F(LinkPanelsTest, ARefusedPortIsAnAlarm) {
    serial.failOpen = true;
    StartWithDefinition();
    Command(IDM_SCAN);
    ASSERT_TRUE(Comes("no such port"));
    EXPECT_EQ(0x0000FFU, LinkColour());
    session.Calls().portRefused("port is in use by another program");
    ASSERT_TRUE(Comes("port in use by another program"));
}

TEST_F(LinkPanelsTest, ADeviceThatGoesAndComesIsTold) {
    Start();
    PretendScan();
    session.Calls().deviceVanished("port has vanished");
    ASSERT_TRUE(Comes("device vanished, waiting for it"));
    EXPECT_NE(TipOf(IDC_LINK_PANEL).find("Plug the adapter in again, and check its cable.\r\nClick, or press F1"),
              std::string::npos)
        << TipOf(IDC_LINK_PANEL);
    session.Calls().deviceBack();
    ASSERT_TRUE(Comes("connecting"));
    PretendReply();
    ASSERT_TRUE(Comes("good, last reply"));
}

TEST_F(LinkPanelsTest, AScanThatAsksForNothingSaysWhyOnce) {
    Start();
    for (int i = 0; i < 2; ++i) {
        Command(IDM_SCAN);
        ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet(); }));
        EXPECT_EQ("No definition is loaded, so there is nothing to ask for: load one with Ctrl+L", Output());
    }
    session.definition.InsertAfter(std::make_unique<ADXCSendCommand>(), ADXDefinition::kAppend);
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet(); }));
    EXPECT_EQ("The definition asks for nothing: it has no command that polls", Output());
}

TEST_F(LinkPanelsTest, ARecordingIsToldAndThenWhereItIs) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    ASSERT_NO_FATAL_FAILURE(Record());
    ASSERT_TRUE(Pumps([&] { return LogText().find("0:0") == 0 && LogText().size() > 6; })) << LogText();
    EXPECT_NE(TipOf(IDC_LOG_PANEL).find(folder.Name("temp.xdl")), std::string::npos) << TipOf(IDC_LOG_PANEL);
    DialogAnswer answer("Select/Create file to save...", IDCANCEL);
    Command(IDM_STOP);
    ASSERT_TRUE(answer.Came());
    ASSERT_TRUE(Pumps([&] { return LogText() == "unsaved: temp.xdl"; })) << LogText();
    session.debug.edit->Clear();
    EXPECT_EQ(0U, TipOf(IDC_LOG_PANEL).find("The last recording was not saved. It is in " + folder.Name("temp.xdl")));
    EXPECT_NE(TipOf(IDC_LOG_PANEL).find(std::to_string(folder.Content("temp.xdl").size()) + " bytes"),
              std::string::npos);
}

TEST_F(LinkPanelsTest, APlaybackIsNamedAndIsNoneOfTheLine) {
    StartWithDefinition();
    ASSERT_NO_FATAL_FAILURE(Play());
    ASSERT_TRUE(Pumps([&] { return LogText() == "long.xdl"; }));
    Command(IDM_PAUSE);
    ASSERT_TRUE(Rests(kLogReady));
    session.settings.SetLastLog("another.xdl");
    ::SendMessageA(window, WM_TIMER, 0, 0);
    EXPECT_EQ("long.xdl", LogText());
    EXPECT_EQ(0U, TipOf(IDC_LOG_PANEL).find("Paused: " + folder.Name("long.xdl")));
    EXPECT_EQ("not connected", LinkText());
    Command(IDM_STOP);
    EXPECT_TRUE(Pumps([&] { return LogText().empty(); }));
}

TEST_F(LinkPanelsTest, WhatHasNotChangedIsNotShownAgain) {
    Start();
    LinkPanels more(desktop);  // as the timer does, on panels of its own
    WindowSpy spy(::GetWindow(Panel(IDC_LINK_PANEL), GW_HWNDLAST));
    for (int i = 0; i < 3; ++i)
        more.Refresh();
    EXPECT_EQ(1, spy.Count(WM_SETTEXT));
    PretendScan();
    more.Refresh();
    EXPECT_EQ(2, spy.Count(WM_SETTEXT));
}

TEST_F(LinkPanelsTest, TheLongestTextsFitAtTheSmallestSizeWithRoomToSpare) {
    Start();
    Widen();
    const auto fits = [this](int id, const char* text) {
        RECT area{};
        ::GetClientRect(Panel(id), &area);
        const ClientDc dc(Panel(id));
        const SelectGuard font(dc.Get(), reinterpret_cast<HFONT>(::SendMessageA(Panel(id), WM_GETFONT, 0, 0)));
        SIZE size{};
        ::GetTextExtentPoint32A(dc.Get(), text, static_cast<int>(std::strlen(text)), &size);
        EXPECT_LE(static_cast<double>(size.cx) * 1.1, static_cast<double>(area.right)) << text;
        const std::string shown = FitText(dc.Get(), std::string(text) + std::string(200, 'x') + ".xdl", area.right);
        ::GetTextExtentPoint32A(dc.Get(), shown.c_str(), static_cast<int>(shown.size()), &size);
        EXPECT_LE(size.cx, area.right) << shown;
        EXPECT_GT(size.cx, area.right - 20) << shown;
        EXPECT_EQ(".xdl", shown.substr(shown.size() - 4));
    };
    for (const char* text :
         {"device vanished, waiting for it", "port in use by another program", "replies of 1024 bytes in place of 1024",
          "other module's chatter, no reply", "silent line or echo only, 9999 s", "noise, 1234 of 12345 cut",
          "1234 of 12345 replies missing", "chatter or noise for replies", "replies begin with our own echo",
          "replies are cut off, maybe late", "good, last reply 123.45 s ago", "definition asks for nothing"})
        fits(IDC_LINK_PANEL, text);
    for (const char* text : {"12:03  4512", "9:59:59  999999", "unsaved: temp.xdl"})
        fits(IDC_LOG_PANEL, text);
}

TEST_F(LinkPanelsTest, AClickOpensOneWindowThatFollowsTheScan) {
    Start();
    Click();
    const HWND first = desktop.linkWindow;
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(window, ::GetWindow(first, GW_OWNER));
    EXPECT_NE(FALSE, ::IsWindowEnabled(window));
    Click();
    ::SendMessageA(window, WM_HELP, 0, 0);
    EXPECT_EQ(first, desktop.linkWindow);
    EXPECT_EQ(0U, TextOfWindow(LinkEdit()).find("Seen in the last minute\r\n"));
    EXPECT_EQ(::GetDlgItem(first, IDC_LINK_COPY), ::GetFocus());
    PretendScan();
    session.Calls().deviceVanished("port has vanished");
    ASSERT_TRUE(
        Pumps([&] { return TextOfWindow(LinkEdit()).find("has vanished (port has vanished)") != std::string::npos; }));
    ::SetFocus(LinkEdit());
    ::SendMessageA(LinkEdit(), EM_SETSEL, 0, 4);
    session.Calls().deviceBack();
    RefreshLinkWindow(desktop);
    EXPECT_NE(TextOfWindow(LinkEdit()).find("has vanished"), std::string::npos) << "while text is marked";
    ::SendMessageA(LinkEdit(), EM_SETSEL, 2, 2);
    RefreshLinkWindow(desktop);
    EXPECT_EQ(TextOfWindow(LinkEdit()).find("has vanished"), std::string::npos);
}

TEST_F(LinkPanelsTest, ItsTextGoesToTheClipboard) {
    Start();
    Click();
    ::SendMessageA(desktop.linkWindow, WM_COMMAND, IDC_LINK_COPY, 0);
    const std::string shown = TextOfWindow(LinkEdit());
    EXPECT_EQ(shown, TextOfClipboard(window));
}

TEST_F(LinkPanelsTest, ItsWindowClosesByEscapeAndWithTheMainWindow) {
    Start();
    for (const auto& [message, id] : {std::pair{WM_COMMAND, IDCANCEL}, {WM_CLOSE, 0}}) {
        ::SendMessageA(window, WM_HELP, 0, 0);
        const HWND opened = desktop.linkWindow;
        ::SendMessageA(opened, static_cast<UINT>(message), static_cast<WPARAM>(id), 0);
        EXPECT_FALSE(::IsWindow(opened));
        EXPECT_EQ(nullptr, desktop.linkWindow);
        RefreshLinkWindow(desktop);
    }
    Click();
    EXPECT_TRUE(Close());
    EXPECT_EQ(nullptr, desktop.linkWindow);
}

TEST_F(LinkPanelsTest, AnotherDefinitionMayComeWhileItsWindowIsOpen) {
    ASSERT_NO_FATAL_FAILURE(StartConnected());
    Click();
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet(); }));
    session.definition.Clear();
    RefreshLinkWindow(desktop);
    EXPECT_NE(TextOfWindow(LinkEdit()).find("No scan runs."), std::string::npos);
}

}  // namespace
}  // namespace corvex::test
