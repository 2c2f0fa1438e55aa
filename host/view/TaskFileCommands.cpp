#include "view/TaskFileCommands.h"

#include <iostream>

#include "installer/StoreInstaller.h"
#include "interop/Interop.h"
#include "kit/QtText.h"
#include "session/globals/SessionGlobals.h"
#include "store/ConsoleReporter.h"
#include "toolkit/Ports.h"
#include "toolkit/SystemClock.h"

namespace qv {

namespace {

bool told(const InteropResult& r) {
    (r.ok ? std::cout : std::cerr) << (r.ok ? "" : "quorvel: ") << r.message << "\n";
    return r.ok;
}

}  // namespace

int runTaskFileOptions(const std::string& home, const TaskFileOptions& o) {
    try {
        installApplicationFolder(home);
    } catch (const std::exception& e) {
        std::cerr << "quorvel: "
                  << qtr("could not install the store in %1: %2")
                         .arg(QString::fromStdString(home), e.what())
                         .toStdString()
                  << "\n";
        return 1;
    }
    ConsoleReporter reporter;
    SystemClock clock;
    ports().reporter = &reporter;
    ports().clock = &clock;
    g().AppPath = home;
    bool ok = true;
    if (!o.importFile.empty()) ok = told(Interop::importCalendar(o.importFile)) && ok;
    if (!o.exportFile.empty())
        ok = told(Interop::exportCalendar(o.exportFile, o.projectKey.empty() ? ExportScope::all()
                                                                             : ExportScope::project(o.projectKey))) &&
             ok;
    if (!o.exportCsvFile.empty()) ok = told(Interop::exportSpreadsheet(o.exportCsvFile)) && ok;
    ports() = Ports{};
    return ok ? 0 : 1;
}

}  // namespace qv
