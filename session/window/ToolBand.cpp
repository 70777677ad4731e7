#include "session/window/ToolBand.h"

#include "controls/window/CommonControls.h"
#include "session/window/Desktop.h"
#include "session/window/LogBar.h"
#include "session/window/ResourceIds.h"
#include "session/window/Toolbar.h"

namespace corvex {

namespace {

constexpr int kImageSize = 16, kImageCount = 45;
constexpr COLORREF kMaskColour = RGB(255, 0, 255);
constexpr int kBandHeight = 21;
constexpr int kFileWidth = 70, kScanWidth = 24, kLogWidth = 295;
constexpr int kLogSmallest = 200;  // the toolbar, and a slider that can still be used

constexpr ToolButton kFileButtons[] = {
    {0, IDM_LOAD_DEFINITION},
    {1, IDM_SAVE_DEFINITION},
    {18, IDM_EDIT_DEFINITION},
};
constexpr ToolButton kScanButtons[] = {{28, IDM_SCAN}};

HWND MakeBand(const SessionState& session) {
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | RBS_VARHEIGHT | RBS_BANDBORDERS |
                        CCS_NODIVIDER | CCS_NOPARENTALIGN;
    return ::CreateWindowExA(WS_EX_TOOLWINDOW, REBARCLASSNAMEA, "", style, 0, 0, 0, 0, AsWindow(session.mainWindow),
                             reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IDC_TOOL_BAND)),
                             static_cast<HINSTANCE>(session.instance), nullptr);
}

// A band's own width counts its grip in; its child is never narrower than the band was meant to be.
void AddBand(HWND rebar, HWND child, UINT id, int width, int smallestChild) {
    REBARBANDINFOA band{};
    // The size that every version of the library takes.
    band.cbSize = REBARBANDINFOA_V3_SIZE;
    band.fMask = RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE | RBBIM_ID | RBBIM_STYLE;
    band.fStyle = RBBS_CHILDEDGE;
    band.hwndChild = child;
    band.wID = id;
    band.cxMinChild = static_cast<UINT>(smallestChild);
    band.cyMinChild = kBandHeight;
    band.cx = static_cast<UINT>(width);
    ::SendMessageA(rebar, RB_INSERTBANDA, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&band));
}

}  // namespace

ToolImages::ToolImages(HINSTANCE instance) {
    list_ = ImageList_LoadImageA(instance, MAKEINTRESOURCEA(IDB_TOOLBAR), kImageSize, kImageCount, kMaskColour,
                                 IMAGE_BITMAP, LR_CREATEDIBSECTION);
}

ToolImages::~ToolImages() {
    if (list_ != nullptr) ImageList_Destroy(static_cast<HIMAGELIST>(list_));
}

int ToolImages::Count() const {
    return list_ == nullptr ? 0 : ImageList_GetImageCount(static_cast<HIMAGELIST>(list_));
}

void ToolBand::Create(Desktop& desktop, const ToolImages& images) {
    SessionState& session = desktop.session;
    const HWND rebar = MakeBand(session);
    session.rebar = rebar;
    session.fileToolbar = MakeToolbar(rebar, desktop.Instance(), IDC_FILE_TOOLBAR, images.Get(), kFileButtons, 3);
    session.scanToolbar = MakeToolbar(rebar, desktop.Instance(), IDC_SCAN_TOOLBAR, images.Get(), kScanButtons, 1);
    LogBar::Create(desktop, rebar, images.Get());
    AddBand(rebar, AsWindow(session.fileToolbar), IDC_FILE_TOOLBAR, kFileWidth, kFileWidth);
    AddBand(rebar, AsWindow(session.scanToolbar), IDC_SCAN_TOOLBAR, kScanWidth, kScanWidth);
    AddBand(rebar, AsWindow(session.logBarDialog), IDC_LOG_BAND, kLogWidth, kLogSmallest);
}

void ToolBand::Layout(SessionState& session, int width) {
    ::MoveWindow(AsWindow(session.rebar), 0, 0, width, Height(session), TRUE);
}

int ToolBand::Height(const SessionState& session) {
    return static_cast<int>(::SendMessageA(AsWindow(session.rebar), RB_GETBARHEIGHT, 0, 0));
}

}  // namespace corvex
