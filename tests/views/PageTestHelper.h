// A session with a tab sheet, one page in it, under a window, for the tests of the pages.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "controls/RegisterControlClasses.h"
#include "controls/tabsheet/TabSheet.h"
#include "session/SessionState.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/controls/window/PaintTestHelper.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/EarlyReply.h"

namespace corvex::test {

using Strings = std::vector<std::string>;

inline std::string RowText(HWND combo, int row) {
    const LRESULT length = ::SendMessageA(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    if (length == CB_ERR) return "no such row";
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    ::SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

inline Strings Rows(HWND combo) {
    Strings rows;
    for (int i = 0; i < static_cast<int>(::SendMessageA(combo, CB_GETCOUNT, 0, 0)); ++i)
        rows.push_back(RowText(combo, i));
    return rows;
}

// As a click on the row does.
inline void Choose(HWND page, int comboId, int row) {
    const HWND combo = ::GetDlgItem(page, comboId);
    ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    ::SendMessageA(page, WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

// Says that it has erased its ground, and has not drawn a pixel.
inline bool ErasesNothing(HWND page) {
    const TestBitmap bitmap(1, 1, RGB(1, 2, 3));
    return ::SendMessageA(page, WM_ERASEBKGND, W(bitmap.Dc()), 0) != 0 && bitmap.At(0, 0) == RGB(1, 2, 3);
}

class PageTest : public ::testing::Test {
protected:
    PageTest() {
        session.instance = ::GetModuleHandleA(nullptr);
        const auto instance = static_cast<HINSTANCE>(session.instance);
        EXPECT_TRUE(RegisterControlClasses(instance));
        frame = ::CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_CLIPCHILDREN, 0, 0, 650, 400, nullptr, nullptr,
                                  instance, nullptr);
        sheet = ::CreateWindowExA(0, kTabSheetClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 650, 400, frame,
                                  nullptr, instance, nullptr);
        EXPECT_NE(nullptr, sheet);
        session.tabSheet = sheet;
        // As the program's own window does it.
        frameSpy.emplace(frame);
        frameSpy->SetHandler([this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message != kSampleMessage) return std::nullopt;
            const auto& sample = *reinterpret_cast<const PublishedSample*>(lParam);
            samples.Handle(
                wParam, [&] { session.views.Read(sample); }, [&] { session.views.Draw(); });
            return 0;
        });
        // What the sheet shows at first.
        const HWND output =
            ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, instance, nullptr);
        EXPECT_TRUE(TabSheet::addWindowPage(sheet, output, "Output", -1));
    }
    ~PageTest() override { EndFrame(); }

    void EndFrame() {
        if (frame != nullptr) ::DestroyWindow(std::exchange(frame, nullptr));
    }
    void ShowFrame(bool shown = true) {
        ::ShowWindow(frame, shown ? SW_SHOWNOACTIVATE : SW_HIDE);
        session.views.Announce();
    }
    // A wish of the session to have the list catch up.
    void RepaintList() { session.PublishSample(0.0, nullptr, 0, BitOf(SampleViewKind::kList)); }
    // What a worker leaves behind before it has the views told.
    void Store(const std::vector<std::uint8_t>& bytes, std::uint32_t command) {
        const PacketView packet(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        session.StoreLastPacket(LastPacket::Of(packet, command));
        session.definition.UpdateValues(packet, command);
    }
    void Publish(const std::vector<std::uint8_t>& bytes, std::uint32_t command) {
        session.PublishSample(0.0, PacketView(bytes.data(), static_cast<std::uint32_t>(bytes.size())), command);
    }
    bool Wants(SampleViewKind kind) {
        session.views.Announce();
        return (session.views.Wanted() & BitOf(kind)) != 0;
    }

    HWND Page(int index) const { return TabSheet::getPage(sheet, index); }
    std::string Title(int index) const {
        char title[64] = "";
        TabSheet::getTitle(sheet, index, title, sizeof title);
        return title;
    }
    HWND Item(void* page, int id) const { return ::GetDlgItem(static_cast<HWND>(page), id); }
    void Resize(int width, int height) const { ::MoveWindow(sheet, 0, 0, width, height, FALSE); }
    void ResizeFrame(int width, int height) const {
        ::MoveWindow(frame, 0, 0, width, height, FALSE);
        Resize(width, height);
    }

    SessionState session{Calls()};
    HWND frame = nullptr, sheet = nullptr;
    std::string flashed;  // what the session said last

private:
    static constexpr UINT kSampleMessage = WM_APP + 1;

    SessionCalls Calls() {
        SessionCalls calls;
        calls.carrySample = [this](const PublishedSample& sample) {
            SendForEarlyReply(frame, kSampleMessage, reinterpret_cast<LPARAM>(&sample));
        };
        calls.flash = [this](const char* text, std::uint32_t, std::uint32_t, std::uint32_t) { flashed = text; };
        return calls;
    }

    std::optional<WindowSpy> frameSpy;
    EarlyReply samples;
};

}  // namespace corvex::test
