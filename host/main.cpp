// The demo host: installs the store on first run, then runs the task
// manager window. With no display, or with --screenshots, it runs a short
// demonstration by itself and saves a picture of every window it opened.

#include <algorithm>
#include <iostream>

#include <QApplication>
#include <QTimer>

#include "app/AppFolder.h"
#include "help/HelpTopics.h"
#include "installer/StoreInstaller.h"
#include "store/PgConnection.h"
#include "view/DemoDriver.h"
#include "view/HostApp.h"
#include "view/HostTour.h"
#include "view/HostWindow.h"

namespace {

constexpr const char* kUsage =
    "Usage: quorvel [--home DIR] [--install-store [--store URI]] [--screenshots]\n"
    "  --home DIR        the application folder (else QUORVEL_HOME, else $XDG_DATA_HOME/quorvel)\n"
    "  --install-store   install a fresh store and QuorvelSettings.txt in the folder, then exit\n"
    "  --store URI       with --install-store: the store is on a PostgreSQL server\n"
    "                    (postgresql://host/db or postgresql:///db?host=/socket/dir); its tables\n"
    "                    are made where missing and the folder's settings file names the URI\n"
    "  --screenshots     run the demonstration and save every window, at its minimum and a larger\n"
    "                    size, as PNG files in DIR/screenshots; also what happens with no display\n";

bool has(const std::vector<std::string>& args, const char* flag) {
    return std::find(args.begin(), args.end(), flag) != args.end();
}

// Returns false when the store could not be made.
bool prepareFolder(const qv::HostOptions& opts) {
    try {
        if (!opts.storeUri.empty()) {
            qv::installServerApplicationFolder(opts.home, opts.storeUri);
            std::cout << "The store on " << qv::serverName(opts.storeUri) << " is ready; " << opts.home
                      << " uses it\n";
            return true;
        }
        const bool made = qv::installApplicationFolder(opts.home);
        if (opts.installStoreOnly)
            std::cout << (made ? "Installed a fresh store in " : "The store stands already in ") << opts.home << "\n";
        return true;
    } catch (const std::exception& e) {
        std::cerr << "quorvel: could not install the store in " << opts.home << ": " << e.what() << "\n";
        return false;
    }
}

int runDemonstration(qv::HostApp& host) {
    const std::string dir = host.folder() + "/screenshots";
    qv::DemoDriver demo(host, QString::fromStdString(dir), true);
    const int code = demo.run();
    std::cout << "Saved " << demo.shots().size() << " screenshots in " << dir << "\n";
    for (const QString& shot : demo.shots()) std::cout << "  " << shot.toStdString() << "\n";
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    const auto opts = qv::parseHostOptions(argc, argv);
    if (!opts.error.empty() || has(opts.rest, "--help")) {
        std::cerr << (opts.error.empty() ? "" : "quorvel: " + opts.error + "\n") << kUsage;
        return opts.error.empty() ? 0 : 2;
    }
    if (!prepareFolder(opts)) return 1;
    if (opts.installStoreOnly) return 0;

    const bool demonstrate = opts.headless || has(opts.rest, "--screenshots");
    if (opts.headless) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName("quorvel");
    qv::HostApp host(opts.home, !demonstrate);
    if (demonstrate) return runDemonstration(host);
    host.window().show();
    if (host.tour().showTourAtStart())
        QTimer::singleShot(0, &host.window(), [&host] { host.window().openHelp(qv::kTourTopic); });
    return QApplication::exec();
}
