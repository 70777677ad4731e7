#include "controls/proptree/PropTreeWindow.h"

#include <algorithm>
#include <utility>

#include "controls/proptree/PropTreeContainer.h"
#include "controls/window/PageWindow.h"
#include "platform/PrivateMessages.h"

namespace corvex {

namespace {

constexpr int kOkId = 1000;
constexpr int kCancelId = 1001;

PropTreeSizes SizesFrom(const void* sizes) {
    return sizes == nullptr ? PropTreeSizes{} : *static_cast<const PropTreeSizes*>(sizes);
}

PropBox BoxOf(const RECT& area) {
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

void Move(HWND window, const PropBox& box) {
    ::MoveWindow(window, box.x, box.y, box.width, box.height, TRUE);
}

}  // namespace

PropTreeWindow::PropTreeWindow(HWND window, void* sizes)
    : ControlWindow(window), model_(SizesFrom(sizes).treeWidth, SizesFrom(sizes).minimumHeight) {}

LRESULT PropTreeWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return Create() ? 0 : -1;
        case kMessageReady:
            settled_ = true;
            Tell(PTN_READY);
            return 0;
        case kMessageDropPages:
            DropPages();
            return 0;
        case WM_SIZE:
            Layout();
            return 0;
        case WM_GETMINMAXINFO: {
            const PropSize least = model_.MinimumTrack();
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.width, least.height};
            return 0;
        }
        case WM_NOTIFY:
            OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
            return 0;
        case WM_PARENTNOTIFY:
            if (LOWORD(wParam) == WM_DESTROY) OnChildGone(reinterpret_cast<HWND>(lParam));
            return 0;
        case WM_CLOSE:
            Tell(PTN_CLOSING);
            if (!closing_) ::DestroyWindow(Window());
            return 0;
        case WM_DESTROY:
            OnDestroy();
            return 0;
        case WM_NCDESTROY:
            TellParent(std::exchange(parent_, nullptr), Window(), PTN_CLOSED);
            break;
    }
    return OnInput(message, wParam, lParam);
}

LRESULT PropTreeWindow::OnInput(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
            ::SetFocus(tree_.Control());
            return 0;
        case DM_GETDEFID:  // Enter, by IsDialogMessageA
            return MAKELRESULT(kOkId, DC_HASDEFID);
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED) OnCommand(LOWORD(wParam));
            return 0;
    }
    return Default(message, wParam, lParam);
}

bool PropTreeWindow::Create() {
    if (!tree_.Create(Window())) return false;
    ok_ = MakeButton("OK", kOkId, BS_DEFPUSHBUTTON);
    cancel_ = MakeButton("Cancel", kCancelId, BS_PUSHBUTTON);
    if (ok_ == nullptr || cancel_ == nullptr) return false;
    ::PostMessageA(Window(), kMessageReady, 0, 0);
    return true;
}

HWND PropTreeWindow::MakeButton(const char* text, int id, DWORD style) {
    const auto instance = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(Window(), GWLP_HINSTANCE));
    const HWND button = ::CreateWindowExA(
        0, "BUTTON", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS | style, 0, 0, kPropButtonWidth,
        kPropButtonHeight, Window(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
    if (button != nullptr) ::SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(tree_.Font()), FALSE);
    return button;
}

LRESULT PropTreeWindow::Tell(UINT code) {
    return TellParent(closing_ ? parent_ : ParentToTell(Window()), Window(), code);
}

PropSize PropTreeWindow::Client() const {
    RECT client{};
    ::GetClientRect(Window(), &client);
    return {client.right, client.bottom};
}

void PropTreeWindow::Layout() {
    const PropSize client = Client();
    if (tree_.Control() != nullptr) Move(tree_.Control(), model_.Tree(client));
    Move(ok_, model_.Ok(client));
    Move(cancel_, model_.Cancel(client));
    if (current_ != nullptr) Place(current_);
}

