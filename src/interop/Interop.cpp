#include "interop/Interop.h"

#include <cctype>
#include <ctime>
#include <filesystem>

#include "interop/CsvWriter.h"
#include "interop/IcsReader.h"
#include "interop/IcsSource.h"
#include "interop/IcsWriter.h"
#include "interop/InteropError.h"
#include "interop/TaskSelection.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {

constexpr const char* kModule = "Interop";

double now() {
    if (ports().clock) return clock().now();
    const std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return dateserial::fromCivil(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                                 local.tm_sec);
}

// A count in its form for n ("%1 task", "%1 tasks").
std::string counted(const std::string& form, int n) {
    return fill(form, {std::to_string(n)});
}

unsigned long forms(int n) {
    return static_cast<unsigned long>(n < 0 ? 0 : n);
}

// Runs body under the trap; a file fault becomes the result's message.
template <class F>
InteropResult guarded(const char* procedure, F&& body) {
    InteropResult result;
    const bool ran = trap(kModule, procedure, [&] {
        try {
            body(result);
            result.ok = true;
        } catch (const InteropError& e) {
            result.message = e.what();
        }
    });
    if (!ran) result.message = tr("The store failed; nothing was changed.");
    return result;
}

// A to-do's file in a calendar folder: its key, kept to safe characters.
std::string fileNameOf(std::string key) {
    for (char& c : key)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-') c = '_';
    return key + ".ics";
}

std::string importSummary(const std::string& path, const ImportCounts& c) {
    // TRANSLATORS: %1 the file; %2 to %7 counts ("3 tasks", "1 appointment").
    std::string text = fill(tr("Imported %1: %2 added, %3 updated, %4 added, %5 updated, %6 and %7 added."),
                            {path, counted(trn("%1 task", "%1 tasks", forms(c.tasksAdded)), c.tasksAdded),
                             counted(trn("%1 task", "%1 tasks", forms(c.tasksChanged)), c.tasksChanged),
                             counted(trn("%1 appointment", "%1 appointments", forms(c.appointmentsAdded)),
                                     c.appointmentsAdded),
                             counted(trn("%1 appointment", "%1 appointments", forms(c.appointmentsChanged)),
                                     c.appointmentsChanged),
                             counted(trn("%1 project", "%1 projects", forms(c.projectsAdded)), c.projectsAdded),
                             counted(trn("%1 keyword", "%1 keywords", forms(c.keywordsAdded)), c.keywordsAdded)});
    if (c.eventsLeftOut)
        text += " " + counted(trn("%1 event related to no task left out.", "%1 events related to no task left out.",
                                  forms(c.eventsLeftOut)),
                              c.eventsLeftOut);
    return text;
}

}  // namespace

InteropResult Interop::exportCalendar(const std::string& path, const ExportScope& scope) {
    return guarded("exportCalendar", [&](InteropResult& r) {
        const TaskSelection selection = TaskSelection::read(scope);
        std::error_code unreadable;
        if (std::filesystem::is_directory(path, unreadable)) {
            for (const auto& one : selection.perTask())
                IcsWriter::save(IcsWriter::calendar(one).get(), path + "/" + fileNameOf(textOf(one.tasks[0], "tskGUIDID")));
        } else {
            IcsWriter::save(IcsWriter::calendar(selection).get(), path);
        }
        r.tasks = static_cast<int>(selection.tasks.size());
        const int appointments = static_cast<int>(selection.appointments.size());
        r.message = fill(tr("Exported %1 and %2 to %3."),
                         {counted(trn("%1 task", "%1 tasks", forms(r.tasks)), r.tasks),
                          counted(trn("%1 appointment", "%1 appointments", forms(appointments)), appointments), path});
    });
}

InteropResult Interop::importCalendar(const std::string& path) {
    return guarded("importCalendar", [&](InteropResult& r) {
        ImportSet set = IcsReader::read(IcsSource(path));
        r.tasks = static_cast<int>(set.tasks.size());
        r.counts = StoreImporter::write(std::move(set), now());
        r.message = importSummary(path, r.counts);
    });
}

InteropResult Interop::exportSpreadsheet(const std::string& path) {
    return guarded("exportSpreadsheet", [&](InteropResult& r) {
        IcsWriter::saveText(CsvWriter::taskList(r.tasks), path);
        r.message = fill(tr("Exported %1 to %2."), {counted(trn("%1 task", "%1 tasks", forms(r.tasks)), r.tasks), path});
    });
}

}  // namespace qv
