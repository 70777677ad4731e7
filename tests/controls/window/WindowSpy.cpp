#include "tests/controls/window/WindowSpy.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "controls/window/WindowSubclass.h"

namespace corvex {

// Of both, since either may go first.
struct WindowSpy::Notes {
    HeardMessages heard;
    std::atomic<int> paints{0};
    Handler handler;
};

class WindowSpy::Ear final : public WindowSubclass {
public:
    Ear(HWND window, std::shared_ptr<Notes> notes) : WindowSubclass(window), notes_(std::move(notes)) {}

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        notes_->heard.push_back({message, wParam, lParam, ::GetCurrentThreadId()});
        if (message == WM_PAINT) ++notes_->paints;
        const Handler handler = notes_->handler;  // it may set another
        if (handler) {
            if (const auto answer = handler(message, wParam, lParam)) return *answer;
        }
        return Former(message, wParam, lParam);
    }

    const std::shared_ptr<Notes> notes_;
};

int CountOf(const HeardMessages& heard, UINT message) {
    return static_cast<int>(Of(heard, message).size());
}

HeardMessages Of(const HeardMessages& heard, UINT message) {
    HeardMessages found;
    std::copy_if(heard.begin(), heard.end(), std::back_inserter(found),
                 [&](const HeardMessage& one) { return one.message == message; });
    return found;
}

WindowSpy::WindowSpy(HWND window) : window_(window), notes_(std::make_shared<Notes>()) {
    Attach(std::make_unique<Ear>(window, notes_));
}

WindowSpy::~WindowSpy() {
    notes_->handler = nullptr;
    Detach<Ear>(window_);
}

const HeardMessages& WindowSpy::Heard() const {
    return notes_->heard;
}

int WindowSpy::Paints() const {
    return notes_->paints;
}

void WindowSpy::Forget() {
    notes_->heard.clear();
}

void WindowSpy::SetHandler(Handler handler) {
    notes_->handler = std::move(handler);
}

}  // namespace corvex