// Below the buttons, so that they can be reached in a window that is too low for both.
void PropTreeWindow::Place(HWND page) {
    ::SetWindowPos(page, HWND_BOTTOM, model_.PageX(Client()), 0, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
}

void PropTreeWindow::Grow() {
    const PropSize client = model_.FittingClient();
    RECT fitting{0, 0, client.width, client.height};
    ::AdjustWindowRect(&fitting, static_cast<DWORD>(::GetWindowLongPtrA(Window(), GWL_STYLE)), FALSE);
    RECT now{};
    ::GetWindowRect(Window(), &now);
    const PropSize size{static_cast<int>(std::max(fitting.right - fitting.left, now.right - now.left)),
                        static_cast<int>(std::max(fitting.bottom - fitting.top, now.bottom - now.top))};
    RECT owner{}, screen{};
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
    const HWND parent = ParentToTell(Window());
    if (parent == nullptr || !::GetWindowRect(parent, &owner)) owner = screen;
    const PropBox place = CentredOver(BoxOf(owner), BoxOf(screen), size);
    ::SetWindowPos(Window(), nullptr, place.x, place.y, size.width, size.height,
                   SWP_NOZORDER | SWP_NOACTIVATE | (settled_ ? SWP_NOMOVE : 0));
}

bool PropTreeWindow::Add(HWND page, const char* title, const char* insertAfterTitle, const char* parentTitle) {
    if (closing_ || tree_.Control() == nullptr) return false;
    if (!BecomePage(page, Window(), WS_CLIPSIBLINGS) || closing_) return false;
    // Lets the Tab key into the page.
    ::SetWindowLongPtrA(page, GWL_EXSTYLE, ::GetWindowLongPtrA(page, GWL_EXSTYLE) | WS_EX_CONTROLPARENT);
    RECT area{};
    ::GetWindowRect(page, &area);
    model_.AddPage({area.right - area.left, area.bottom - area.top});
    if (tree_.Insert(tree_.FindTitle(parentTitle), tree_.FindTitle(insertAfterTitle), title, page) == nullptr)
        return false;
    Grow();
    if (!closing_) Layout();  // the tree gives way to a wider page even when the window was large enough
    return !closing_ && ::IsWindow(page);
}

bool PropTreeWindow::SelectByTitle(const char* title) {
    const HTREEITEM item = tree_.FindTitle(title);
    if (item == nullptr) return false;
    tree_.Select(item);
    return !closing_;
}

void PropTreeWindow::OnCommand(int id) {
    // The dialog keys bring the system's own numbers.
    if (id == kOkId || id == IDOK) AskAndDestroy(PTN_OK);
    if (id == kCancelId || id == IDCANCEL) AskAndDestroy(PTN_CANCEL);
}

void PropTreeWindow::AskAndDestroy(UINT code) {
    const LRESULT answer = Tell(code);
    if (answer != 0 && !closing_) ::DestroyWindow(Window());
}

void PropTreeWindow::OnNotify(const NMHDR& notice) {
    if (notice.hwndFrom != tree_.Control()) return;
    // Either kind of text: no text is looked at.
    const auto& change = reinterpret_cast<const NMTREEVIEWA&>(notice);
    if (notice.code == TVN_SELCHANGEDA || notice.code == TVN_SELCHANGEDW) {
        // The items of a window that closes lose the selection to one another.
        if (!closing_)
            OnSelected(reinterpret_cast<HWND>(change.itemOld.lParam), reinterpret_cast<HWND>(change.itemNew.lParam));
    } else if (notice.code == TVN_DELETEITEMA || notice.code == TVN_DELETEITEMW) {
        dropped_.push_back(reinterpret_cast<HWND>(change.itemOld.lParam));
        if (!deleting_) ::PostMessageA(Window(), kMessageDropPages, 0, 0);
    }
}

void PropTreeWindow::OnSelected(HWND former, HWND chosen) {
    if (former != nullptr && former != chosen) ::ShowWindow(former, SW_HIDE);
    if (closing_) return;
    current_ = chosen;
    if (chosen == nullptr) return;
    Place(chosen);
    ::ShowWindow(chosen, SW_SHOWNA);
}

// Tells of each page whose item went, then destroys it.
void PropTreeWindow::DropPages() {
    while (!dropped_.empty()) {
        const HWND page = dropped_.front();
        dropped_.erase(dropped_.begin());
        if (page == current_) current_ = nullptr;
        Tell(PTN_PAGE_GONE);
        if (page != dying_ && ::IsWindow(page)) ::DestroyWindow(page);
    }
}

void PropTreeWindow::OnChildGone(HWND child) {
    if (closing_) return;
    const bool tree = child == tree_.Control();
    const HTREEITEM item = tree ? TVI_ROOT : tree_.FindPage(child);
    if (item == nullptr) return;
    const HWND outer = std::exchange(dying_, child);
    DeleteItem(item);
    if (tree) tree_.Forget();
    DropPages();
    dying_ = outer;
}

void PropTreeWindow::DeleteItem(HTREEITEM item) {
    const bool outer = std::exchange(deleting_, true);
    tree_.Delete(item);
    deleting_ = outer;
}

void PropTreeWindow::OnDestroy() {
    if (std::exchange(closing_, true)) return;  // a handler that destroys the window once more makes it come again
    parent_ = ParentToTell(Window());
    current_ = nullptr;
    DeleteItem(TVI_ROOT);
    tree_.Forget();
    DropPages();
}

}  // namespace corvex
