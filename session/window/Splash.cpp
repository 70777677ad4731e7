#include "session/window/Splash.h"

#include <cstdio>
#include <string>

#include "controls/splash/SplashScreen.h"
#include "session/base/VersionText.h"
#include "session/window/ResourceIds.h"

namespace corvex {

namespace {

constexpr std::uint32_t kShownMs = 3000;
constexpr RECT kBuildLine{260, 111, 260, 111};  // text goes right and down from its corner
constexpr int kBuildItem = 1;
constexpr std::uint32_t kBuildColour = 0x000000;

std::string BuildLine(HINSTANCE instance) {
    char path[MAX_PATH] = {}, version[64] = {}, line[80] = {};
    ::GetModuleFileNameA(instance, path, sizeof path - 1);
    if (GetVersionText(path, version, sizeof version) == 0) return {};
    std::snprintf(line, sizeof line, "Build %s", version);
    return line;
}

}  // namespace

std::shared_ptr<void> MakeSplash(HWND owner, HINSTANCE instance) {
    auto splash = std::make_shared<SplashScreen>();
    if (!splash->create(owner, instance, IDB_SPLASH, 0, kSplashTopmost)) return nullptr;
    splash->setText(BuildLine(instance).c_str(), kBuildLine, kBuildItem, OwnedFont(), kBuildColour);
    splash->show(kShownMs);
    return splash;
}

}  // namespace corvex
