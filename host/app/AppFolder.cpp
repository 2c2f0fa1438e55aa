#include "app/AppFolder.h"

#include <cstdlib>

namespace qv {

namespace {
std::string env(const char* name) {
    const char* v = std::getenv(name);
    return v ? std::string(v) : std::string();
}
}  // namespace

std::string defaultAppFolder() {
    if (auto home = env("QUORVEL_HOME"); !home.empty()) return home;
    if (auto xdg = env("XDG_DATA_HOME"); !xdg.empty()) return xdg + "/quorvel";
    return env("HOME") + "/.local/share/quorvel";
}

bool displayReachable() { return !env("DISPLAY").empty() || !env("WAYLAND_DISPLAY").empty(); }

}  // namespace qv
