#pragma once
// The application folder the host gives the component: --home DIR, else
// QUORVEL_HOME, else $XDG_DATA_HOME/quorvel (~/.local/share/quorvel).

#include <string>

namespace qv {

std::string defaultAppFolder();
// True when DISPLAY or WAYLAND_DISPLAY names a display to open windows on.
bool displayReachable();

}  // namespace qv
