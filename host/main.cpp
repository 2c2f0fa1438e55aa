// The demo host: installs the store on first run, then runs the task
// manager window. --demo (or --screenshots) runs a short demonstration by
// itself offscreen and saves a picture of every window it opened; with no
// display and no such option it only says what it is and writes nothing.

#include <iostream>

#include <QApplication>
#include <QTimer>

#include "app/AppFolder.h"
#include "help/HelpTopics.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "kit/QtText.h"
#include "kit/UserLanguage.h"
#include "store/PgConnection.h"
#include "view/CommandLine.h"
#include "view/DemoDriver.h"
#include "view/DemoGuard.h"
#include "view/HostApp.h"
#include "view/HostTour.h"
#include "view/HostWindow.h"

namespace {

constexpr const char* kVersion = "1.14";

QStringList argumentsOf(int argc, char** argv) {
    QStringList args;
    for (int i = 0; i < argc; ++i) args << QString::fromLocal8Bit(argv[i]);
    return args;
}

// A text of the catalogue with its %1, %2, ... filled in.
template <typename... Args>
std::string says(const QString& text, const Args&... args) {
    return text.arg(QString::fromStdString(std::string(args))...).toStdString();
}

// --help, --version or a usage mistake; -1 when the program goes on.
int answerAtOnce(const qv::CommandLine& cl, int argc, char** argv) {
    if (!cl.error.empty()) {
        // Qt's parser says its part in Qt's own catalogue, which needs an application.
        QCoreApplication core(argc, argv);
        qv::UserLanguage::useIn(core);
        std::cerr << "quorvel: " << qv::parseCommandLine(argumentsOf(argc, argv)).error << "\n"
                  << qv::qtr("Try 'quorvel --help' for more information.").toStdString() << "\n";
        return qv::kUsageExit;
    }
    if (cl.help) {
        QCoreApplication core(argc, argv);
        qv::UserLanguage::useIn(core);
        std::cout << qv::commandLineHelp().toStdString();
        return 0;
    }
    if (cl.version) {
        std::cout << "quorvel " << kVersion << "\n";
        return 0;
    }
    return -1;
}

// Returns false when the store could not be made.
bool prepareFolder(const qv::CommandLine& cl) {
    try {
        if (!cl.storeUri.empty()) {
            qv::installServerApplicationFolder(cl.home, cl.storeUri);
            std::cout << says(qv::qtr("The store on %1 is ready; %2 uses it"), qv::serverName(cl.storeUri),
                              cl.home)
                      << "\n";
            return true;
        }
        const bool made = qv::installApplicationFolder(cl.home);
        if (cl.installStore)
            std::cout << says(made ? qv::qtr("Installed a fresh store in %1")
                                   : qv::qtr("The store stands already in %1"),
                              cl.home)
                      << "\n";
        return true;
    } catch (const std::exception& e) {
        std::cerr << "quorvel: " << says(qv::qtr("could not install the store in %1: %2"), cl.home, e.what())
                  << "\n";
        return false;
    }
}

// No display and nothing asked: tell what this is, touch nothing.
int explainHeadless(const qv::CommandLine& cl) {
    std::cerr
        << "quorvel " << kVersion << ": "
        << qv::qtr(
               "the Quorvel desktop task manager. It needs a display (neither DISPLAY nor WAYLAND_DISPLAY is "
               "set), so it opened no window and wrote nothing.")
               .toStdString()
        << "\n"
        << says(qv::qtr("Its store: %1 (folder %2)"), qv::storeLocationOf(cl.home), cl.home) << "\n"
        << qv::qtr("To see it work offscreen on a fresh folder: quorvel --demo --home DIR").toStdString()
        << "\n"
        << qv::qtr(
               "  (a picture of every window goes into DIR/screenshots; 'quorvel --help' lists the options)")
               .toStdString()
        << "\n";
    return 1;
}

int runDemonstration(const qv::CommandLine& cl, int argc, char** argv) {
    const qv::DemoGuard guard(cl.home);
    if (const std::string why = guard.refusal(); !why.empty()) {
        std::cerr << "quorvel: " << says(qv::qtr("no demonstration: %1"), why) << "\n";
        return 1;
    }
    if (!prepareFolder(cl)) return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    qv::UserLanguage::useIn(app);
    QApplication::setApplicationName("quorvel");
    qv::HostApp host(cl.home, false);
    const std::string dir = host.folder() + "/screenshots";
    qv::DemoDriver demo(host, QString::fromStdString(dir), cl.screenshots);
    const int code = demo.run();
    guard.remember();
    std::cout << says(qv::qtr("Saved %1 screenshots in %2"), std::to_string(demo.shots().size()), dir)
              << "\n";
    for (const QString& shot : demo.shots()) std::cout << "  " << shot.toStdString() << "\n";
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    qv::UserLanguage::fromEnvironment();
    const qv::CommandLine cl = qv::parseCommandLine(argumentsOf(argc, argv));
    if (const int code = answerAtOnce(cl, argc, argv); code >= 0) return code;
    if (cl.installStore) return prepareFolder(cl) ? 0 : 1;
    if (cl.files.any()) return qv::runTaskFileOptions(cl.home, cl.files);
    if (cl.demo) return runDemonstration(cl, argc, argv);
    if (!qv::displayReachable()) return explainHeadless(cl);
    if (!prepareFolder(cl)) return 1;

    QApplication app(argc, argv);
    qv::UserLanguage::useIn(app);
    QApplication::setApplicationName("quorvel");
    QApplication::setApplicationVersion(kVersion);
    qv::HostApp host(cl.home, true);
    host.window().show();
    if (host.tour().showTourAtStart())
        QTimer::singleShot(0, &host.window(), [&host] { host.window().openHelp(qv::kTourTopic); });
    return QApplication::exec();
}
