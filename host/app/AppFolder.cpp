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

HostOptions parseHostOptions(int argc, char** argv) {
    HostOptions o;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--home") {
            if (i + 1 >= argc) {
                o.error = "--home needs a folder";
                return o;
            }
            o.home = argv[++i];
        } else if (a.rfind("--home=", 0) == 0) {
            o.home = a.substr(7);
        } else if (a == "--store") {
            if (i + 1 >= argc) {
                o.error = "--store needs a connection URI (postgresql://...)";
                return o;
            }
            o.storeUri = argv[++i];
        } else if (a == "--install-store") {
            o.installStoreOnly = true;
        } else {
            o.rest.push_back(a);
        }
    }
    if (!o.storeUri.empty() && !o.installStoreOnly) o.error = "--store goes with --install-store";
    if (o.home.empty()) o.home = defaultAppFolder();
    o.home = absoluteFolder(o.home);
    o.headless = env("DISPLAY").empty() && env("WAYLAND_DISPLAY").empty();
    return o;
}

}  // namespace qv
