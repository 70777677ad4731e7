// Keeps Wine's desktop process alive between tests: the first window of a prefix starts it, and it leaves with the
// last one. Run without arguments it starts itself detached and returns when the hidden window stands.
#include <windows.h>

#include <string>

namespace {

constexpr char kReadyEvent[] = "CorvexKeepAlive";

int Keep() {
    CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    if (HANDLE ready = OpenEventA(EVENT_MODIFY_STATE, FALSE, kReadyEvent)) SetEvent(ready);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

int Start() {
    HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, kReadyEvent);
    char self[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    std::string line = std::string("\"") + self + "\" child";
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION child = {};
    if (!CreateProcessA(self, line.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr, nullptr, &startup,
                        &child))
        return 1;
    WaitForSingleObject(ready, 10000);
    return 0;
}

}  // namespace

int main(int argc, char**) {
    return argc > 1 ? Keep() : Start();
}
