#include <gtest/gtest.h>

#include <utility>

#include "controls/window/DialogWindow.h"

namespace corvex {
namespace {

constexpr UINT kDestroy = WM_APP, kNested = WM_APP + 1, kAnswer = WM_APP + 2, kLeave = WM_APP + 3;
constexpr int kButton = 7;

struct Life {
    int alive = 0, messages = 0;
    UINT first = 0, last = 0;
    bool deletedWithinHandler = false, endsAtOnce = false;
};

class ProbeDialog : public DialogWindow {
public:
    explicit ProbeDialog(Life& life, DialogFocus focus = DialogFocus::kUntouched) : DialogWindow(focus), life_(life) {
        ++life_.alive;
    }
    ~ProbeDialog() override { --life_.alive; }

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM) override {
        Life& life = life_;
        if (life.messages++ == 0) life.first = message;
        life.last = message;
        switch (message) {
            case WM_INITDIALOG:
                if (life.endsAtOnce) ::EndDialog(Window(), 5);
                return {};
            case kNested:
                ::SendMessageA(Window(), kDestroy, 0, 0);
                break;
            case kDestroy:
                ::DestroyWindow(Window());
                break;
            case kAnswer:
                return static_cast<LONG_PTR>(wParam) + 1;
            case WM_CTLCOLORDLG:
                return reinterpret_cast<LONG_PTR>(::GetStockObject(GRAY_BRUSH));
            default:
                return {};
        }
        if (life.alive == 0) life.deletedWithinHandler = true;
        return 1;
    }

    Life& life_;
};

class OtherDialog final : public ProbeDialog {
public:
    using ProbeDialog::ProbeDialog;
};

// Without a control, a menu, a class of its own and a title.
struct EmptyTemplate {
    DLGTEMPLATE layout{WS_POPUP, 0, 0, 0, 0, 50, 40};
    WORD menu = 0, windowClass = 0, title = 0;
};

class DialogWindowTest : public ::testing::Test {
protected:
    template <class Dialog>
    HWND Make(DialogFocus focus = DialogFocus::kUntouched) {
        std::unique_ptr<DialogWindow> dialog = std::make_unique<Dialog>(life_, focus);
        return ::CreateDialogIndirectParamA(module_, &template_.layout, nullptr, &DialogProcedure<Dialog>,
                                            ParameterOf(dialog));
    }

    const HINSTANCE module_ = ::GetModuleHandleA(nullptr);
    EmptyTemplate template_;
    Life life_;
};

TEST_F(DialogWindowTest, ObjectIsBoundAtTheFirstMessageAndLivesAsLongAsItsWindow) {
    const HWND window = Make<ProbeDialog>();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(life_.alive, 1);
    EXPECT_EQ(life_.first, static_cast<UINT>(WM_INITDIALOG));
    ASSERT_NE(DialogOf<ProbeDialog>(window), nullptr);
    EXPECT_EQ(DialogOf<ProbeDialog>(window)->Window(), window);
    ::DestroyWindow(window);
    EXPECT_EQ(life_.alive, 0);
    EXPECT_EQ(life_.last, static_cast<UINT>(WM_NCDESTROY));
    EXPECT_EQ(DialogOf<ProbeDialog>(window), nullptr);
}

TEST_F(DialogWindowTest, ObjectOfADialogThatCannotBeMadeGoesToo) {
    EXPECT_EQ(MakeDialog(std::make_unique<ProbeDialog>(life_), module_, 999, nullptr), nullptr);
    EXPECT_EQ(RunDialog(std::make_unique<ProbeDialog>(life_), module_, 999, nullptr), -1);
    EXPECT_EQ(life_.alive, 0);
    EXPECT_EQ(life_.messages, 0);
}

TEST_F(DialogWindowTest, WindowDestroyedFromInsideAHandlerKeepsTheObjectUntilTheOutermostReturns) {
    for (const UINT message : {kDestroy, kNested}) {
        const HWND window = Make<ProbeDialog>();
        ::SendMessageA(window, message, 0, 0);
        EXPECT_FALSE(::IsWindow(window));
        EXPECT_FALSE(life_.deletedWithinHandler);
        EXPECT_EQ(life_.alive, 0);
    }
}

TEST_F(DialogWindowTest, AnswersReachTheSenderAndTheRestTheSystem) {
    const HWND window = Make<ProbeDialog>();
    EXPECT_EQ(::SendMessageA(window, kAnswer, 41, 0), 42);
    EXPECT_EQ(::SendMessageA(window, kLeave, 41, 0), 0);
    ::SetWindowTextA(window, "left to the system");
    EXPECT_EQ(::GetWindowTextLengthA(window), 18);
    // Of this one the procedure's own value counts.
    EXPECT_EQ(::SendMessageA(window, WM_CTLCOLORDLG, 0, 0), reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH)));
    ::DestroyWindow(window);
}

TEST_F(DialogWindowTest, FocusGoesWhereItIsTold) {
    for (const auto& [focus, result] :
         {std::pair{DialogFocus::kFirstControl, TRUE}, {DialogFocus::kUntouched, FALSE}}) {
        std::unique_ptr<DialogWindow> dialog = std::make_unique<ProbeDialog>(life_, focus);
        const HWND window =
            ::CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, module_, nullptr);
        EXPECT_EQ(DialogProcedure<ProbeDialog>(window, WM_INITDIALOG, 0, ParameterOf(dialog)), result);
        DialogProcedure<ProbeDialog>(window, WM_NCDESTROY, 0, 0);
        EXPECT_EQ(life_.alive, 0);
        ::DestroyWindow(window);
    }
}

TEST_F(DialogWindowTest, ModalOneMayEndBeforeItIsShown) {
    life_.endsAtOnce = true;
    EXPECT_EQ(RunDialog(std::make_unique<ProbeDialog>(life_), module_, &template_.layout, nullptr), 5);
    EXPECT_EQ(life_.alive, 0);
}

TEST_F(DialogWindowTest, ObjectIsFoundInDialogsOfItsOwnClassAlone) {
    const HWND other = Make<OtherDialog>();
    const HWND box = ::CreateWindowExA(0, "BUTTON", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, module_, nullptr);
    EXPECT_EQ(DialogOf<ProbeDialog>(other), nullptr);
    EXPECT_NE(DialogOf<OtherDialog>(other), nullptr);
    EXPECT_EQ(DialogOf<ProbeDialog>(box), nullptr);
    EXPECT_EQ(DialogOf<ProbeDialog>(nullptr), nullptr);
    ::DestroyWindow(other);
    ::DestroyWindow(box);
}

}  // namespace
}  // namespace corvex
