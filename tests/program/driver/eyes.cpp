// Looks around in the program that it is loaded into: pixels of windows and rows of menus can't be had from outside.
#include <algorithm>
#include <cstring>
#include <string>

#include "controls/window/GdiObjects.h"
#include "tests/program/driver/EyesRequest.h"
#include "tests/program/driver/Picture.h"
#include "tests/views/MenuDriver.h"

namespace corvex::test {
namespace {

void TakePicture(EyesRequest& request) {
    RECT area{};
    ::GetClientRect(request.window, &area);
    const ClientDc source(request.window);
    const int width = static_cast<int>(area.right), height = static_cast<int>(area.bottom);
    const Picture picture =
        Drawn(width, height, [&](HDC dc) { ::BitBlt(dc, 0, 0, width, height, source.Get(), 0, 0, SRCCOPY); });
    if (picture.pixels.size() > EyesRequest::kMostPixels) return;
    std::copy(picture.pixels.begin(), picture.pixels.end(), request.pixels);
    request.width = width;
    request.height = height;
    request.done = 1;
}

void ReadMenu(EyesRequest& request) {
    std::string text;
    for (const std::string& row : RowsOf(reinterpret_cast<HMENU>(::SendMessageA(request.window, kGetPopupMenu, 0, 0))))
        text.append(row).append("\n");
    if (text.size() >= EyesRequest::kTextSize) return;
    std::memcpy(request.text, text.c_str(), text.size() + 1);
    request.done = 1;
}

void Smear(EyesRequest& request) {
    const OwnedBrush brush(::CreateSolidBrush(request.colour));
    const ClientDc dc(request.window);
    request.done = ::FillRect(dc.Get(), &request.part, brush.Get()) != 0 ? 1 : 0;
}

void Do(WPARAM task, EyesRequest& request) {
    if (task == kTakePicture) TakePicture(request);
    if (task == kReadMenu) ReadMenu(request);
    if (task == kSmear) Smear(request);
}

LRESULT CALLBACK OnCall(int code, WPARAM wParam, LPARAM lParam) {
    static const UINT wanted = ::RegisterWindowMessageA(kEyesMessage);
    const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && call.message == wanted && call.lParam != 0)
        Do(call.wParam, *reinterpret_cast<EyesRequest*>(call.lParam));
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace
}  // namespace corvex::test

extern "C" __declspec(dllexport) HOOKPROC EyesProcedure() {
    return &corvex::test::OnCall;
}
