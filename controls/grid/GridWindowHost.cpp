#include "controls/grid/GridWindowHost.h"

#include "controls/window/Clipboard.h"

namespace corvex {

namespace {

constexpr UINT_PTR kAutoScrollTimer = 1;
constexpr UINT kAutoScrollPeriod = 10;  // milliseconds
constexpr UINT kCaretWidthParameter = 0x2006;
constexpr DWORD kDefaultCaretWidth = 3;
constexpr WORD kArrowShape = 0x7F00, kSizeColumnShape = 0x7F84, kSizeRowShape = 0x7F85;

RECT AsRect(const GridBox& box) {
    return {box.left, box.top, box.right, box.bottom};
}

int BarOf(bool isVertical) {
    return isVertical ? SB_VERT : SB_HORZ;
}

}  // namespace

void GridWindowHost::Adopt(GridFont role, HFONT font) {
    if (font == nullptr) return;
    fonts.Adopt(role, font);
    Repaint();
}

void GridWindowHost::Tell(std::uint32_t code, std::uint32_t value) {
    ::SendMessageA(::GetParent(window_), WM_COMMAND, MAKEWPARAM(controlId, code), static_cast<LPARAM>(value));
}

void GridWindowHost::Repaint() {
    ::InvalidateRect(window_, nullptr, TRUE);
    ::UpdateWindow(window_);
}

void GridWindowHost::PaintSoon(const GridBox& part) {
    const RECT box = AsRect(part);
    RECT client{}, seen{};
    ::GetClientRect(window_, &client);
    // Of a large table most cells are out of view, and the call is dear.
    if (::IntersectRect(&seen, &box, &client) != FALSE) ::InvalidateRect(window_, &seen, FALSE);
}

void GridWindowHost::PaintNow(const GridBox& part) {
    PaintSoon(part);
    ::UpdateWindow(window_);
}

GridTextSize GridWindowHost::Measure(GridFont font, std::string_view line) {
    return fonts.Measure(ClientDc(window_).Get(), font, line);
}

void GridWindowHost::MakeCaret() {
    TEXTMETRICA metric{};
    {
        const ClientDc dc(window_);
        const SelectGuard font(dc.Get(), fonts.Get(GridFont::kCell));
        ::GetTextMetricsA(dc.Get(), &metric);
    }
    caretHeight_ = static_cast<int>(metric.tmHeight);
    DWORD width = kDefaultCaretWidth;
    if (::SystemParametersInfoA(kCaretWidthParameter, 0, &width, 0) == FALSE) width = kDefaultCaretWidth;
    hasCaret_ = ::CreateCaret(window_, nullptr, static_cast<int>(width), caretHeight_) != FALSE;
    isCaretShown_ = false;
}

void GridWindowHost::DropCaret() {
    if (hasCaret_) ::DestroyCaret();
    hasCaret_ = isCaretShown_ = false;
}

// A caret of somebody else's is left alone, and showing one is not counted twice.
void GridWindowHost::ShowCaretAt(int x, int y) {
    if (!hasCaret_) return;
    ::SetCaretPos(x, y);
    if (!isCaretShown_) ::ShowCaret(window_);
    isCaretShown_ = true;
}

void GridWindowHost::HideCaret() {
    if (isCaretShown_) ::HideCaret(window_);
    isCaretShown_ = false;
}

void GridWindowHost::Release() {
    if (::GetCapture() == window_) ::ReleaseCapture();
}

void GridWindowHost::StartTimer() {
    if (timer_ == 0) timer_ = ::SetTimer(window_, kAutoScrollTimer, kAutoScrollPeriod, nullptr);
}

void GridWindowHost::StopTimer() {
    if (timer_ != 0) ::KillTimer(window_, kAutoScrollTimer);
    timer_ = 0;
}

void GridWindowHost::SetPointer(GridPointer pointer) {
    pointer_ = pointer;
    ShowPointer();
}

void GridWindowHost::ShowPointer() const {
    const WORD shape = pointer_ == GridPointer::kSizeColumn ? kSizeColumnShape
                       : pointer_ == GridPointer::kSizeRow  ? kSizeRowShape
                                                            : kArrowShape;
    ::SetCursor(::LoadCursorA(nullptr, MAKEINTRESOURCEA(shape)));
}

void GridWindowHost::ShowBar(bool isVertical, bool isShown) {
    ::ShowScrollBar(window_, BarOf(isVertical), isShown ? TRUE : FALSE);
}

// A bar that stands as it should is not drawn again.
void GridWindowHost::SetBar(bool isVertical, int maximum, int position) {
    const int bar = BarOf(isVertical);
    int first = 0, last = 0;
    ::GetScrollRange(window_, bar, &first, &last);
    if (first != 1 || last != maximum) ::SetScrollRange(window_, bar, 1, maximum, TRUE);
    if (::GetScrollPos(window_, bar) != position) ::SetScrollPos(window_, bar, position, TRUE);
}

// The numbers of the message are of no account: the grid reads its client.
void GridWindowHost::SizeAnew() {
    ::SendMessageA(window_, WM_SIZE, SIZE_MAXIMIZED, 0x640064);
}

void GridWindowHost::PutOnClipboard(const std::string& text) {
    corvex::PutOnClipboard(window_, text);
}

std::optional<std::string> GridWindowHost::TextOfClipboard() {
    return corvex::TextOfClipboard(window_);
}

}  // namespace corvex
