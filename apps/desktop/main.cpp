#include "platform/StandardStreams.h"
#include "session/window/Desktop.h"
#include "session/window/Startup.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    corvex::HoldStandardStreams();
    corvex::Desktop desktop(instance);
    corvex::SetDefaults(&desktop.session.settings);
    return corvex::RunDesktop(desktop, show);
}
