// Sees what only the program itself can: the pixels of its windows and the rows of its menus.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/WindowsApi.h"
#include "tests/program/driver/EyesRequest.h"
#include "tests/program/driver/Picture.h"
#include "tests/program/driver/RemoteBlock.h"

namespace corvex::test {

// Loads a library into the program for as long as it lives; the program must not be gone before. What the program's
// thread cannot do, be it that it is frozen, throws std::runtime_error.
class Eyes {
public:
    // Any window of the thread to look around in.
    explicit Eyes(HWND window);
    ~Eyes();
    Eyes(const Eyes&) = delete;
    Eyes& operator=(const Eyes&) = delete;

    // The client area as it is on the screen now; nothing is painted for it.
    Picture Of(HWND window) const;
    // Of the popup menu in such a window: "1 Values", "10 Speed", "11* Load" for a checked one, those of submenus after
    // their own.
    std::vector<std::string> RowsOf(HWND popup) const;
    // Fills a part of the window, which stays so until it is painted.
    void Smear(HWND window, const RECT& part, COLORREF colour) const;

private:
    void Do(EyesTask task, EyesRequest& request) const;

    HWND window_;
    HHOOK hook_;
    RemoteBlock block_;
    std::unique_ptr<EyesRequest> request_;
};

}  // namespace corvex::test
