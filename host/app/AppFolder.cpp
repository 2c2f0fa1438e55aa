#include "app/AppFolder.h"

#include <cstdlib>
#include <filesystem>

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

std::string absoluteFolder(const std::string& folder) {
    if (folder.empty()) return folder;
    std::error_code ec;
    const auto path = std::filesystem::absolute(folder, ec);
    if (ec) return folder;
    std::string out = path.lexically_normal().string();
    if (out.size() > 1 && out.back() == '/') out.pop_back();
    return out;
}

bool displayReachable() { return !env("DISPLAY").empty() || !env("WAYLAND_DISPLAY").empty(); }

}  // namespace qv
