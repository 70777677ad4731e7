#include "tests/controls/window/ControlTestHelper.h"

#include <algorithm>

#include "controls/window/CommonControls.h"

namespace corvex {

namespace {

constexpr char kTestWindowClass[] = "CorvexTestWindow";

}  // namespace

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        ::SetWindowLongPtrA(window, GWLP_USERDATA,
                            reinterpret_cast<LONG_PTR>(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams));
    }
    auto* const self = reinterpret_cast<TestWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self == nullptr) return ::DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) ::SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    self->heard.push_back({message, wParam, lParam, ::GetCurrentThreadId()});
    if (self->handler) {
        if (const auto answer = self->handler(message, wParam, lParam)) return *answer;
    }
    return ::DefWindowProcA(window, message, wParam, lParam);
}

TestWindow::TestWindow(DWORD style, HWND parent) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &TestWindow::Procedure;
    windowClass.hInstance = ::GetModuleHandleA(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszClassName = kTestWindowClass;
    ::RegisterClassExA(&windowClass);
    window_ = ::CreateWindowExA(0, kTestWindowClass, "page", style, 0, 0, 500, 400, parent, nullptr,
                                windowClass.hInstance, this);
}

TestWindow::~TestWindow() {
    handler = nullptr;
    if (!Alive()) return;
    ::SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
    ::DestroyWindow(window_);
}

TestParent::TestParent() {
    window_.handler = [this](UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
        if (message != WM_NOTIFY) return std::nullopt;
        const auto& head = *reinterpret_cast<const NMHDR*>(lParam);
        const Notice notice{head.hwndFrom, head.idFrom, head.code};
        notices.push_back(notice);
        return answer ? answer(notice) : 0;
    };
}

std::vector<UINT> TestParent::Codes() const {
    std::vector<UINT> codes;
    for (const Notice& notice : notices)
        codes.push_back(notice.code);
    return codes;
}

int TestParent::CountOf(UINT code) const {
    const auto codes = Codes();
    return static_cast<int>(std::count(codes.begin(), codes.end(), code));
}

DWORD StyleOfWindow(HWND window) {
    return static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_STYLE));
}

bool HasShownStyle(HWND window) {
    return (StyleOfWindow(window) & WS_VISIBLE) != 0;
}

std::string TextOfWindow(HWND window) {
    std::string text(65536, '\0');
    const auto length = ::SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string ClassNameOf(HWND window) {
    char name[100] = "";
    ::GetClassNameA(window, name, sizeof name);
    return name;
}

RECT ClientOf(HWND window) {
    RECT client{};
    ::GetClientRect(window, &client);
    return client;
}

SIZE SizeOf(HWND window) {
    RECT area{};
    ::GetWindowRect(window, &area);
    return {area.right - area.left, area.bottom - area.top};
}

RECT PlaceOf(HWND window) {
    RECT area{};
    ::GetWindowRect(window, &area);
    ::MapWindowPoints(nullptr, ::GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

namespace {

HTREEITEM NextItem(HWND tree, UINT relation, HTREEITEM item) {
    return reinterpret_cast<HTREEITEM>(::SendMessageA(tree, TVM_GETNEXTITEM, relation, L(item)));
}

std::string TitlesFrom(HWND tree, HTREEITEM first) {
    std::string titles;
    for (HTREEITEM item = first; item != nullptr; item = NextItem(tree, TVGN_NEXT, item)) {
        if (item != first) titles += " ";
        char title[64] = "";
        TVITEMA node{};
        node.mask = TVIF_TEXT | TVIF_HANDLE;
        node.hItem = item;
        node.pszText = title;
        node.cchTextMax = sizeof title;
        ::SendMessageA(tree, TVM_GETITEMA, 0, L(&node));
        titles += title;
        const HTREEITEM child = NextItem(tree, TVGN_CHILD, item);
        if (child != nullptr) titles.append("(").append(TitlesFrom(tree, child)).append(")");
    }
    return titles;
}

}  // namespace

std::string TreeTitles(HWND tree) {
    return TitlesFrom(tree, NextItem(tree, TVGN_ROOT, nullptr));
}

LOGFONTA FontOf(HWND window) {
    LOGFONTA font{};
    ::GetObjectA(reinterpret_cast<HFONT>(::SendMessageA(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return font;
}

}  // namespace corvex
