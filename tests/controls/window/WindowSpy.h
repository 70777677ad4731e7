// The one way for a test to listen in on a window, whoever made it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex {

struct HeardMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD thread;  // on which it was handled
};
using HeardMessages = std::vector<HeardMessage>;

// How many there are of one message, and which.
int CountOf(const HeardMessages& heard, UINT message);
HeardMessages Of(const HeardMessages& heard, UINT message);

// Stands in front of a window until one of the two goes; one spy at a time. On the window's thread.
class WindowSpy {
public:
    // An answer ends the message here, none lets it go on to the window.
    using Handler = std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)>;

    explicit WindowSpy(HWND window);
    ~WindowSpy();
    WindowSpy(const WindowSpy&) = delete;
    WindowSpy& operator=(const WindowSpy&) = delete;

    int Count(UINT message) const { return CountOf(Heard(), message); }
    int Paints() const;  // any thread may ask
    const HeardMessages& Heard() const;
    void Forget();
    void SetHandler(Handler handler);

private:
    class Ear;
    struct Notes;
    const HWND window_;
    const std::shared_ptr<Notes> notes_;
};

}  // namespace corvex
