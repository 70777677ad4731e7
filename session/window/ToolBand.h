// The band over the pages: file toolbar, scan toolbar and log bar on one row that the user may rearrange.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

class Desktop;
class SessionState;

// Owner of an image list.
class ToolImages {
public:
    // The pictures of all toolbars, out of the program's resources.
    explicit ToolImages(HINSTANCE instance);
    ~ToolImages();
    ToolImages(const ToolImages&) = delete;
    ToolImages& operator=(const ToolImages&) = delete;
    // An image list of the common controls; null when the resource is missing.
    void* Get() const { return list_; }
    int Count() const;

private:
    void* list_;
};

// All on the main thread.
class ToolBand {
public:
    // Makes the band and what is on it, with these images, and stores the handles in the session.
    static void Create(Desktop& desktop, const ToolImages& images);
    // At the top of the client area, `width` pixels wide.
    static void Layout(SessionState& session, int width);
    static int Height(const SessionState& session);
};

}  // namespace corvex
