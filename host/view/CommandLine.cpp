#include "view/CommandLine.h"

#include <vector>

#include <QCommandLineParser>

#include "app/AppFolder.h"
#include "kit/QtText.h"

namespace qv {

namespace {

enum class Opt { Home, InstallStore, Store, Demo, Screenshots, Import, Export, Project, ExportCsv };

struct OptionRow {
    Opt id;
    const char* name;
    const char* valueName;  // nullptr: a flag
    const char* description;  // English, translated when shown
};

// Every option the host takes, in the order --help lists them. A new option
// is a row here and a line in readOption below.
const OptionRow kOptions[] = {
    {Opt::Home, "home", "DIR",
     QV_N("The application folder (else QUORVEL_HOME, else $XDG_DATA_HOME/quorvel, by default "
          "~/.local/share/quorvel).")},
    {Opt::InstallStore, "install-store", nullptr,
     QV_N("Install a fresh store and QuorvelSettings.txt in the folder, then exit. A store that "
          "stands is left as it is.")},
    {Opt::Store, "store", "URI",
     QV_N("With --install-store: the store is on a PostgreSQL server (postgresql://host/db or "
          "postgresql:///db?host=/socket/dir); its tables are made where missing and the folder's "
          "settings file names the URI.")},
    {Opt::Demo, "demo", nullptr,
     QV_N("Run the demonstration offscreen and save a picture of every window in DIR/screenshots, "
          "then exit. It refuses a store holding tasks it did not make.")},
    {Opt::Screenshots, "screenshots", nullptr,
     QV_N("As --demo, and save every window also at its minimum and at a larger size.")},
    {Opt::Import, "import", "FILE.ics",
     QV_N("Import the to-dos and events of an iCalendar file into the store, then exit. A task already "
          "stored is updated; a file that can't be read is named with its line and nothing is written.")},
    {Opt::Export, "export", "FILE.ics",
     QV_N("Export every task with its appointments to an iCalendar file, then exit.")},
    {Opt::Project, "project", "KEY", QV_N("With --export: only the tasks of the project with this key.")},
    {Opt::ExportCsv, "export-csv", "FILE.csv",
     QV_N("Export the task list to a spreadsheet (CSV) file, then exit.")},
};

void readOption(CommandLine& cl, const OptionRow& row, const QCommandLineParser& p, const QCommandLineOption& o) {
    if (!p.isSet(o)) return;
    switch (row.id) {
    case Opt::Home: cl.home = p.value(o).toStdString(); break;
    case Opt::InstallStore: cl.installStore = true; break;
    case Opt::Store: cl.storeUri = p.value(o).toStdString(); break;
    case Opt::Demo: cl.demo = true; break;
    case Opt::Screenshots: cl.screenshots = cl.demo = true; break;
    case Opt::Import: cl.files.importFile = p.value(o).toStdString(); break;
    case Opt::Export: cl.files.exportFile = p.value(o).toStdString(); break;
    case Opt::Project: cl.files.projectKey = p.value(o).toStdString(); break;
    case Opt::ExportCsv: cl.files.exportCsvFile = p.value(o).toStdString(); break;
    }
}

QCommandLineOption optionOf(const OptionRow& row) {
    const QString description = qtr(row.description);
    if (!row.valueName) return QCommandLineOption(QString::fromUtf8(row.name), description);
    return QCommandLineOption(QString::fromUtf8(row.name), description, QString::fromUtf8(row.valueName));
}

std::vector<QCommandLineOption> addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        qtr("Quorvel, the desktop task manager: tasks, appointments, keywords and checklists.\n"
            "With no option it opens the task manager window on the store in the application folder."));
    std::vector<QCommandLineOption> options;
    for (const OptionRow& row : kOptions) {
        options.push_back(optionOf(row));
        parser.addOption(options.back());
    }
    return options;
}

}  // namespace

// Help and version by hand: the parser's own help option would also offer
// --help-all, with options this program does not take.
static QCommandLineOption helpOption() {
    return QCommandLineOption({"h", "help"}, qtr("Show this help and exit."));
}
static QCommandLineOption versionOption() {
    return QCommandLineOption({"v", "version"}, qtr("Show the version and exit."));
}

QString commandLineHelp() {
    QCommandLineParser parser;
    parser.addOption(helpOption());
    parser.addOption(versionOption());
    addOptions(parser);
    return parser.helpText();
}

CommandLine parseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption help = helpOption();
    const QCommandLineOption version = versionOption();
    parser.addOption(help);
    parser.addOption(version);
    const std::vector<QCommandLineOption> options = addOptions(parser);
    CommandLine cl;
    if (!parser.parse(arguments)) {
        cl.error = parser.errorText().toStdString();
        return cl;
    }
    cl.help = parser.isSet(help);
    cl.version = parser.isSet(version);
    for (std::size_t i = 0; i < options.size(); ++i) readOption(cl, kOptions[i], parser, options[i]);
    if (!parser.positionalArguments().isEmpty())
        cl.error = qtr("unexpected argument '%1'").arg(parser.positionalArguments().first()).toStdString();
    else if (!cl.storeUri.empty() && !cl.installStore)
        cl.error = tr("--store goes with --install-store");
    else if (!cl.files.projectKey.empty() && cl.files.exportFile.empty())
        cl.error = tr("--project goes with --export");
    if (cl.home.empty()) cl.home = defaultAppFolder();
    cl.home = absoluteFolder(cl.home);
    return cl;
}

}  // namespace qv
