// What all pages have in common: a dialog on the tab sheet that shows objects of the session's definition.
#pragma once

#include <memory>

#include "controls/window/DialogWindow.h"
#include "session/SessionState.h"

namespace corvex {

// Owns what a page keeps, for as long as its window is there. The session has the window's handle, and the samples come
// here, between the page's creation and its end. Main thread.
class DefinitionPage : public DialogWindow, public ISampleView {
public:
    using Handle = void* SessionState::*;

    // The session outlives the page; the handle is its word for this page.
    DefinitionPage(SessionState& session, Handle handle, SampleViewKind kind, DialogFocus focus)
        : DialogWindow(focus), session_(session), handle_(handle), kind_(kind) {}

    // A page that shows nothing of a sample.
    bool WantsSamples() const override { return false; }
    void Read(const PublishedSample&) override {}
    void Draw() override {}

    SessionState& Session() const { return session_; }
    const ADXDefinition& Definition() const { return session_.definition; }

protected:
    // The page's controls are there, and the session knows of it.
    virtual void OnInit() {}
    // The size is that of the message, which may be sent with zeros.
    virtual void LayOut(int width, int height) = 0;
    virtual void OnCommand(unsigned /*control*/, unsigned /*code*/, LPARAM /*lParam*/) {}
    // Of the page's own horizontal scroll bar.
    virtual void OnScroll(unsigned /*code*/) {}
    virtual DialogAnswer OnNotify(NMHDR& /*header*/) { return {}; }
    // The window is going, and is still known.
    virtual void OnEnd() {}

private:
    DialogAnswer OnMessage(UINT message, WPARAM wParam, LPARAM lParam) final;
    void Begin();
    void End();
    void PaintGround() const;

    SessionState& session_;
    const Handle handle_;
    const SampleViewKind kind_;
};

// Adds a page to session.tabSheet. Its window, null on failure.
HWND AddPage(SessionState& session, std::unique_ptr<DialogWindow> page, DLGPROC procedure, int templateId,
             const char* title);

template <class Page>
HWND AddPage(SessionState& session, int templateId, const char* title) {
    return AddPage(session, std::make_unique<Page>(session), &DialogProcedure<Page>, templateId, title);
}

// The page behind one of the session's handles. Null for one that is not of this kind, or not there.
template <class Page>
Page* PageOf(void* handle) {
    return DialogOf<Page>(static_cast<HWND>(handle));
}

// A window's rectangle in the client coordinates of its parent.
RECT RectInParent(HWND child);

}  // namespace corvex
