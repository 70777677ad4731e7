#include "views/CopyKey.h"

#include "controls/window/WindowSubclass.h"

namespace corvex {

namespace {

class CopyKey final : public WindowSubclass {
public:
    CopyKey(HWND control, std::function<void()> copy) : WindowSubclass(control), copy_(std::move(copy)) {}

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        constexpr WPARAM kCtrlC = 0x03;
        if (message != WM_CHAR || wParam != kCtrlC) return Former(message, wParam, lParam);
        copy_();
        return 0;
    }

private:
    const std::function<void()> copy_;
};

}  // namespace

void TakeCopyKey(HWND control, std::function<void()> copy) {
    static_cast<void>(Attach(std::make_unique<CopyKey>(control, std::move(copy))));
}

}  // namespace corvex
