// Looks around in the program that it is loaded into: the pixels of windows can't be had from outside.
#include <algorithm>

#include "controls/window/GdiObjects.h"
#include "tests/program/driver/EyesRequest.h"
#include "tests/program/driver/Picture.h"

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

LRESULT CALLBACK OnCall(int code, WPARAM wParam, LPARAM lParam) {
    static const UINT wanted = ::RegisterWindowMessageA(kEyesMessage);
    const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && call.message == wanted && call.lParam != 0)
        TakePicture(*reinterpret_cast<EyesRequest*>(call.lParam));
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace
}  // namespace corvex::test

extern "C" __declspec(dllexport) HOOKPROC EyesProcedure() {
    return &corvex::test::OnCall;
}
