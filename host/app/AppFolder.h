#pragma once
// The application folder the host gives the component: --home DIR, else
// QUORVEL_HOME, else $XDG_DATA_HOME/quorvel (~/.local/share/quorvel).

#include <string>
#include <vector>

namespace qv {

struct HostOptions {
    std::string home;
    bool installStoreOnly = false;
    std::string storeUri;  // --store URI: a team store on a server
    bool headless = false;  // set when no display is reachable
    std::vector<std::string> rest;
    std::string error;  // a usage mistake, told to the user
};

HostOptions parseHostOptions(int argc, char** argv);
std::string defaultAppFolder();
// A folder as an absolute path, so that what is stored from it holds from
// any working folder.
std::string absoluteFolder(const std::string& folder);

}  // namespace qv
