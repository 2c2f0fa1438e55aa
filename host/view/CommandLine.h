#pragma once
// The host's command line: the options in one table, read with
// QCommandLineParser. Help and version go to standard output; a mistake
// is told on standard error with exit status 2.

#include <string>

#include <QStringList>

namespace qv {

struct CommandLine {
    std::string home;              // the application folder
    bool installStore = false;     // install the store, then exit
    std::string storeUri;          // with installStore: a team store on a server
    bool demo = false;             // run the demonstration and exit
    bool screenshots = false;      // the demonstration, every window at three sizes
    bool help = false;
    bool version = false;
    std::string error;             // a usage mistake, told to the user
};

// Reads the arguments (the program's name first). Needs no application object.
CommandLine parseCommandLine(const QStringList& arguments);
// What --help prints; the program's name comes from the application object.
QString commandLineHelp();

// The exit status of a usage mistake, as command-line tools use it.
inline constexpr int kUsageExit = 2;

}  // namespace qv
